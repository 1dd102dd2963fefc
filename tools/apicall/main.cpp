#include "Arguments.h"
#include "BufferedStandardError.h"
#include "ExchangeText.h"
#include "Help.h"
#include "Options.h"
#include "Texts.h"

#include <catalogue/Merge.h>
#include <catalogue/OneServer.h>
#include <catalogue/Run.h>
#include <translations/Application.h>

#include <APIModule.h>
#include <ErrorLexicon/ErrorLexicon.h>
#include <PlatformEmulator.h>

#include <chrono>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace {

using apicall::Filled;
using apicall::Texts;
using apicall::WrongUsage;
using catalogue::Outcome;
using nlohmann::json;

constexpr int kSuccess = 0;
constexpr int kFailedCall = 1;
constexpr int kWrongUsage = 2;

const catalogue::Call& NamedCall(const std::string& name)
{
    const catalogue::Call* call = catalogue::FindCall(name);
    if (call != nullptr) {
        return *call;
    }
    std::vector<std::string_view> names;
    for (const catalogue::Call& known : catalogue::Calls()) {
        const std::string_view full = known.name;
        if (full.substr(known.family.size() + 1) == name) {
            names = {full};
            break;
        }
        names.push_back(full);
    }
    const std::string closest = names.size() == 1 ? std::string(names.front()) : catalogue::ClosestName(name, names);
    if (!closest.empty()) {
        throw WrongUsage(Filled(Texts::tr("unknown call \"%1\"; did you mean \"%2\"?"), name, closest));
    }
    throw WrongUsage(Filled(Texts::tr("unknown call \"%1\"; run 'apicall --list' for all calls"), name));
}

/// The server's text and the unreadable key of a failed call, one per line. Control characters are escaped, and the
/// session token is masked.
std::string DetailsOf(const Outcome& outcome, const std::string& token)
{
    const auto quoted = [&token](QString text) {
        if (!token.empty()) {
            text.replace(QString::fromStdString(token), QStringLiteral("******"));
        }
        return nlohmann::json(text.toStdString()).dump();
    };
    std::string details;
    if (!outcome.ServerText().isEmpty()) {
        //: %1 is the server's text in quotation marks
        details += "apicall: " + Filled(Texts::tr("the server reports %1"), quoted(outcome.ServerText())) + "\n";
    }
    if (!outcome.UnreadableKey().isEmpty()) {
        //: %1 is a key of a JSON object in quotation marks
        details +=
            "apicall: " + Filled(Texts::tr("the reply has no valid value for %1"), quoted(outcome.UnreadableKey())) +
            "\n";
    }
    return details;
}

/// A hint for a handshake failure that the user can fix. "wrong version number" is OpenSSL's error when the server
/// replies with plain HTTP.
std::string HandshakeHint(const QString& networkError)
{
    return networkError.contains(QLatin1String("wrong version number"))
               ? "apicall: " +
                     Filled(Texts::tr("the server does not use TLS on this port; is it the port for http://?")) + "\n"
               : std::string();
}

std::string HelpFor(const std::string& name)
{
    const catalogue::Call& call = NamedCall(name);
    try {
        const auto contract = emulator::Contract::Load(emulator::DefaultShareFolder() / "contract");
        return apicall::HelpFor(call, &contract.operation(call.name));
    } catch (const emulator::ContractError&) {
        return apicall::HelpFor(call, nullptr);
    }
}

/// Initialises the library for one server and uninitialises it at the end.
class Session {
public:
    explicit Session(const apicall::Options& options) : m_options(options)
    {
        if (options.server.empty()) {
            throw WrongUsage(Filled(Texts::tr("--server is missing")));
        }
        const apicall::Server server = apicall::ServerOf(options.server);
        const APIModule::ServerTrust trust = apicall::TrustOf(options);
        const bool restricted = !trust.pins.isEmpty() || !trust.authorities.isEmpty();
        if (restricted && !server.https) {
            throw WrongUsage(Filled(Texts::tr("--pin and --ca require an https:// server")));
        }
        //: The code of this language, for the texts of error codes
        ErrorLexicon::SetLanguage(options.language.empty() ? Filled(Texts::tr("en")) : options.language);
        m_users.Use(server.host, server.port, options.token);
        if (options.quiet) {
            m_standardError.emplace();
        }
        m_library.SetHttpsMode(server.https ? 1 : 0);
        m_library.SetLanguage(options.language.empty() ? "en" : options.language);
        m_library.SetServerTrust(trust);
        m_library.Init(&m_users);
    }

    ~Session() { m_library.UnInit(); }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// Runs the call and reports a failure.
    Outcome Run(const catalogue::Call& call, const json& arguments)
    {
        Outcome outcome = catalogue::Run(call, catalogue::ReadArguments(call, arguments), Settings());
        if (!outcome) {
            WriteLogLines();
            //: %1 is the call, %2 a code, %3 its text
            std::cerr << "apicall: "
                      << Filled(Texts::tr("%1 failed with %2: %3"), call.name, std::to_string(outcome.Code()),
                                outcome.Text().toStdString())
                      << '\n'
                      << DetailsOf(outcome, m_options.token) << HandshakeHint(m_networkError) << std::flush;
        }
        return outcome;
    }

