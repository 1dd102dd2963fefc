// Effects of a waiting call on the rest of the client: processor time, late timers, and the stall of a large reply.
#include "Bench.h"
#include "transport/Alternation.h"
#include "transport/Clients.h"
#include "transport/Server.h"

#include <QElapsedTimer>
#include <QWidget>

#include <ctime>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace bench {
namespace {

constexpr double kMilliPerSecond = 1e3;
constexpr int kWaitMilliseconds = 2000;

/// A window under the wait dialog.
class Window : public QWidget {
public:
    Window()
    {
        constexpr int kWidth = 1024;
        constexpr int kHeight = 768;
        constexpr int kUntilShown = 100;
        resize(kWidth, kHeight);
        show();
        Idle(kUntilShown);
    }
};

/// Processor time of all threads of the process, in seconds.
double ProcessorSeconds()
{
    return double(std::clock()) / CLOCKS_PER_SEC;
}

/// The processor time of a wait, and its effect on the frames of an animation.
Values Cost(const std::function<void()>& wait)
{
    constexpr int kFrame = 16;
    QElapsedTimer clock;
    clock.start();
    const double before = ProcessorSeconds();
    const std::vector<double> lateness = Lateness(kFrame, wait);
    const double seconds = double(clock.elapsed()) / kMilliPerSecond;
    constexpr double kPercent = 100;
    const std::size_t nTwentieth = lateness.size() / 20;
    return {{"processor_percent", (ProcessorSeconds() - before) / seconds * kPercent},
            {"late_ms", lateness.back()},
            {"late_ms_95", *(lateness.rbegin() + std::ptrdiff_t(nTwentieth))},
            {"late_ms_median", lateness[lateness.size() / 2]}};
}

Exchange Waiting(const Server& server)
{
    return Get(false, server.Port(false), "/after/" + QByteArray::number(kWaitMilliseconds));
}

std::function<void()> RunOf(const std::shared_ptr<Client>& pClient, const Exchange& exchange)
{
    return [=] { pClient->Run(exchange); };
}

void RegisterWaits(const Server& server)
{
    const auto cost = [](const std::function<void()>& wait) { return [=] { return Cost(wait); }; };
    const Exchange exchange = Waiting(server);
    RegisterAlternating("wait of 2 s", 1,
                        {{kLibrary, cost(RunOf(MakeLibrary(), exchange))},
                         {"event loop", cost([] { Idle(kWaitMilliseconds); })},
                         {kQt, cost(RunOf(MakeQt(), exchange))}});
    RegisterAlternating("wait of 2 s with a dialog", 1, {{kLibrary, [=] {
                                                              Window window;
                                                              return Cost(RunOf(MakeLibrary(&window), exchange));
                                                          }}});
}

void RegisterStall(const Server& server)
{
    constexpr int kRounds = 3;
    const Exchange exchange = Get(false, server.Port(false), "/lots/2600");
    const auto stall = [=](const std::shared_ptr<Client>& pClient) {
        return [=] { return Stall(RunOf(pClient, exchange)); };
    };
    RegisterAlternating("reply of 10 MB, longest stall", kRounds,
                        {{kQtWithJson, stall(MakeQtWithJson())}, {kLibrary, stall(MakeLibrary())}});
}

}  // namespace

void RegisterBenchmarks()
{
    static const Server server;
    RegisterWaits(server);
    RegisterStall(server);
}

}  // namespace bench
