#include "Platform.h"

#include "Handlers.h"
#include "RequestLog.h"
#include "SeedCheck.h"

#include <algorithm>
#include <stdexcept>
#include <strings.h>
#include <utility>

namespace emulator {
namespace {

Json Envelope(int envelopeCode, const std::string& desc)
{
    return Json{{"code", envelopeCode}, {"desc", desc}};
}

HttpResponse ResponseWith(int status, const Json& envelope)
{
    return {status, {}, envelope.dump(-1, ' ', false, Json::error_handler_t::replace)};
}

/// Converts the text to the type of its schema: "12" becomes a number for an integer.
Json TypedValue(const QueryParameter& parameter, const std::string& text)
{
    Json value = ConvertTo(parameter.schema.document(), text);
    const std::string breach = parameter.schema.breach(value);
    if (!breach.empty()) {
        throw Refusal(code::InvalidParameter, "query '" + parameter.name + "'" + breach + " in '" + text + "'");
    }
    return value;
}

Json CheckedQuery(const Operation& operation, const std::string& target)
{
    Json query = Json::object();
    for (const auto& [name, text] : QueryOf(target)) {
        const auto parameter =
            std::find_if(operation.query.begin(), operation.query.end(),
                         [&wanted = name](const QueryParameter& known) { return known.name == wanted; });
        if (parameter == operation.query.end()) {
            throw Refusal(code::InvalidParameter, "query '" + name + "': not expected");
        }
        if (query.contains(name)) {
            throw Refusal(code::InvalidParameter, "query '" + name + "': there twice");
        }
        query[name] = TypedValue(*parameter, text);
    }
    for (const QueryParameter& parameter : operation.query) {
        if (parameter.required && !query.contains(parameter.name)) {
            throw Refusal(code::InvalidParameter, "query '" + parameter.name + "': missing");
        }
    }
    return query;
}

Json CheckedBody(const Operation& operation, const std::string& text)
{
    if (!operation.body) {
        if (!text.empty()) {
            throw Refusal(code::InvalidParameter, "body: not expected");
        }
        return {};
    }
    Json body = Json::parse(text, nullptr, false);
    if (body.is_discarded()) {
        throw Refusal(code::BodyIsNotJson, text.empty() ? "body: missing" : "body: not JSON");
    }
    const std::string breach = operation.body->breach(body);
    if (!breach.empty()) {
        throw Refusal(code::InvalidParameter, breach);
    }
    return body;
}

}  // namespace

bool HasToken(const HttpRequest& request, const std::string& token)
{
    return std::any_of(request.headers.begin(), request.headers.end(), [&](const auto& header) {
        return ::strcasecmp(header.first.c_str(), "X-Subject-Token") == 0 && header.second == token;
    });
}

Platform::Platform(Contract contract, State state, std::string token)
    : m_contract(std::move(contract)), m_token(std::move(token)), m_state(std::move(state))
{
    CheckSeeds(m_state.seeds(), m_contract);
}

HttpResponse Platform::answer(const HttpRequest& request)
{
    if (!HasToken(request, m_token)) {
        return ResponseWith(401, Envelope(401, kWrongToken));
    }
    try {
        return ResponseWith(200, envelopeFor(request));
    } catch (const Refusal& refusal) {
        return ResponseWith(200, Envelope(refusal.code(), refusal.what()));
    } catch (const std::exception& error) {
        return ResponseWith(200, Envelope(code::ContractBroken, error.what()));
    }
}

std::string Platform::operationOf(const HttpRequest& request) const
{
    const Operation* const operation = m_contract.find(request.method, PathOf(request.target)).operation;
    return operation == nullptr ? std::string() : operation->id;
}

bool Platform::knows(const std::string& operation) const
{
    const auto& known = m_contract.operations();
    return std::any_of(known.begin(), known.end(), [&](const Operation& entry) { return entry.id == operation; });
}

Json Platform::envelopeFor(const HttpRequest& request)
{
    const std::string path = PathOf(request.target);
    const Contract::Match match = m_contract.find(request.method, path);
    if (!match.pathKnown) {
        throw Refusal(code::UnknownPath, "no service at " + path);
    }
    if (match.operation == nullptr) {
        throw Refusal(code::WrongMethod, request.method + " is not allowed for " + path);
    }
    const Operation& operation = *match.operation;
    const Json query = CheckedQuery(operation, request.target);
    const Json body = CheckedBody(operation, request.body);
    Json envelope = Envelope(code::Success, "Success");
    envelope["data"] = ProjectOn(operation.dataSchema, execute(operation, match.values, query, body));
    const std::string breach = operation.success.breach(envelope);
    if (!breach.empty()) {
        throw Refusal(code::ContractBroken, "answer of " + operation.id + ": " + breach);
    }
    return envelope;
}

Json Platform::execute(const Operation& operation, const PathValues& path, const Json& query, const Json& body)
{
    const auto found = AllHandlers().find(operation.id);
    const Handler& handler = found == AllHandlers().end() ? ReplyWithExample : found->second;
    const std::lock_guard lock(m_mutex);
    return handler(Call{m_contract, operation, path, query, body, m_state});
}

Json Platform::state()
{
    const std::lock_guard lock(m_mutex);
    return m_state.families();
}

void Platform::setState(Json state)
{
    const std::lock_guard lock(m_mutex);
    m_state.set(std::move(state));
}

void Platform::mergeState(const Json& patch)
{
    if (!patch.is_object()) {
        throw std::invalid_argument("expected an object");
    }
    const std::lock_guard lock(m_mutex);
    m_state[{}].merge_patch(patch);
}

void Platform::reset()
{
    const std::lock_guard lock(m_mutex);
    m_state.reset();
}

}  // namespace emulator