    /// The request as readable text; empty when it cannot be built, for which a log line gives the reason.
    std::string Preview(const catalogue::Call& call, const json& arguments)
    {
        const auto preview = catalogue::Preview(call, catalogue::ReadArguments(call, arguments), Settings());
        if (!preview) {
            WriteLogLines();
        }
        return preview ? apicall::RequestText(*preview, m_options.token) : std::string();
    }

private:
    void WriteLogLines()
    {
        if (m_standardError) {
            m_standardError->Release();
        }
    }

    [[nodiscard]] catalogue::RunSettings Settings()
    {
        catalogue::RunSettings settings;
        settings.serverId = m_options.serverId;
        if (m_options.timeoutSeconds) {
            settings.timeout = std::chrono::seconds(*m_options.timeoutSeconds);
        }
        settings.observer = [this](const APIModule::ObservedExchange& exchange) {
            m_networkError = exchange.error;
            if (m_options.verbose) {
                Show(exchange);
            }
        };
        return settings;
    }

    void Show(const APIModule::ObservedExchange& exchange)
    {
        const std::string text = apicall::ExchangeText(exchange, m_options.token);
        if (m_standardError) {
            m_standardError->WriteThrough(text);
        } else {
            std::cerr << text << std::flush;
        }
    }

    const apicall::Options& m_options;
    catalogue::OneServer m_users;
    APIModule::CAPIModule& m_library = APIModule::CAPIModule::GetInstance();
    std::optional<apicall::BufferedStandardError> m_standardError;
    QString m_networkError;
};

/// The read that supplies the record for a merged write.
struct FirstRead {
    catalogue::MatchingRead read;
    json arguments;

    FirstRead(const catalogue::Call& write, const json& given) : read(ReadFor(write))
    {
        arguments = catalogue::ArgumentsOfRead(read, write, given);
        catalogue::ReadArguments(*read.call, arguments);
    }

private:
    static catalogue::MatchingRead ReadFor(const catalogue::Call& write)
    {
        const auto found = catalogue::FindMatchingRead(write);
        if (!found) {
            //: %1 is a call
            throw WrongUsage(Filled(Texts::tr("--merge: %1 has no matching read call"), write.name));
        }
        return *found;
    }
};

int Print(const std::string& text)
{
    std::cout << text << std::flush;
    if (!std::cout) {
        std::cerr << "apicall: " << Filled(Texts::tr("cannot write the result")) << std::endl;
        return kFailedCall;
    }
    return kSuccess;
}

int RunCall(const apicall::Options& options)
{
    const catalogue::Call& call = NamedCall(options.call);
    const apicall::GivenArguments given(call, options.arguments);
    json arguments = given.Object();
    if (!arguments.is_object()) {
        catalogue::ReadArguments(call, arguments);  // throws the error for the user
    }
    // Report wrong arguments before a missing or invalid server.
    std::optional<FirstRead> first;
    if (options.merge) {
        first.emplace(call, arguments);
    } else {
        catalogue::ReadArguments(call, arguments);
    }
    Session session(options);
    if (first) {
        const Outcome outcome = session.Run(*first->read.call, first->arguments);
        if (!outcome) {
            return kFailedCall;
        }
        arguments[std::string(first->read.argument->name)] =
            catalogue::PresentValue(first->read, first->arguments, outcome.record);
        given.MergeInto(arguments);
    }
    if (options.dryRun) {
        const std::string request = session.Preview(call, arguments);
        return request.empty() ? kFailedCall : Print(request);
    }
    const Outcome outcome = session.Run(call, arguments);
    return outcome ? Print(outcome.record.dump(4, ' ', false, json::error_handler_t::replace) + '\n') : kFailedCall;
}

/// Names, one per line, for scripts and shell completion.
std::string Names(const std::string& call)
{
    std::string names;
    if (call.empty()) {
        for (const catalogue::Call& known : catalogue::Calls()) {
            names += known.name + '\n';
        }
    } else {
        for (const catalogue::Argument& argument : NamedCall(call).arguments) {
            names += std::string(argument.name) + '\n';
        }
    }
    return names;
}

int Main(int argc, char** argv)
{
    const apicall::Options options = apicall::ReadOptions(argc, argv);
    if (options.version) {
        std::cout << "apicall " << APICALL_VERSION << '\n';
    } else if (options.list) {
        std::cout << apicall::ListOfCalls();
    } else if (options.names) {
        std::cout << Names(options.call);
    } else if (options.help) {
        std::cout << (options.call.empty() ? options.usage : HelpFor(options.call));
    } else if (options.call.empty()) {
        throw WrongUsage(Filled(Texts::tr("no call given; run 'apicall --help' for usage")));
    } else {
        return RunCall(options);
    }
    return kSuccess;
}

}  // namespace

int main(int argc, char** argv)
{
    const translation::Application application(argc, argv);
    try {
        return Main(argc, argv);
    } catch (const WrongUsage& error) {
        std::cerr << "apicall: " << error.what() << std::endl;
    } catch (const catalogue::Mismatch& error) {
        std::cerr << "apicall: " << error.what() << std::endl;
    }
    return kWrongUsage;
}
