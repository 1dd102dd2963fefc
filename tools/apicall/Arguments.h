#pragma once

#include <catalogue/Call.h>

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace apicall {

/// The arguments of a call as given on the command line: JSON pointers into the arguments and the values to assign.
class GivenArguments {
public:
    /// Reads "name=value", "name/field=value" or a single JSON object, which "@file" reads from a file and "-" from
    /// standard input. Throws WrongUsage or catalogue::Mismatch.
    GivenArguments(const catalogue::Call& call, const std::vector<std::string>& arguments);

    /// The given arguments in one object.
    [[nodiscard]] nlohmann::json Object() const;

    /// Writes the given values into @p object and leaves all other values unchanged.
    void MergeInto(nlohmann::json& object) const;

private:
    struct Assignment {
        nlohmann::json::json_pointer path;
        nlohmann::json value;
    };
    std::vector<Assignment> m_assignments;
};

}  // namespace apicall
