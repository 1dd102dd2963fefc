#pragma once

#include "FaultHost.h"
#include "support/Rows.h"

#include <memory>

namespace testing_support {

/// The server with the fault, and a healthy one for the next call.
struct FaultSetup {
    UserManager::Server faulty;
    UserManager::Server healthy;
    std::vector<std::shared_ptr<RawServer>> servers;
    std::shared_ptr<void> other;  ///< resource that the fault needs as long as it lasts
    /// Whether the connection to the faulty server is kept for reuse, like that to the healthy one.
    bool keepsConnection = false;
    const char* missing = nullptr;  ///< why this machine cannot produce the fault
};

struct Fault {
    const char* name;
    std::function<FaultSetup(RawServer::Scheme)> open;
    Outcome outcome;
    int timeout = 20;
    std::vector<RawServer::Scheme> schemes = {RawServer::Http, RawServer::Https};
};

/// A server that sends this reply to the call and a success to the next one.
std::function<FaultSetup(RawServer::Scheme)> RepliesWith(const RawReply& reply);

/// A fault on this port, and a healthy server.
FaultSetup BesideHealthy(RawServer::Scheme scheme, int nFaultyPort);

/// A fault and how the call is made.
struct FaultCase {
    std::string name;
    Fault fault;
    CallMode mode;
};

/// Each fault in each call mode.
std::vector<FaultCase> Matrix(const std::vector<Fault>& faults);

class FaultMatrix : public FaultHost, public testing::WithParamInterface<FaultCase> {
protected:
    void Use(const UserManager::Server& server, RawServer::Scheme scheme);
};

}  // namespace testing_support
