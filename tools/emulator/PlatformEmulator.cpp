#include "PlatformEmulator.h"

#include "Contract.h"
#include "Faults.h"
#include "HttpServer.h"
#include "Platform.h"
#include "RequestLog.h"
#include "State.h"
#include "Text.h"

#include <atomic>
#include <charconv>
#include <iostream>
#include <mutex>
#include <utility>

namespace emulator {
namespace {

constexpr const char* kControlPath = "/emulator/";

HttpResponse Plain(int status, const Json& body)
{
    return {status, {}, body.dump(-1, ' ', false, Json::error_handler_t::replace)};
}

HttpResponse PlainError(int status, const std::string& text)
{
    return Plain(status, Json{{"error", text}});
}

Json Numbered(std::size_t number, const Fault& fault)
{
    Json json = fault.toJson();
    json["number"] = number;
    return json;
}

std::optional<std::size_t> NumberIn(const std::string& text)
{
    std::size_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

/// 0 for none.
std::size_t NumberBehind(const std::string& path, std::string_view prefix)
{
    return StartsWith(path, prefix) ? NumberIn(path.substr(prefix.size())).value_or(0) : 0;
}

/// Extends the envelope's "desc" until the body has the size.
std::string Enlarged(const std::string& body, std::size_t size)
{
    Json envelope = Json::parse(body);
    if (size > body.size()) {
        envelope["desc"] = envelope.at("desc").get<std::string>() + std::string(size - body.size(), 'x');
    }
    return envelope.dump();
}

HttpResponse Replacement(const Fault& fault)
{
    HttpResponse response;
    switch (fault.kind) {
    case Fault::Kind::Status:
        response.status = fault.status;
        response.headers = fault.headers;
        response.body = fault.body;
        break;
    case Fault::Kind::Envelope:
        response.body = Json{{"code", fault.code}, {"desc", fault.desc}}.dump();
        break;
    case Fault::Kind::NotJson:
        response.body = "<html><body>The service is being started.</body></html>";
        break;
    case Fault::Kind::Text:
        response.body = fault.body;
        break;
    case Fault::Kind::CloseBefore:
        response.ending = HttpResponse::Ending::CloseBefore;
        break;
    case Fault::Kind::Reset:
        response.ending = HttpResponse::Ending::Reset;
        break;
    default:
        break;
    }
    return response;
}

bool ModifiesRealReply(Fault::Kind kind)
{
    return kind == Fault::Kind::Delay || kind == Fault::Kind::Cut || kind == Fault::Kind::CloseMiddle ||
           kind == Fault::Kind::Large || kind == Fault::Kind::Slow;
}

void Modify(HttpResponse& response, const Fault& fault)
{
    switch (fault.kind) {
    case Fault::Kind::Cut:
        response.body.resize(response.body.size() / 2);
        break;
    case Fault::Kind::CloseMiddle:
        response.ending = HttpResponse::Ending::CloseMiddle;
        break;
    case Fault::Kind::Large:
        response.body = Enlarged(response.body, fault.size);
        break;
    case Fault::Kind::Slow:
        response.bytesPerSecond = fault.bytesPerSecond;
        break;
    default:
        break;
    }
}

std::optional<int> EnvelopeCodeOf(const HttpResponse& response)
{
    const Json envelope = Json::parse(response.body, nullptr, false);
    return envelope.is_object() && envelope.contains("code") && envelope.at("code").is_number_integer()
               ? std::optional<int>(envelope.at("code"))
               : std::nullopt;
}

std::string Masked(std::string line, const std::string& secret)
{
    for (std::size_t at = line.find(secret); !secret.empty() && at != std::string::npos; at = line.find(secret, at)) {
        line.replace(at, secret.size(), "***");
    }
    return line;
}

}  // namespace

class PlatformEmulator::Private {
public:
    explicit Private(Options options)
        : m_options(std::move(options)), m_platform(Contract::Load(m_options.contract),
                                                    State(LoadSeeds(m_options.seed), m_options.scale), m_options.token),
          m_server(handler(), m_options.readTimeout)
    {}

