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

/// Codes of the envelopes with which the emulator refuses a call or owns up to a mistake.
namespace code {
constexpr int Success = 1000;
constexpr int UnknownPath = 1001;
constexpr int WrongMethod = 1002;
constexpr int InvalidParameter = 1003;
constexpr int BodyIsNotJson = 1004;
constexpr int UnknownObject = 1005;
constexpr int ContractBroken = 1006;
}  // namespace code

/// A call is refused with an envelope of this code and text.
class Refusal : public std::runtime_error {
public:
    Refusal(int envelopeCode, const std::string& text) : std::runtime_error(text), m_code(envelopeCode) {}
    [[nodiscard]] int code() const { return m_code; }

private:
    int m_code;
};

/// One call that the contract has found to be right. Query values have the type that the contract gives them.
struct Call {
    const Contract& contract;
    const Operation& operation;
    const PathValues& path;
    const Json& query;
    const Json& body;  ///< null where the call has none
    State& state;
};

/// Carries a call out: changes the state and returns the reply's "data". Keys that the contract has no room for are
/// dropped from it afterwards, so a handler may return a record as the state holds it.
class Handler {
public:
    /// @param action carries the call out
    /// @param source where the state holds what the call returns, such as "/brms/userGroups/[]", for the check of the
    /// seeds: "[]" is each element of a list, "{}" each member of an object. Empty: the handler puts it together.
    /// @param part the place in the schema of "data" of what the source holds; empty for all of it
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

/// Operation identifier -> handler. A family is one such table.
using HandlerTable = std::map<std::string, Handler>;

/// Decides whether an element of a list belongs to the answer of a call.
using Filter = std::function<bool(const Json& element, const Call& call)>;

/// @name Filters; an empty query or body value lets everything pass
/// @{
/// One of the fields holds the text of "keyword", case does not matter.
Filter HasKeyword(std::vector<std::string> fields);
/// The field equals the value of that name.
Filter Equals(const std::string& name);
/// The field is one of the texts that the value names, separated by ','.
Filter OneOf(const std::string& name, const std::string& field);
/// The field "orgCode" equals the value of that name or, when "containChild" is on, begins with it.
Filter InOrganisation();
/// @}

/// A list in the state whose elements know their identifier.
struct Collection {
    Place list;
    std::string identifier;  ///< the field that holds it

    /// @throws Refusal when there is no such element.
    Json& find(State& state, const std::string& id) const;
    [[nodiscard]] bool has(State& state, const std::string& id) const;
};

/// The element of a list whose field holds the identifier.
/// @throws Refusal when there is no such element.
Json& ElementOf(Json& list, const std::string& field, const std::string& id);

/// @throws Refusal that says that there is no such object. It claims to return for use in an expression.
Json RefuseUnknown(const std::string& id);

/// @name Values of a call
/// @{
/// The call's only path value.
const std::string& PathValue(const Call& call);
/// The value from query or body; empty text when it is in neither.
std::string ValueOf(const Call& call, const std::string& name);
/// The texts of a list that is separated by ','; empty ones are left out.
std::vector<std::string> Listed(const std::string& text);
/// A switch is on as "1" and as "true".
bool IsOn(const std::string& text);
/// The body in the types of the data that the named operation (the GET of the same path if empty) returns.
Json BodyAsRead(const Call& call, const std::string& reader = {});
/// @}

/// 1, 2, 3 and so on for each name, as text.
std::string NextNumber(const Call& call, const std::string& name);

/// Keeps path values, query and body of a write that no call reads back, under "/accepted/<operation>".
void Remember(const Call& call);

/// @name Ready-made handlers
/// @{
/// One document for the whole platform, read and written whole.
Handler ReadDocument(const Place& place);
Handler WriteDocument(const Place& place);

/// A document for each element of a collection, kept in an object by identifier; where none is kept yet the one named
/// "*" answers.
Handler ReadEntry(const Place& place, const Collection& owners);
Handler WriteEntry(const Place& place, const Collection& owners);

/// One element of a collection, by the path value.
Handler ReadElement(const Collection& collection);

/// {"results": [...]} with the elements that pass all filters.
Handler List(const Place& place, std::vector<Filter> filters = {});

/// {"totalCount": n, "pageData": [...]} of the elements that pass all filters; pages count from 1, 0 counts as 1.
Handler Page(const Place& place, std::vector<Filter> filters = {});

/// A new element with the body's values and an identifier of its own, which is the reply.
/// @param reader the operation whose data has the types to keep
Handler Create(const Collection& collection, const std::string& reader);
Handler Update(const Collection& collection);
/// Removes the elements that the query value "ids" names, separated by ','; refused when one is unknown.
Handler Delete(const Collection& collection);

/// Takes the call and remembers it; refused when the path value names no element of the collection.
Handler AcceptFor(const Collection& owners);
/// Answers with the contract's example, and remembers what is no read.
Json AnswerAsInTheExample(const Call& call);
/// @}

/// The handlers of all families. AnswerAsInTheExample carries out the other operations.
const HandlerTable& AllHandlers();

}  // namespace emulator
