// Servers that keep a call waiting until its time-out.
#include "Descriptor.h"
#include "FaultMatrix.h"

#include <cerrno>
#include <netinet/in.h>
#include <sys/socket.h>

using namespace testing_support;

namespace {

const QByteArray kHead = "HTTP/1.1 200 OK\r\n";

/// Sends these bytes and nothing more.
std::function<FaultSetup(RawServer::Scheme)> StopsAfter(const QByteArray& bytes)
{
    return RepliesWith({bytes});
}

/// The complete reply, one byte a second.
RawReply ByteASecond()
{
    RawReply reply = SuccessReply();
    reply.trickleMilliseconds = 1000;
    return reply;
}

/// Accepts the connection and all data, and sends nothing, not even for TLS.
FaultSetup AcceptsDataAndStaysSilent(RawServer::Scheme scheme)
{
    auto silent = std::make_shared<RawServer>([](const RawRequest&) { return RawReply{}; });
    FaultSetup setup = BesideHealthy(scheme, silent->Port());
    setup.servers.push_back(silent);
    return setup;
}

/// A listener that never accepts and whose queue is full.
class FullListener {
public:
    FullListener() : m_listener(BoundToLoopback())
    {
        EXPECT_EQ(listen(m_listener.Number(), 0), 0);
        for (Descriptor& waiting : m_queue) {
            const sockaddr_in address = AddressOf(m_listener);
            const int nResult = connect(waiting.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof(address));
            EXPECT_TRUE(nResult == 0 || errno == EINPROGRESS);
        }
    }
    int Port() const { return PortOf(m_listener); }

private:
    Descriptor m_listener;
    Descriptor m_queue[4];
};

FaultSetup NeverAccepts(RawServer::Scheme scheme)
{
    const auto listener = std::make_shared<FullListener>();
    FaultSetup setup = BesideHealthy(scheme, listener->Port());
    setup.other = listener;
    return setup;
}

const std::vector<Fault> kFaults = {
    {"silent", StopsAfter(""), TimesOut(), 1},
    {"silent_after_the_status_line", StopsAfter(kHead), TimesOut(), 1},
    {"silent_in_the_body", StopsAfter(kHead + "Content-Length: 50\r\n\r\n{\"code\":1000}"), TimesOut(), 1},
    {"silent_before_the_last_chunk", StopsAfter(kHead + "Transfer-Encoding: chunked\r\n\r\n2\r\n{}\r\n"), TimesOut(),
     1},
    {"silent_instead_of_tls", AcceptsDataAndStaysSilent, TimesOut(), 1, {RawServer::Https}},
    {"byte_a_second", RepliesWith(ByteASecond()), TimesOut(), 2},
    {"never_accepts", NeverAccepts, TimesOut(), 1},
};

INSTANTIATE_TEST_SUITE_P(TimeOuts, FaultMatrix, testing::ValuesIn(Matrix(kFaults)), RowName());

}  // namespace