    void start()
    {
        m_httpPort = m_server.listen(m_options.address, m_options.httpPort);
        m_httpsPort = m_server.listen(m_options.address, m_options.httpsPort, MakeServerTls());
    }

    const Options m_options;
    Platform m_platform;
    Faults m_faults;
    RequestLog m_log;
    std::mutex m_output;
    std::atomic<int> m_httpPort = 0;
    std::atomic<int> m_httpsPort = 0;
    HttpServer m_server;

    std::size_t addFault(Fault fault)
    {
        if (!fault.operation.empty() && !m_platform.knows(fault.operation)) {
            throw std::invalid_argument("operation: unknown '" + fault.operation + "'");
        }
        return m_faults.add(std::move(fault));
    }

private:
    HttpHandler handler()
    {
        return [this](const HttpRequest& request) {
            return StartsWith(OriginForm(request.target), kControlPath) ? control(request) : serve(request);
        };
    }

    HttpReply serve(const HttpRequest& request)
    {
        // Taken before the request is recorded: a test that waits for the record may then add the next fault.
        std::optional<Fault> fault =
            m_faults.take(request.method, OriginForm(request.target), [&] { return m_platform.operationOf(request); });
        const std::size_t number = m_log.add(request);
        if (!fault) {
            return logged(m_platform.answer(request), request, number);
        }
        const bool isSilent = fault->kind == Fault::Kind::Silent;
        if (!isSilent && fault->delay.count() == 0) {
            return logged(answerWith(*fault, request), request, number);
        }
        HttpWait wait;
        if (!isSilent) {
            wait.time = fault->delay;
        }
        wait.then = [this, fault = *std::move(fault), &request, number](bool isGone) {
            return logged(isGone ? closed() : answerWith(fault, request), request, number);
        };
        return wait;
    }

    HttpResponse answerWith(const Fault& fault, const HttpRequest& request)
    {
        if (!ModifiesRealReply(fault.kind)) {
            return Replacement(fault);
        }
        HttpResponse response = m_platform.answer(request);
        Modify(response, fault);
        return response;
    }

    static HttpResponse closed()
    {
        HttpResponse response;
        response.ending = HttpResponse::Ending::CloseBefore;
        return response;
    }

    /// Records and prints the reply to a request.
    HttpResponse logged(HttpResponse response, const HttpRequest& request, std::size_t number)
    {
        const bool answered =
            response.ending != HttpResponse::Ending::CloseBefore && response.ending != HttpResponse::Ending::Reset;
        const std::optional<int> code = EnvelopeCodeOf(response);
        m_log.answered(number, answered ? response.status : 0, code);
        if (m_options.verbose) {
            const std::string line = request.method + " " + request.target + " -> " +
                                     (answered ? std::to_string(response.status) : "no answer") +
                                     (code ? " " + std::to_string(*code) : "") + ", connection " +
                                     std::to_string(request.connection) + "\n";
            const std::lock_guard lock(m_output);
            std::cout << Masked(line, m_options.token) << std::flush;
        }
        return response;
    }

    HttpResponse control(const HttpRequest& request)
    {
        if (!m_options.controlPath) {
            return PlainError(403, "the control path is disabled");
        }
        if (!m_options.controlToken.empty() && !HasToken(request, m_options.controlToken)) {
            return PlainError(401, kWrongToken);
        }
        const std::string path = PathOf(request.target).substr(std::string_view(kControlPath).size());
        const std::map<std::string, std::map<std::string, std::function<HttpResponse()>>> routes = {
            {"v1/faults",
             {{"GET", [this] { return Plain(200, listFaults()); }},
              {"POST", [this, &request] { return addFault(request.body); }},
              {"DELETE", [this] { return done([this] { m_faults.clear(); }); }}}},
            {"v1/requests",
             {{"GET", [this, &request] { return listRequests(request); }},
              {"DELETE", [this] { return done([this] { m_log.clear(); }); }}}},
            {"v1/state",
             {{"GET", [this] { return Plain(200, m_platform.state()); }},
              {"PUT", [this, &request] { return mergeState(request.body); }}}},
            {"v1/reset", {{"POST", [this] { return done([this] { m_platform.reset(); }); }}}},
            {"v1/connections", {{"GET", [this] {
                                     return Plain(200, Json{{"connections", m_server.connections()}});
                                 }}}}};
        if (const std::size_t number = NumberBehind(path, "v1/faults/"); number > 0 && request.method == "DELETE") {
            return m_faults.remove(number) ? done([] {}) : PlainError(404, "no such fault");
        }
        const auto route = routes.find(path);
        if (route == routes.end()) {
            return PlainError(404, "unknown control path");
        }
        const auto action = route->second.find(request.method);
        return action == route->second.end() ? PlainError(405, "method not allowed") : action->second();
    }

