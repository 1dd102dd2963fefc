#pragma once

#include "Faults.h"
#include "RequestLog.h"
#include "Schema.h"

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

/// The platform server to develop and test against.
namespace emulator {

/// The token that an emulator accepts unless told otherwise.
constexpr const char* kDefaultToken = "emulator-token";

/// Where contract and seed data are: share/apimodule in the nearest folder above this library that has it, else above
/// the running program.
std::filesystem::path DefaultShareFolder();

struct Options {
    std::string address = "127.0.0.1";
    int httpPort = 0;   ///< 0: any free one
    int httpsPort = 0;  ///< 0: any free one
    std::string token = kDefaultToken;
    std::filesystem::path contract = DefaultShareFolder() / "contract";
    std::filesystem::path seed = DefaultShareFolder() / "seed";
    int scale = 1;            ///< multiplies the seeded lists
    bool controlPath = true;  ///< answer /emulator/v1/...
    bool verbose = false;     ///< a line for each request on standard output, without the token
};

/// Serves the contract with state over HTTP and HTTPS. All members may be called from any thread.
///
/// @code
/// emulator::PlatformEmulator platform;
/// platform.start();
/// platform.addFault(emulator::Fault{"/brms/api/v1.1/config/time-sync", emulator::Fault::Kind::Silent});
/// call("127.0.0.1", platform.httpsPort());
/// platform.requests().back().header("X-Subject-Token");
/// @endcode
class PlatformEmulator {
public:
    /// Reads contract and seeds; serves nothing yet.
    /// @throws std::exception when one of them cannot be used.
    explicit PlatformEmulator(Options options = {});
    /// Stops.
    ~PlatformEmulator();
    PlatformEmulator(const PlatformEmulator&) = delete;
    PlatformEmulator& operator=(const PlatformEmulator&) = delete;
    PlatformEmulator(PlatformEmulator&&) = delete;
    PlatformEmulator& operator=(PlatformEmulator&&) = delete;

    /// Listens from here on. Started once.
    /// @throws std::runtime_error when a port cannot be bound.
    void start();

    /// Closes all connections, hanging requests included, and returns when all is at rest.
    void stop();

    [[nodiscard]] int httpPort() const;
    [[nodiscard]] int httpsPort() const;

    void addFault(Fault fault);
    [[nodiscard]] std::vector<Fault> faults() const;
    void clearFaults();

    [[nodiscard]] std::vector<RecordedRequest> requests() const;
    void clearRequests();
    /// Waits until so many requests were recorded (since the last clearRequests); false when the time was over first.
    [[nodiscard]] bool waitForRequests(std::size_t count, std::chrono::milliseconds time) const;

    /// The whole state: the seeds by family, as the calls have changed them.
    [[nodiscard]] Json state() const;
    /// Replaces the state by this one, to give a test the data it needs.
    void setState(Json state);
    /// Back to the seeds; faults and recorded requests stay.
    void reset();

    /// TCP connections accepted so far, on both ports.
    [[nodiscard]] std::size_t connections() const;

private:
    class Private;

    std::unique_ptr<Private> m_private;
};

}  // namespace emulator
