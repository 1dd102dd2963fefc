// Addresses that never reply, in a separate network namespace. Skipped where none can be created.
#include "FaultMatrix.h"
#include "support/TestApplication.h"

#include <cstdlib>
#include <fstream>
#include <sched.h>
#include <string>
#include <unistd.h>

using namespace testing_support;

namespace {

constexpr const char* kBlackHole = "192.0.2.2";
constexpr const char* kWithoutRoute = "198.51.100.1";

bool g_bOwnNetwork = false;

/// Enters a new network namespace as its root user. Must run before the process starts threads.
bool EnterNetwork()
{
    const auto user = std::to_string(getuid());
    const auto group = std::to_string(getgid());
    if (unshare(CLONE_NEWNET) == 0) {
        return true;
    }
    if (unshare(CLONE_NEWUSER | CLONE_NEWNET) != 0) {
        return false;
    }
    std::ofstream("/proc/self/setgroups") << "deny";
    std::ofstream("/proc/self/uid_map") << "0 " + user + " 1";
    std::ofstream("/proc/self/gid_map") << "0 " + group + " 1";
    return true;
}

/// Runs a shell command. Must run before the process starts threads.
bool RunsInShell(const std::string& command)
{
    const std::string text = "PATH=$PATH:/usr/sbin:/sbin; " + command;
    return std::system(text.c_str()) == 0;  // NOLINT(cert-env33-c,concurrency-mt-unsafe): see above
}

/// Creates a link whose far end drops everything sent to the address, because no interface has that address.
bool MakeBlackHole()
{
    return RunsInShell(
        "ip link set lo up && ip link add near type veth peer name far && "
        "ip addr add 192.0.2.1/24 dev near && ip link set near up && ip link set far up && ip neigh add " +
        std::string(kBlackHole) + " lladdr 02:00:00:00:00:02 dev near");
}

std::function<FaultSetup(RawServer::Scheme)> IsAtHost(const char* host)
{
    return [host](RawServer::Scheme scheme) {
        FaultSetup setup = BesideHealthy(scheme, 443);
        setup.faulty.host = host;
        setup.missing = g_bOwnNetwork ? nullptr : "no network namespace can be created, or iproute2 is not installed";
        return setup;
    };
}

const std::vector<Fault> kFaults = {
    {"black_hole", IsAtHost(kBlackHole), TimesOut(), 1},
    {"without_route", IsAtHost(kWithoutRoute), NetworkFails("99", "Network unreachable")},
};

INSTANTIATE_TEST_SUITE_P(Unreachable, FaultMatrix, testing::ValuesIn(Matrix(kFaults)), RowName());

}  // namespace

int main(int argc, char** argv)
{
    // Without iproute2 the new network could not be set up and would lack even the loopback address.
    g_bOwnNetwork = RunsInShell("command -v ip >/dev/null") && EnterNetwork() && MakeBlackHole();
    CountObjects();
    const TestApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
