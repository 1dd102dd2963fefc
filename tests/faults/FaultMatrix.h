#pragma once

#include "FaultHost.h"
#include "support/Rows.h"

#include <memory>

namespace testing_support {

/// Where a call meets its fault, and where the call after it finds a server that is well.
struct Place {
    UserManager::Server faulty;
    UserManager::Server healthy;
    std::vector<std::shared_ptr<RawServer>> servers;
    std::shared_ptr<void> other;  ///< what else is there as long as the fault
    /// Whether a connection to the faulty server stays for reuse, beside the healthy one's.
    bool keepsConnection = false;
    const char* missing = nullptr;  ///< why the fault cannot be made on this machine
};

struct Fault {
    const char* name;
    std::function<Place(RawServer::Scheme)> open;
    Outcome outcome;
    int timeout = 20;
    std::vector<RawServer::Scheme> schemes = {RawServer::Http, RawServer::Https};
};

/// A server that gives this answer to the call and succeeds with the next one.
std::function<Place(RawServer::Scheme)> Answers(const RawAnswer& answer);

/// A place beside a server that is well.
Place BesideHealthy(RawServer::Scheme scheme, int nFaultyPort);

/// A fault in one of the ways.
struct FaultCase {
    std::string name;
    Fault fault;
    Way way;
};
void PrintTo(const FaultCase& row, std::ostream* pStream);

/// Each fault in each of the ways.
std::vector<FaultCase> Matrix(const std::vector<Fault>& faults);

class FaultMatrix : public FaultHost, public testing::WithParamInterface<FaultCase> {
protected:
    void Use(const UserManager::Server& server, RawServer::Scheme scheme);
};

}  // namespace testing_support
