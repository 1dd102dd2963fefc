#include "FaultMatrix.h"

#include <ostream>

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

std::function<Place(RawServer::Scheme)> Answers(const RawAnswer& answer)
{
    return [answer](RawServer::Scheme scheme) {
        const auto respond = [answer](const RawRequest& request) {
            return request.target == "/path" ? answer : SuccessAnswer();
        };
        auto server = std::make_shared<RawServer>(respond, scheme);
        return Place{AddressOf(*server), AddressOf(*server), {server}, nullptr};
    };
}

Place BesideHealthy(RawServer::Scheme scheme, int nFaultyPort)
{
    auto healthy = std::make_shared<RawServer>([](const RawRequest&) { return SuccessAnswer(); }, scheme);
    UserManager::Server faulty;
    faulty.port = nFaultyPort;
    return {faulty, AddressOf(*healthy), {healthy}, nullptr};
}

void PrintTo(const FaultCase& row, std::ostream* pStream)
{
    *pStream << row.name;
}

std::vector<FaultCase> Matrix(const std::vector<Fault>& faults)
{
    std::vector<FaultCase> cases;
    for (const Fault& fault : faults) {
        for (const Way& way : WaysOfAllCalls(fault.schemes)) {
            cases.push_back({fault.name + ('_' + NameOf(way)), fault, way});
        }
    }
    return cases;
}

void FaultMatrix::Use(const UserManager::Server& server, RawServer::Scheme scheme)
{
    users.servers[1] = server;
    CAPIModule::GetInstance().SetHttpsMode(scheme == RawServer::Https ? 1 : 0);
}

TEST_P(FaultMatrix, EndsAsToldAndLeavesNothing)
{
    const auto& [name, fault, way] = GetParam();
    WarmUp();
    const Census atFirst = Census::Now();
    {
        const Place place = fault.open(way.scheme);
        if (place.missing) {
            GTEST_SKIP() << place.missing;
        }
        if (place.keepsConnection) {
            Use(place.faulty, way.scheme);
            ExpectSuccess(way);
        }
        Use(place.healthy, way.scheme);
        ExpectSuccess(way);
        const Census before = Census::Now();

        // A success and a time-out do not ask whether to notify.
        std::vector<bool> notifyOnFailure{false};
        if (fault.outcome.code != kSuccess && fault.outcome.code != kTimedOut) {
            notifyOnFailure.push_back(true);
        }
        for (const bool bNotifyOnFailure : notifyOnFailure) {
            Use(place.faulty, way.scheme);
            ExpectOutcome(way, fault.outcome, bNotifyOnFailure, fault.timeout);
            Use(place.healthy, way.scheme);
            ExpectSuccess(way);
        }
        ExpectNothingLeft(before);
    }
    // Without the servers the connections kept for reuse are gone as well.
    ExpectNothingLeft(atFirst);
}

}  // namespace testing_support
