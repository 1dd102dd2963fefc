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

constexpr int kUsageError = 2;
constexpr int kHighestPort = 65535;
constexpr int kLargestScale = 10000;
constexpr int kLongestReadSeconds = 24 * 60 * 60;

/// Blocks SIGTERM and SIGINT in all threads; the main thread waits for them.
sigset_t BlockTerminationSignals()
{
    sigset_t signals{};
    sigemptyset(&signals);
    sigaddset(&signals, SIGTERM);
    sigaddset(&signals, SIGINT);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    return signals;
}

/// Raises the limit of open files to the maximum for this user; the default of a shell is too low for many connections.
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
    const sigset_t signals = BlockTerminationSignals();
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

/// Reads the command line. Returns the exit status if the program ends here, as after --help.
std::optional<int> Read(int argc, char** argv, emulator::Options& options)
{
    CLI::App app{
        Filled(Texts::tr("platform-emulator: a stateful platform server for development and tests. It serves the "
                         "contract over both HTTP and HTTPS and prints each address when it starts to listen.")),
        "platform-emulator"};
    translation::TranslateHelp(app);
    app.set_help_flag("-h,--help", Filled(Texts::tr("Print this help")));
    app.set_version_flag("--version", std::string("platform-emulator ") + EMULATOR_VERSION,
                         Filled(Texts::tr("Print the version")));
    app.add_option("--address", options.address, Filled(Texts::tr("Address to listen on")))->capture_default_str();
    app.add_option("--http-port", options.httpPort, Filled(Texts::tr("Port for HTTP; 0 selects a free port")))
        ->check(translation::InRange(0, kHighestPort))
        ->capture_default_str();
    app.add_option("--https-port", options.httpsPort, Filled(Texts::tr("Port for HTTPS; 0 selects a free port")))
        ->check(translation::InRange(0, kHighestPort))
        ->capture_default_str();
    const auto isNotEmpty = [](const std::string& token) {
        return token.empty() ? Filled(Texts::tr("must not be empty")) : std::string();
    };
    app.add_option("--token", options.token,
                   Filled(Texts::tr("Token that clients must send as X-Subject-Token (default: see docs/emulator.md); "
                                    "pass it in the environment to keep it out of the process list")))
        ->check(isNotEmpty)
        ->envname("PLATFORM_EMULATOR_TOKEN");
    app.add_option("--control-token", options.controlToken,
                   Filled(Texts::tr("Token that the control path requires as X-Subject-Token (default: none)")))
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
    app.add_option("--scale", options.scale, Filled(Texts::tr("Factor for the length of the seeded lists")))
        ->check(translation::InRange(1, kLargestScale))
        ->capture_default_str();
    app.add_option_function<int>(
           "--read-timeout", [&options](int seconds) { options.readTimeout = std::chrono::seconds(seconds); },
           Filled(Texts::tr("Seconds before an idle connection or an incomplete request is closed")))
        ->check(translation::InRange(1, kLongestReadSeconds))
        ->default_str(std::to_string(std::chrono::duration_cast<std::chrono::seconds>(options.readTimeout).count()));
    app.add_flag("!--no-control", options.controlPath, Filled(Texts::tr("Disable the control path /emulator/v1/")));
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
        return kUsageError;
    }
}