    HttpResponse addFault(const std::string& text)
    {
        return withJson(text, [this](const Json& json) {
            const Fault fault = Fault::FromJson(json);
            return Plain(201, Numbered(addFault(fault), fault));
        });
    }

    HttpResponse listRequests(const HttpRequest& request)
    {
        std::size_t after = 0;
        for (const auto& [name, value] : QueryOf(request.target)) {
            const std::optional<std::size_t> number = NumberIn(value);
            if (name != "after" || !number) {
                return PlainError(400, "query '" + name + "': expected after=NUMBER");
            }
            after = *number;
        }
        Json list = Json::array();
        for (const RecordedRequest& recorded : m_log.list(after)) {
            list.push_back(recorded.toJson());
        }
        return Plain(200, list);
    }

    Json listFaults()
    {
        Json list = Json::array();
        for (const auto& [number, fault] : m_faults.list()) {
            list.push_back(Numbered(number, fault));
        }
        return list;
    }

    HttpResponse mergeState(const std::string& text)
    {
        return withJson(text, [this](const Json& json) { return done([&] { m_platform.mergeState(json); }); });
    }

    /// @param action throws std::invalid_argument for JSON that it rejects
    static HttpResponse withJson(const std::string& text, const std::function<HttpResponse(const Json&)>& action)
    {
        const Json json = Json::parse(text, nullptr, false);
        if (json.is_discarded()) {
            return PlainError(400, "body: not JSON");
        }
        try {
            return action(json);
        } catch (const std::invalid_argument& error) {
            return PlainError(400, error.what());
        }
    }

    static HttpResponse done(const std::function<void()>& action)
    {
        action();
        return {204, {}, {}};
    }
};

PlatformEmulator::PlatformEmulator(Options options) : m_private(std::make_unique<Private>(std::move(options))) {}

PlatformEmulator::~PlatformEmulator()
{
    stop();
}

void PlatformEmulator::start()
{
    m_private->start();
}

void PlatformEmulator::stop()
{
    m_private->m_server.stop();
}

int PlatformEmulator::httpPort() const
{
    return m_private->m_httpPort;
}

int PlatformEmulator::httpsPort() const
{
    return m_private->m_httpsPort;
}

std::size_t PlatformEmulator::addFault(Fault fault)
{
    return m_private->addFault(std::move(fault));
}

bool PlatformEmulator::removeFault(std::size_t number)
{
    return m_private->m_faults.remove(number);
}

std::vector<Fault> PlatformEmulator::faults() const
{
    std::vector<Fault> faults;
    for (const auto& [number, fault] : m_private->m_faults.list()) {
        faults.push_back(fault);
    }
    return faults;
}

void PlatformEmulator::clearFaults()
{
    m_private->m_faults.clear();
}

std::vector<RecordedRequest> PlatformEmulator::requests() const
{
    return m_private->m_log.list();
}

void PlatformEmulator::clearRequests()
{
    m_private->m_log.clear();
}

bool PlatformEmulator::waitForRequests(std::size_t count, std::chrono::milliseconds time) const
{
    return m_private->m_log.waitFor(count, time);
}

Json PlatformEmulator::state() const
{
    return m_private->m_platform.state();
}

void PlatformEmulator::setState(Json state)
{
    m_private->m_platform.setState(std::move(state));
}

void PlatformEmulator::mergeState(const Json& patch)
{
    m_private->m_platform.mergeState(patch);
}

void PlatformEmulator::reset()
{
    m_private->m_platform.reset();
}

std::size_t PlatformEmulator::connections() const
{
    return m_private->m_server.connections();
}

}  // namespace emulator
