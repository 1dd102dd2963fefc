// Complete calls on loopback: the library compared with a plain exchange through Qt and with blocking clients.
#include "Bench.h"
#include "transport/Alternation.h"
#include "transport/Clients.h"
#include "transport/Probe.h"
#include "transport/Server.h"

#include <sched.h>

#include <array>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace bench {
namespace {

/// Runs clients and server on one processor. Otherwise the placement of Qt's network threads on the processors, which
/// lasts as long as the thread, would affect the results more than the work that is done.
void UseOneProcessor()
{
    cpu_set_t allowed;
    CPU_ZERO(&allowed);
    Require(::sched_getaffinity(0, sizeof allowed, &allowed) == 0, "reading the processor affinity");
    int nLast = CPU_SETSIZE - 1;
    while (nLast > 0 && !CPU_ISSET(nLast, &allowed)) {
        --nLast;
    }
    cpu_set_t one;
    CPU_ZERO(&one);
    CPU_SET(nLast, &one);
    Require(::sched_setaffinity(0, sizeof one, &one) == 0, "setting the processor affinity");
}

struct NamedClient {
    const char* name;
    std::shared_ptr<Client> client;
};

struct Clients {
    NamedClient qt = {kQt, MakeQt()};
    NamedClient qtWithJson = {kQtWithJson, MakeQtWithJson()};
    NamedClient library = {kLibrary, MakeLibrary()};
    NamedClient curl = {"libcurl", MakeCurl()};
    NamedClient httplib = {"cpp-httplib", MakeHttplib()};
};

const Clients& SharedClients()
{
    static const Clients clients;
    return clients;
}

/// The first two, the library and its reference, are measured alternately. For a large reply the reference also reads
/// the JSON text, because the exchange itself takes little of the time.
std::vector<NamedClient> InOrder(bool bLarge)
{
    const Clients& all = SharedClients();
    return {bLarge ? all.qtWithJson : all.qt, all.library, bLarge ? all.qt : all.qtWithJson, all.curl, all.httplib};
}

/// Checks that all contenders return the same data. This also opens their connections.
void Compare(const std::vector<NamedClient>& clients, const Exchange& exchange)
{
    const QJsonObject expected = DataOf(clients.front().client->Run(exchange));
    Require(!expected.isEmpty(), "the data of a reply");
    for (const NamedClient& named : clients) {
        Require(DataOf(named.client->Run(exchange)) == expected, std::string("the reply received by ") + named.name);
    }
}

void RegisterCall(const std::string& work, int nRounds, const std::vector<NamedClient>& clients,
                  const Exchange& exchange)
{
    const auto pCompare = std::make_shared<std::once_flag>();
    std::vector<Contender> contenders;
    contenders.reserve(clients.size());
    for (const NamedClient& named : clients) {
        contenders.push_back({named.name, [=] {
                                  std::call_once(*pCompare, [&] { Compare(clients, exchange); });
                                  return Time([&] { named.client->Run(exchange); });
                              }});
    }
    RegisterAlternating(work, nRounds, std::move(contenders));
}

struct Size {
    const char* name;
    QByteArray path;
    bool bLarge;
    int nRounds;
};

std::string NameOf(const Exchange& exchange, const Size& size)
{
    return std::string("call, ") + (exchange.bHttps ? "HTTPS " : "HTTP ") +
           (exchange.eMethod == APIModule::Method_Post ? "POST" : "GET") + ", " + size.name;
}

void RegisterCalls(const Server& server)
{
    const std::array<Size, 2> sizes = {
        {{"small reply", "/small", false, 400}, {"reply of 1 MB", "/lots/300", true, 20}}};
    // Qt sends the headers and the body of a POST separately, and the body waits about 40 ms for the server's delayed
    // acknowledgement. Therefore few rounds.
    constexpr int kRoundsOfPost = 5;
    for (const bool bHttps : {false, true}) {
        for (const Size& size : sizes) {
            const Exchange get = Get(bHttps, server.Port(bHttps), size.path);
            const Exchange post{bHttps, get.nPort, APIModule::Method_Post, size.path,
                                R"({"channelId":"1001","functionCode":"2"})"};
            RegisterCall(NameOf(get, size), size.nRounds, InOrder(size.bLarge), get);
            RegisterCall(NameOf(post, size), kRoundsOfPost, InOrder(size.bLarge), post);
        }
    }
}

void RegisterFirstCall(const Server& server)
{
    constexpr int kRounds = 3;
    std::vector<Contender> contenders;
    for (const char* const contender : {kQt, kLibrary}) {
        contenders.push_back({contender, [=, &server] {
                                  return Values{{kSeconds, Probe(kFirstCall, contender, server.Port(true))}};
                              }});
    }
    RegisterAlternating("first call, HTTPS", kRounds, std::move(contenders));
}

double ConnectionsOfAThousandCalls()
{
    constexpr int kCalls = 1000;
    const Server server;
    Client& library = *SharedClients().library.client;
    Exchange exchange = Get(true, server.Port(true));
    for (int i = 0; i < kCalls; ++i) {
        library.Run(exchange);
    }
    exchange.path = "/connections";
    return library.Run(exchange).data.value(QLatin1String("count")).toDouble();
}

void RegisterConnections()
{
    RegisterAlternating("1000 calls in sequence", 1,
                        {{kLibrary, [] {
                              return Values{{"connections", ConnectionsOfAThousandCalls()}};
                          }}});
}

}  // namespace

void RegisterBenchmarks()
{
    UseOneProcessor();
    static const Server server;
    RegisterCalls(server);
    RegisterFirstCall(server);
    RegisterConnections();
}

}  // namespace bench
