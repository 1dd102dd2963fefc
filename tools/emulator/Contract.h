#pragma once

#include "Schema.h"

#include <filesystem>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace emulator {

/// The contract on disk is not as it should be; the text names file and place.
class ContractError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

struct QueryParameter {
    std::string name;
    bool required = false;
    Schema schema;
};

/// What the contract says about values, by their keys. A key of an object inside another one is there as
/// "<key of the object>/<key>" as well, as "id" may mean several things.
using Descriptions = std::map<std::string, std::string>;

/// What is said about a key, with the key of the object or list around it; empty where nothing is.
std::string DescriptionOf(const Descriptions& descriptions, const std::string& around, const std::string& key);

/// One endpoint, its references resolved.
struct Operation {
    std::string id;      ///< such as "BRMS.GetTimeSyncConfig"
    std::string method;  ///< upper case
    std::string path;    ///< the template, such as "/brms/api/v1.1/user/group/{groupId}"
    std::vector<QueryParameter> query;
    std::optional<Schema> body;  ///< empty where the call has none
    Schema reply;                ///< every envelope that may come
    Schema success;              ///< the envelope of a call that was carried out
    Json dataSchema;             ///< of the successful reply's "data"; an empty object where it has none
    Json parameterExamples;      ///< of path and query, by name
    std::vector<Json> bodyExamples;
    std::vector<Json> replyExamples;
    std::string description;
    Descriptions allowed;   ///< the values that may be sent, such as "0, 1" or ">= 0", by the keys of "sent"
    Descriptions sent;      ///< of path and query values, and of the keys of the body
    Descriptions received;  ///< of the keys of the successful reply's "data"

    /// The "data" of the first successful reply among the examples; an empty object where it has none.
    [[nodiscard]] Json dataExample() const;
};

using PathValues = std::map<std::string, std::string>;

/// The endpoints that the files of one folder describe.
class Contract {
public:
    /// Reads every *.yaml file of the folder.
    /// @throws ContractError for a file that cannot be read, a reference that leads nowhere, in a circle or has
    /// siblings, a schema keyword that the validator would pass over, an operation told twice.
    static Contract Load(const std::filesystem::path& folder);

    [[nodiscard]] const std::vector<Operation>& operations() const { return m_operations; }

    /// @throws ContractError for an unknown identifier.
    [[nodiscard]] const Operation& operation(const std::string& id) const;

    struct Match {
        bool pathKnown = false;
        const Operation* operation = nullptr;  ///< null when the path is unknown or knows no such method
        PathValues values;                     ///< decoded
    };
    /// @param path as it came over the wire, without query. A literal segment wins over a placeholder.
    [[nodiscard]] Match find(const std::string& method, const std::string& path) const;

    /// The operation that reads what this one writes: the GET of the same path; null when there is none.
    [[nodiscard]] const Operation* readerOf(const Operation& writer) const;

private:
    std::vector<Operation> m_operations;
};

}  // namespace emulator
