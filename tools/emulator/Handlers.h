#pragma once

#include "Contract.h"
#include "State.h"

#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace emulator {

/// The codes of envelopes: success, refusals, and the emulator's own errors.
namespace code {
constexpr int Success = 1000;
constexpr int UnknownPath = 1001;
constexpr int WrongMethod = 1002;
constexpr int InvalidParameter = 1003;
constexpr int BodyIsNotJson = 1004;
constexpr int UnknownObject = 1005;
constexpr int ContractBroken = 1006;
}  // namespace code

/// Refuses a call with an envelope of this code and text.
class Refusal : public std::runtime_error {
public:
    Refusal(int envelopeCode, const std::string& text) : std::runtime_error(text), m_code(envelopeCode) {}
    [[nodiscard]] int code() const { return m_code; }

private:
    int m_code;
};

/// A call that conforms to the contract. Query values have the types of the contract.
struct Call {
    const Contract& contract;
    const Operation& operation;
    const PathValues& path;
    const Json& query;
    const Json& body;  ///< null for a call without a body
    State& state;
};

/// Executes a call: changes the state and returns the reply's "data". Keys that the contract does not define are
/// removed afterwards, so a handler may return a record exactly as it is in the state.
class Handler {
public:
    /// @param action executes the call
    /// @param source the path in the state of the data that the call returns, for the check of the seeds, such as
    /// "/brms/userGroups/[]": "[]" is any element of a list, "{}" any member of an object. Empty for composed data.
    /// @param part the path in the schema of "data" that describes the source; empty for the whole schema
    template <typename Action>
    Handler(Action action, std::string source = {}, std::string part = {})
        : m_action(std::move(action)), m_source(std::move(source)), m_part(std::move(part))
    {}

    Json operator()(const Call& call) const { return m_action(call); }
    [[nodiscard]] const std::string& source() const { return m_source; }
    [[nodiscard]] const std::string& part() const { return m_part; }

private:
    std::function<Json(const Call&)> m_action;
    std::string m_source;
    std::string m_part;
};

/// Handlers by operation identifier. Each family has its own table.
using HandlerTable = std::map<std::string, Handler>;

/// Returns whether an element of a list belongs in the reply.
using Filter = std::function<bool(const Json& element, const Call& call)>;

/// @name Filters; an empty query or body value matches everything
/// @{
/// One of the fields contains the text of "keyword", ignoring case.
Filter HasKeyword(std::vector<std::string> fields);
/// The field equals the value of that name.
Filter Equals(const std::string& name);
/// The field is one of the comma-separated texts in the value.
Filter OneOf(const std::string& name, const std::string& field);
/// The field "orgCode" equals the value of that name or, if "containChild" is on, begins with it.
Filter InOrganisation();
/// @}

/// A list in the state whose elements have an identifier.
struct Collection {
    StatePath list;
    std::string identifier;  ///< name of the identifier's field

    /// @throws Refusal for an unknown identifier.
    Json& find(State& state, const std::string& id) const;
    [[nodiscard]] bool has(State& state, const std::string& id) const;
};

/// The element of a list with this identifier in the field.
/// @throws Refusal for an unknown identifier.
Json& ElementOf(Json& list, const std::string& field, const std::string& id);

/// Always throws the Refusal for an unknown object. The return type allows use in an expression.
Json RefuseUnknown(const std::string& id);

/// @name Values of a call
/// @{
/// The call's only path value.
const std::string& PathValue(const Call& call);
/// The value from the query or the body; empty when it is in neither.
std::string ValueOf(const Call& call, const std::string& name);
/// The parts of a comma-separated list, without empty ones.
std::vector<std::string> Listed(const std::string& text);
/// Whether a switch is on: "1" or "true".
bool IsOn(const std::string& text);
/// The body, converted to the types that the reader operation returns; the default is the GET of the same path.
Json BodyAsRead(const Call& call, const std::string& reader = {});
/// @}

/// The next number of the sequence 1, 2, 3, ... of this name, as text.
std::string NextNumber(const Call& call, const std::string& name);

/// Records path values, query and body under "/accepted/<operation>", for a write that no call reads back.
/// @return the data of a reply without data
Json RecordAccepted(const Call& call);

/// @name Ready-made handlers
/// @{
/// A single document for the platform. A write replaces the values that it sends.
Handler ReadDocument(const StatePath& path);
Handler WriteDocument(const StatePath& path);

/// A document for each element of a collection, stored in an object by identifier. The document "*" is the default for
/// elements without one.
Handler ReadEntry(const StatePath& path, const Collection& owners);
Handler WriteEntry(const StatePath& path, const Collection& owners);

/// The element of a collection that the path value identifies.
Handler ReadElement(const Collection& collection);

/// {"results": [...]} with the elements that match all filters.
Handler List(const StatePath& path, std::vector<Filter> filters = {});

/// {"totalCount": n, "pageData": [...]} with the elements that match all filters; pages count from 1, page 0 is page 1.
Handler Page(const StatePath& path, std::vector<Filter> filters = {});

/// Adds an element with the body's values and a new identifier, and returns the identifier.
/// @param reader the operation whose data defines the types to store
Handler Create(const Collection& collection, const std::string& reader);
Handler Update(const Collection& collection);
/// Removes the elements in the comma-separated query value "ids"; refused if one is unknown.
Handler Delete(const Collection& collection);

/// Records the call; refused if the path value is not an element of the collection.
Handler AcceptFor(const Collection& owners);
/// Replies with the contract's example, and records the call unless it is a GET.
Json ReplyWithExample(const Call& call);
/// @}

/// The handlers of all families. ReplyWithExample executes all other operations.
const HandlerTable& AllHandlers();

}  // namespace emulator
