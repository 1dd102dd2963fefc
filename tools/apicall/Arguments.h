#pragma once

#include <catalogue/Call.h>

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace apicall {

/// What the command line gives to a call: places in its arguments, and their values.
class GivenArguments {
public:
    /// Reads "name=value", "name/field=value", one JSON object, or its name as "@file" or "-". Throws WrongUsage or
    /// catalogue::Mismatch.
    GivenArguments(const catalogue::Call& call, const std::vector<std::string>& arguments);

    /// The arguments in one object, as far as they are given.
    [[nodiscard]] nlohmann::json Object() const;

    /// Changes those given in @p object, field by field, and leaves the others.
    void MergeInto(nlohmann::json& object) const;

private:
    struct Assignment {
        nlohmann::json::json_pointer place;
        nlohmann::json value;
    };
    std::vector<Assignment> m_assignments;
};

}  // namespace apicall
