#include "PlatformEmulator.h"

#include <CLI/CLI.hpp>
#include <pthread.h>

#include <csignal>
#include <exception>
#include <iostream>

namespace {

constexpr int kWrongUse = 2;
constexpr int kHighestPort = 65535;
constexpr int kLargestScale = 10000;

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

void PrintPort(const char* scheme, const std::string& address, int port)
{
    const bool isIpv6 = address.find(':') != std::string::npos;
    std::cout << scheme << ' ' << (isIpv6 ? "[" + address + "]" : address) << ':' << port << std::endl;
}

int Run(const emulator::Options& options)
{
    const sigset_t signals = HoldBackEndSignals();
    emulator::PlatformEmulator platform(options);
    platform.start();
    PrintPort("http", options.address, platform.httpPort());
    PrintPort("https", options.address, platform.httpsPort());
    int received = 0;
    sigwait(&signals, &received);
    platform.stop();
    return 0;
}

}  // namespace

int main(int argc, char** argv)
{
    emulator::Options options;
    CLI::App app{"platform-emulator: a platform server to develop and test against. It answers the services of the "
                 "contract with state, over HTTP and HTTPS at once, and prints each address when it listens.",
                 "platform-emulator"};
    app.set_version_flag("--version", std::string("platform-emulator ") + EMULATOR_VERSION);
    app.add_option("--address", options.address, "Address to listen on")->capture_default_str();
    app.add_option("--http-port", options.httpPort, "Port for HTTP, 0 for any free one")
        ->check(CLI::Range(0, kHighestPort))
        ->capture_default_str();
    app.add_option("--https-port", options.httpsPort, "Port for HTTPS, 0 for any free one")
        ->check(CLI::Range(0, kHighestPort))
        ->capture_default_str();
    app.add_option("--token", options.token,
                   "Token that callers must send as X-Subject-Token (default: see docs/emulator.md)")
        ->check([](const std::string& token) { return token.empty() ? "is empty" : ""; });
    app.add_option("--contract", options.contract, "Folder of the contract (default: ../share/apimodule/contract)")
        ->check(CLI::ExistingDirectory);
    app.add_option("--seed", options.seed, "Folder of the seed data (default: ../share/apimodule/seed)")
        ->check(CLI::ExistingDirectory);
    app.add_option("--scale", options.scale, "Makes the seeded lists so many times as long")
        ->check(CLI::Range(1, kLargestScale))
        ->capture_default_str();
    app.add_flag("!--no-control", options.controlPath, "Refuse the control path /emulator/v1/");
    app.add_flag("--verbose", options.verbose, "Print a line for each request");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : kWrongUse;
    }
    try {
        return Run(options);
    } catch (const std::exception& error) {
        std::cerr << "platform-emulator: " << error.what() << std::endl;
        return kWrongUse;
    }
}
