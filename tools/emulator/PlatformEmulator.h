#pragma once

#include "Fault.h"
#include "Json.h"
#include "RecordedRequest.h"

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

/// A platform server for development and tests.
namespace emulator {

/// The token that an emulator accepts by default.
constexpr const char* kDefaultToken = "emulator-token";

/// Finds the folder of the contract and the seed data.
/// @return share/apimodule in the nearest parent folder of this library that has it, or else of the running program
std::filesystem::path DefaultShareFolder();

/// Options of an emulator.
struct Options {
    std::string address = "127.0.0.1";                                   ///< address to listen on
    int httpPort = 0;                                                    ///< 0: any free port
    int httpsPort = 0;                                                   ///< 0: any free port
    std::string token = kDefaultToken;                                   ///< token that clients must send
    std::filesystem::path contract = DefaultShareFolder() / "contract";  ///< folder of the contract
    std::filesystem::path seed = DefaultShareFolder() / "seed";          ///< folder of the seed data
    int scale = 1;                                                       ///< factor for the length of the seeded lists
    bool controlPath = true;                                             ///< whether to serve /emulator/v1/...
    std::string controlToken;  ///< token for the control path; empty: none required
    bool verbose = false;      ///< prints a line for each request, with the token masked
    /// Time-out of an idle connection, and of a request from its first byte to its last.
    std::chrono::milliseconds readTimeout = std::chrono::seconds(30);
};

/// A stateful server of the contract over HTTP and HTTPS. All members may be called from any thread.
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
    /// Reads contract and seeds, without serving yet.
    /// @param options the options
    /// @throws std::exception when contract or seeds are invalid.
    explicit PlatformEmulator(Options options = {});
    /// Stops the emulator.
    ~PlatformEmulator();
    PlatformEmulator(const PlatformEmulator&) = delete;
    PlatformEmulator& operator=(const PlatformEmulator&) = delete;
    PlatformEmulator(PlatformEmulator&&) = delete;
    PlatformEmulator& operator=(PlatformEmulator&&) = delete;

    /// Starts listening. Call it once.
    /// @throws std::runtime_error when a port cannot be bound.
    void start();

    /// Closes all connections, including those with a waiting request, and returns when all threads have ended.
    void stop();

    /// @return the port for HTTP, once the emulator listens
    [[nodiscard]] int httpPort() const;
    /// @return the port for HTTPS, once the emulator listens
    [[nodiscard]] int httpsPort() const;

    /// Adds a fault. If several match a request, the oldest applies.
    /// @param fault the fault
    /// @return the number of the fault, for removeFault()
    /// @throws std::invalid_argument for an operation that the contract does not have.
    std::size_t addFault(Fault fault);
    /// Removes a fault.
    /// @param number as addFault() returned it
    /// @return false when the fault is not active
    bool removeFault(std::size_t number);
    /// @return the active faults, with their remaining times
    [[nodiscard]] std::vector<Fault> faults() const;
    /// Removes all faults.
    void clearFaults();

    /// @return the recorded requests, oldest first: at most the last 10,000, with at most 64 MiB of bodies
    [[nodiscard]] std::vector<RecordedRequest> requests() const;
    /// Removes the recorded requests.
    void clearRequests();
    /// Waits until @p count requests have been recorded since the last clearRequests().
    /// @param count number of requests
    /// @param time time-out
    /// @return false on time-out
    [[nodiscard]] bool waitForRequests(std::size_t count, std::chrono::milliseconds time) const;

    /// @return the whole state by family: the seeds with all changes made by calls
    [[nodiscard]] Json state() const;
    /// Replaces the state, for a test that needs certain data.
    /// @param state an object with a member for each family
    void setState(Json state);
    /// Changes parts of the state.
    /// @param patch a JSON merge patch (RFC 7396), which replaces lists as a whole and removes members with null
    /// @throws std::invalid_argument when the patch is not an object.
    void mergeState(const Json& patch);
    /// Restores the seeds. Faults and recorded requests remain.
    void reset();

    /// @return the number of TCP connections accepted so far, on both ports
    [[nodiscard]] std::size_t connections() const;

private:
    class Private;

    std::unique_ptr<Private> m_private;
};

}  // namespace emulator
