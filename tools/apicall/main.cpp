#include "Arguments.h"
#include "Help.h"
#include "Options.h"
#include "Texts.h"
#include "Trust.h"

#include <catalogue/OneServer.h>
#include <catalogue/Run.h>
#include <translations/Application.h>

#include <APIModule.h>
#include <ErrorLexicon/ErrorLexicon.h>

#include <chrono>
#include <iostream>

namespace {

using apicall::Filled;
using apicall::Texts;
using apicall::WrongUsage;
using catalogue::Outcome;

constexpr int kSuccess = 0;
constexpr int kFailedCall = 1;
constexpr int kWrongUsage = 2;

const catalogue::Call& NamedCall(const std::string& name)
{
    const catalogue::Call* call = catalogue::FindCall(name);
    if (call == nullptr) {
        throw WrongUsage(Filled(Texts::tr("there is no call \"%1\"; apicall --list names them"), name));
    }
    return *call;
}

/// What the server or its reply adds to the failure. Characters that would steer a terminal are escaped, and the token
/// of the session is masked.
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
        //: %1 is the server's own text in quotation marks
        details += "apicall: " + Filled(Texts::tr("the server says %1"), quoted(outcome.ServerText())) + "\n";
    }
    if (!outcome.UnreadableKey().isEmpty()) {
        //: %1 is a key of a JSON object in quotation marks
        details +=
            "apicall: " + Filled(Texts::tr("the reply holds no readable %1"), quoted(outcome.UnreadableKey())) + "\n";
    }
    return details;
}

catalogue::RunSettings SettingsOf(const apicall::Options& options)
{
    catalogue::RunSettings settings;
    settings.serverId = options.serverId;
    if (options.timeoutSeconds) {
        settings.timeout = std::chrono::seconds(*options.timeoutSeconds);
    }
    return settings;
}

Outcome Run(const catalogue::Call& call, const std::vector<catalogue::Value>& arguments,
            const apicall::Options& options, const apicall::Server& server, const APIModule::ServerTrust& trust)
{
    //: The code of this language, for the texts of error codes
    ErrorLexicon::SetLanguage(options.language.empty() ? Filled(Texts::tr("en")) : options.language);
    catalogue::OneServer users;
    users.Use(server.host, server.port, options.token);
    auto& library = APIModule::CAPIModule::GetInstance();
    library.SetHttpsMode(server.https ? 1 : 0);
    library.SetLanguage(options.language.empty() ? "en" : options.language);
    library.SetServerTrust(trust);
    library.Init(&users);
    Outcome outcome = catalogue::Run(call, arguments, SettingsOf(options));
    library.UnInit();
    return outcome;
}

int RunCall(const apicall::Options& options)
{
    const catalogue::Call& call = NamedCall(options.call);
    const auto arguments = apicall::ReadArguments(call, options.arguments);
    if (options.server.empty()) {
        throw WrongUsage(Filled(Texts::tr("--server is missing")));
    }
    const apicall::Server server = apicall::ServerOf(options.server);
    const APIModule::ServerTrust trust = apicall::TrustOf(options);
    const bool restricted = !trust.pins.isEmpty() || !trust.authorities.isEmpty();
    if (restricted && !server.https) {
        throw WrongUsage(Filled(Texts::tr("--pin and --ca need a server with https://")));
    }
    const Outcome outcome = Run(call, arguments, options, server, trust);
    if (!outcome) {
        //: %1 is the call, %2 a code, %3 its text
        std::cerr << "apicall: "
                  << Filled(Texts::tr("%1 failed with %2: %3"), call.name, std::to_string(outcome.Code()),
                            outcome.Text().toStdString())
                  << '\n'
                  << DetailsOf(outcome, options.token) << std::flush;
        return kFailedCall;
    }
    std::cout << outcome.record.dump(4, ' ', false, nlohmann::json::error_handler_t::replace) << std::endl;
    if (!std::cout) {
        std::cerr << "apicall: " << Filled(Texts::tr("the result cannot be written")) << std::endl;
        return kFailedCall;
    }
    return kSuccess;
}

int Main(int argc, char** argv)
{
    const apicall::Options options = apicall::ReadOptions(argc, argv);
    if (options.version) {
        std::cout << "apicall " << APICALL_VERSION << '\n';
    } else if (options.list) {
        std::cout << apicall::ListOfCalls();
    } else if (options.help) {
        std::cout << (options.call.empty() ? options.usage : apicall::HelpFor(NamedCall(options.call)));
    } else if (options.call.empty()) {
        throw WrongUsage(Filled(Texts::tr("no call is named; apicall --help tells how it is used")));
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
