#include "HttpServer.h"
#include "PlatformEmulator.h"
#include "Texts.h"

#include <translations/Application.h>
#include <translations/CommandLine.h>

#include <pthread.h>
#include <sys/resource.h>

#include <chrono>
#include <csignal>
#include <exception>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <string>

namespace {

using emulator::Filled;
using emulator::Texts;

constexpr int kWrongUse = 2;
constexpr int kHighestPort = 65535;
constexpr int kLargestScale = 10000;
constexpr int kLongestReadSeconds = 24 * 60 * 60;

/// The signals that end the program, held back in all threads and waited for in the first.
sigset_t HoldBackEndSignals()
{
    sigset_t signals{};
    sigemptyset(&signals);
    sigaddset(&signals, SIGTERM);
    sigaddset(&signals, SIGINT);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    return signals;
}

/// As many connections as the system lets this user have, not the few that a shell starts with.
void AllowManyConnections()
{
    rlimit files{};
    if (::getrlimit(RLIMIT_NOFILE, &files) == 0) {
        files.rlim_cur = files.rlim_max;
        ::setrlimit(RLIMIT_NOFILE, &files);
    }
}

void PrintPort(const char* scheme, const std::string& address, int port)
{
    std::cout << scheme << ' ' << emulator::ShownAddress(address, port) << std::endl;
}

int Run(const emulator::Options& options)
{
    const sigset_t signals = HoldBackEndSignals();
    AllowManyConnections();
    emulator::PlatformEmulator platform(options);
    platform.start();
    PrintPort("http", options.address, platform.httpPort());
    PrintPort("https", options.address, platform.httpsPort());
    int received = 0;
    sigwait(&signals, &received);
    platform.stop();
    return 0;
}

/// The exit status of a command line that ends the program, none for one that starts it.
std::optional<int> Read(int argc, char** argv, emulator::Options& options)
{
    CLI::App app{Filled(Texts::tr("platform-emulator: a platform server to develop and test against. It answers the "
                                  "services of the contract with state, over HTTP and HTTPS at once, and prints each "
                                  "address when it listens.")),
                 "platform-emulator"};
    translation::TranslateHelp(app);
    app.set_help_flag("-h,--help", Filled(Texts::tr("Print this help")));
    app.set_version_flag("--version", std::string("platform-emulator ") + EMULATOR_VERSION,
                         Filled(Texts::tr("Print the version")));
    app.add_option("--address", options.address, Filled(Texts::tr("Address to listen on")))->capture_default_str();
    app.add_option("--http-port", options.httpPort, Filled(Texts::tr("Port for HTTP, 0 for any free one")))
        ->check(translation::InRange(0, kHighestPort))
        ->capture_default_str();
    app.add_option("--https-port", options.httpsPort, Filled(Texts::tr("Port for HTTPS, 0 for any free one")))
        ->check(translation::InRange(0, kHighestPort))
        ->capture_default_str();
    const auto isNotEmpty = [](const std::string& token) {
        return token.empty() ? Filled(Texts::tr("is empty")) : std::string();
    };
    app.add_option("--token", options.token,
                   Filled(Texts::tr("Token that callers must send as X-Subject-Token (default: see docs/emulator.md); "
                                    "the environment keeps it out of the process list")))
        ->check(isNotEmpty)
        ->envname("PLATFORM_EMULATOR_TOKEN");
    app.add_option("--control-token", options.controlToken,
                   Filled(Texts::tr("Token that the control path asks for as X-Subject-Token (default: none)")))
        ->check(isNotEmpty)
        ->envname("PLATFORM_EMULATOR_CONTROL_TOKEN");
    //: Stands for the value of --contract and of --seed
    const std::string folder = Filled(Texts::tr("DIR"));
    app.add_option("--contract", options.contract,
                   Filled(Texts::tr("Folder of the contract (default: ../share/apimodule/contract)")))
        ->check(translation::ExistingFolder())
        ->type_name(folder);
    app.add_option("--seed", options.seed,
                   Filled(Texts::tr("Folder of the seed data (default: ../share/apimodule/seed)")))
        ->check(translation::ExistingFolder())
        ->type_name(folder);
    app.add_option("--scale", options.scale, Filled(Texts::tr("Makes the seeded lists so many times as long")))
        ->check(translation::InRange(1, kLargestScale))
        ->capture_default_str();
    app.add_option_function<int>(
           "--read-timeout", [&options](int seconds) { options.readTimeout = std::chrono::seconds(seconds); },
           Filled(Texts::tr("Seconds after which an idle connection, or one whose request does not end, is closed")))
        ->check(translation::InRange(1, kLongestReadSeconds))
        ->default_str(std::to_string(std::chrono::duration_cast<std::chrono::seconds>(options.readTimeout).count()));
    app.add_flag("!--no-control", options.controlPath, Filled(Texts::tr("Refuse the control path /emulator/v1/")));
    app.add_flag("--verbose", options.verbose, Filled(Texts::tr("Print a line for each request")));
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& success) {
        return app.exit(success);
    } catch (const CLI::ParseError& error) {
        throw std::invalid_argument(translation::Explain(app, error));
    }
    return std::nullopt;
}

}  // namespace

int main(int argc, char** argv)
{
    const translation::Application application(argc, argv);
    try {
        emulator::Options options;
        const std::optional<int> ended = Read(argc, argv, options);
        return ended ? *ended : Run(options);
    } catch (const std::exception& error) {
        std::cerr << "platform-emulator: " << error.what() << std::endl;
        return kWrongUse;
    }
}
