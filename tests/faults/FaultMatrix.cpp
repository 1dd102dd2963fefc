#include "FaultMatrix.h"

namespace testing_support {

using APIModule::CAPIModule;

namespace {

UserManager::Server AddressOf(const RawServer& server)
{
    UserManager::Server address;
    address.port = server.Port();
    return address;
}

}  // namespace

std::function<FaultSetup(RawServer::Scheme)> RepliesWith(const RawReply& reply)
{
    return [reply](RawServer::Scheme scheme) {
        const auto respond = [reply](const RawRequest& request) {
            return request.target == "/path" ? reply : SuccessReply();
        };
        auto server = std::make_shared<RawServer>(respond, scheme);
        return FaultSetup{AddressOf(*server), AddressOf(*server), {server}, nullptr};
    };
}

FaultSetup BesideHealthy(RawServer::Scheme scheme, int nFaultyPort)
{
    auto healthy = std::make_shared<RawServer>([](const RawRequest&) { return SuccessReply(); }, scheme);
    UserManager::Server faulty;
    faulty.port = nFaultyPort;
    return {faulty, AddressOf(*healthy), {healthy}, nullptr};
}

std::vector<FaultCase> Matrix(const std::vector<Fault>& faults)
{
    std::vector<FaultCase> cases;
    for (const Fault& fault : faults) {
        for (const CallMode& mode : AllCallModes(fault.schemes)) {
            cases.push_back({fault.name + ('_' + NameOf(mode)), fault, mode});
        }
    }
    return cases;
}

void FaultMatrix::Use(const UserManager::Server& server, RawServer::Scheme scheme)
{
    users.servers[1] = server;
    CAPIModule::GetInstance().SetHttpsMode(scheme == RawServer::Https ? 1 : 0);
}

TEST_P(FaultMatrix, ReturnsExpectedOutcomeAndLeaksNothing)
{
    const auto& [name, fault, mode] = GetParam();
    WarmUp();
    const Census beforeSetup = Census::Now();
    {
        const FaultSetup setup = fault.open(mode.scheme);
        if (setup.missing) {
            GTEST_SKIP() << setup.missing;
        }
        if (setup.keepsConnection) {
            Use(setup.faulty, mode.scheme);
            ExpectSuccess(mode);
        }
        Use(setup.healthy, mode.scheme);
        ExpectSuccess(mode);
        const Census before = Census::Now();

        // bNotifyOnFailure makes no difference to a success or a time-out.
        std::vector<bool> notifyOnFailure{false};
        if (fault.outcome.code != kSuccess && fault.outcome.code != kTimedOut) {
            notifyOnFailure.push_back(true);
        }
        for (const bool bNotifyOnFailure : notifyOnFailure) {
            Use(setup.faulty, mode.scheme);
            ExpectOutcome(mode, fault.outcome, bNotifyOnFailure, fault.timeout);
            Use(setup.healthy, mode.scheme);
            ExpectSuccess(mode);
        }
        ExpectNoLeaks(before);
    }
    // Destroying the servers also closes the connections kept for reuse.
    ExpectNoLeaks(beforeSetup);
}

}  // namespace testing_support
