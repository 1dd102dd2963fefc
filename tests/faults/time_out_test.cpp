// Servers that keep a call waiting until its time-out ends it.
#include "Descriptor.h"
#include "FaultMatrix.h"

#include <cerrno>
#include <netinet/in.h>
#include <sys/socket.h>

using namespace testing_support;

namespace {

const QByteArray kHead = "HTTP/1.1 200 OK\r\n";

/// Gives these bytes and no more.
std::function<Place(RawServer::Scheme)> StopsAfter(const QByteArray& bytes)
{
    return Answers({bytes});
}

/// The whole answer, a byte a second.
RawAnswer ByteASecond()
{
    RawAnswer answer = SuccessAnswer();
    answer.trickleMilliseconds = 1000;
    return answer;
}

/// Takes the connection and everything that comes over it, and says nothing, not even of TLS.
Place TakesAnythingAndSaysNothing(RawServer::Scheme scheme)
{
    auto silent = std::make_shared<RawServer>([](const RawRequest&) { return RawAnswer{}; });
    Place place = BesideHealthy(scheme, silent->Port());
    place.servers.push_back(silent);
    return place;
}

/// A listener that accepts nobody, with so many in its queue that there is no room for another.
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

Place NeverAccepts(RawServer::Scheme scheme)
{
    const auto listener = std::make_shared<FullListener>();
    Place place = BesideHealthy(scheme, listener->Port());
    place.other = listener;
    return place;
}

const std::vector<Fault> kFaults = {
    {"silent", StopsAfter(""), TimesOut(), 1},
    {"silent_after_the_status_line", StopsAfter(kHead), TimesOut(), 1},
    {"silent_in_the_body", StopsAfter(kHead + "Content-Length: 50\r\n\r\n{\"code\":1000}"), TimesOut(), 1},
    {"silent_before_the_last_chunk", StopsAfter(kHead + "Transfer-Encoding: chunked\r\n\r\n2\r\n{}\r\n"), TimesOut(),
     1},
    {"silent_instead_of_tls", TakesAnythingAndSaysNothing, TimesOut(), 1, {RawServer::Https}},
    {"byte_a_second", Answers(ByteASecond()), TimesOut(), 2},
    {"never_accepts", NeverAccepts, TimesOut(), 1},
};

INSTANTIATE_TEST_SUITE_P(TimeOuts, FaultMatrix, testing::ValuesIn(Matrix(kFaults)), RowName());

}  // namespace
