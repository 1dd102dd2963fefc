// Memory of calls: the peak during a large reply, and the growth over many calls.
#include "Bench.h"
#include "transport/Alternation.h"
#include "transport/Clients.h"
#include "transport/Probe.h"
#include "transport/Server.h"

namespace bench {

void RegisterBenchmarks()
{
    static const Server server;
    const int nPort = server.Port(false);
    const auto probe = [=](const char* what, const char* contender, const char* unit) {
        return Contender{contender, [=] { return Values{{unit, Probe(what, contender, nPort)}}; }};
    };
    RegisterAlternating("reply of 20 MB read into records, peak memory", 1,
                        {probe(kPeakMemory, kQtWithJson, "MB"), probe(kPeakMemory, kLibrary, "MB")});
    RegisterAlternating("reply of 20 MB read by a typed call, peak memory", 1,
                        {probe(kPeakMemory, "ExecuteFuncs", "MB"), probe(kTypedPeakMemory, kLibrary, "MB")});
    RegisterAlternating("10000 calls, memory grown", 1, {probe(kGrowth, kQt, "kB"), probe(kGrowth, kLibrary, "kB")});
}

}  // namespace bench
