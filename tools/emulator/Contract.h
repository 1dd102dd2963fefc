#pragma once

#include "Schema.h"

#include <filesystem>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace emulator {

/// An error in the contract's files; the text names the file and the location in it.
class ContractError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

struct QueryParameter {
    std::string name;
    bool required = false;
    Schema schema;
};

/// The contract's texts about values, by key. A key of a nested object is also stored as "<key of the object>/<key>",
/// because a name such as "id" can occur in several objects.
using Descriptions = std::map<std::string, std::string>;

/// The text about a key whose object or list has the key @p parent; empty when there is none.
std::string DescriptionOf(const Descriptions& descriptions, const std::string& parent, const std::string& key);

/// The keywords of the contract that limit a value, "enum", "minimum" and "maximum", by the keys of Descriptions.
using Limits = std::map<std::string, Json>;

/// One endpoint, its references resolved.
struct Operation {
    std::string id;      ///< operationId, such as "BRMS.GetTimeSyncConfig"
    std::string method;  ///< upper case
    std::string path;    ///< the template, such as "/brms/api/v1.1/user/group/{groupId}"
    std::vector<QueryParameter> query;
    std::optional<Schema> body;  ///< not set for a call without a body
    Schema reply;                ///< all envelopes that the server may return
    Schema success;              ///< the envelope of a successful call
    Json dataSchema;             ///< of the successful reply's "data"; an empty object without "data"
    Json parameterExamples;      ///< of path and query parameters, by name
    std::vector<Json> bodyExamples;
    std::vector<Json> replyExamples;
    std::string description;
    Descriptions allowed;   ///< permitted values such as "0, 1" or ">= 0", with the keys of "sent"
    Descriptions sent;      ///< of path and query parameters and the keys of the body
    Limits limits;          ///< of what may be sent, with the keys of "sent"
    Descriptions examples;  ///< of what may be sent, with the keys of "sent"
    Descriptions received;  ///< of the keys of the successful reply's "data"

    /// The "data" of the first example of a successful reply; an empty object without "data".
    [[nodiscard]] Json dataExample() const;
};

using PathValues = std::map<std::string, std::string>;

/// The endpoints described by the files of one folder.
class Contract {
public:
    /// Reads every *.yaml file of the folder.
    /// @throws ContractError for an unreadable file, a reference that is dangling, circular or has siblings, a schema
    /// keyword that the validator would ignore, or an operation defined twice.
    static Contract Load(const std::filesystem::path& folder);

    [[nodiscard]] const std::vector<Operation>& operations() const { return m_operations; }

    /// @throws ContractError for an unknown identifier.
    [[nodiscard]] const Operation& operation(const std::string& id) const;

    struct Match {
        bool pathKnown = false;
        const Operation* operation = nullptr;  ///< null for an unknown path or method
        PathValues values;                     ///< decoded
    };
    /// @param path as received, without query. A literal segment takes precedence over a placeholder.
    [[nodiscard]] Match find(const std::string& method, const std::string& path) const;

    /// The operation that reads the data this one writes: the GET of the same path; null when there is none.
    [[nodiscard]] const Operation* readerOf(const Operation& writer) const;

private:
    std::vector<Operation> m_operations;
};

}  // namespace emulator
