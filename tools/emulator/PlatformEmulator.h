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

/// The platform server to develop and test against.
namespace emulator {

/// The token that an emulator accepts unless told otherwise.
constexpr const char* kDefaultToken = "emulator-token";

/// Where contract and seed data are.
/// @return share/apimodule in the nearest folder above this library that has it, else above the running program
std::filesystem::path DefaultShareFolder();

/// How an emulator runs.
struct Options {
    std::string address = "127.0.0.1";                                   ///< listened on
    int httpPort = 0;                                                    ///< 0: any free one
    int httpsPort = 0;                                                   ///< 0: any free one
    std::string token = kDefaultToken;                                   ///< that callers must send
    std::filesystem::path contract = DefaultShareFolder() / "contract";  ///< folder of the contract
    std::filesystem::path seed = DefaultShareFolder() / "seed";          ///< folder of the seed data
    int scale = 1;                                                       ///< multiplies the seeded lists
    bool controlPath = true;                                             ///< answer /emulator/v1/...
    std::string controlToken;                                            ///< asked for there; empty: none is
    bool verbose = false;  ///< a line for each request on standard output, without the token
    /// How long a connection may be idle; a request that has begun has as long to be there whole.
    std::chrono::milliseconds readTimeout = std::chrono::seconds(30);
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
    /// @param options how it is to run
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

    /// @return the port that HTTP is spoken on, once it listens
    [[nodiscard]] int httpPort() const;
    /// @return the port that HTTPS is spoken on, once it listens
    [[nodiscard]] int httpsPort() const;

    /// Switches a fault on. Of several that fit a request the oldest is taken.
    /// @param fault the fault
    void addFault(Fault fault);
    /// @return the faults that are switched on, with what is left of their times
    [[nodiscard]] std::vector<Fault> faults() const;
    /// Switches all faults off.
    void clearFaults();

    /// @return the recorded requests, the oldest first: the latest 10,000, and 64 MiB of bodies at most
    [[nodiscard]] std::vector<RecordedRequest> requests() const;
    /// Forgets the recorded requests.
    void clearRequests();
    /// Waits until so many requests were recorded since the last clearRequests().
    /// @param count how many
    /// @param time longest wait
    /// @return false when the time was over first
    [[nodiscard]] bool waitForRequests(std::size_t count, std::chrono::milliseconds time) const;

    /// @return the whole state: the seeds by family, as the calls have changed them
    [[nodiscard]] Json state() const;
    /// Replaces the state, to give a test the data it needs.
    /// @param state a member for each family
    void setState(Json state);
    /// Changes parts of the state.
    /// @param patch what changes, as a JSON merge patch (RFC 7396): a list is replaced whole, null removes a member
    /// @throws std::invalid_argument when the patch is no object.
    void mergeState(const Json& patch);
    /// Back to the seeds; faults and recorded requests stay.
    void reset();

    /// @return how many TCP connections were accepted so far, on both ports
    [[nodiscard]] std::size_t connections() const;

private:
    class Private;

    std::unique_ptr<Private> m_private;
};

}  // namespace emulator
