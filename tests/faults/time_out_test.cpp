// Servers that keep a call waiting until its time-out.
#include "FaultMatrix.h"
#include "SilentListener.h"

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

FaultSetup NeverAccepts(RawServer::Scheme scheme)
{
    const auto listener = std::make_shared<SilentListener>();
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
