// Typed calls compared with ExecuteFuncs and Qt: their overhead, the gain of concurrent calls, the stall of a large
// record.
#include "Bench.h"
#include "transport/Alternation.h"
#include "transport/Clients.h"
#include "transport/Server.h"

#include <Call.h>
#include <IPMS/IPMSModule.h>

#include <QEventLoop>
#include <QJsonDocument>
#include <QNetworkAccessManager>
#include <QNetworkReply>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace bench {
namespace {

using Lots = std::vector<APIModule::DatailParkingLotInfoRsp>;

int ParseNothing(const QJsonObject& /*data*/, APIModule::NoRecord& /*record*/)
{
    return 0;
}

constexpr APIModule::Call<&PackExchange, &ParseNothing> ReadSettings;
constexpr APIModule::Call<&PackExchange, &APIModule::CIPMSModule::ParseGetDetailParkingLots> ReadLots;

std::function<Values()> TimeOf(std::function<void()> work)
{
    return [work = std::move(work)] { return Time(work); };
}

void RunOnce(const Exchange& exchange)
{
    UseServerOf(exchange);
    Require(bool(APIModule::Run(ReadSettings(exchange))), "a typed call succeeds");
}

void RegisterSmall(const Server& server, const std::shared_ptr<Client>& pLibrary)
{
    constexpr int kRounds = 400;
    for (const bool bHttps : {false, true}) {
        const Exchange exchange = Get(bHttps, server.Port(bHttps));
        RegisterAlternating(std::string("typed call, ") + (bHttps ? "HTTPS" : "HTTP"), kRounds,
                            {{"ExecuteFuncs", TimeOf([=] { pLibrary->Run(exchange); })},
                             {kLibrary, TimeOf([=] { RunOnce(exchange); })}});
    }
}

constexpr int kReads = 20;

void StartAll(const Exchange& exchange)
{
    UseServerOf(exchange);
    QEventLoop loop;
    int nRunning = kReads;
    for (int i = 0; i < kReads; ++i) {
        Start(ReadSettings(exchange), &loop, [&](const APIModule::Outcome<APIModule::NoRecord>& outcome) {
            Require(bool(outcome), "a started call succeeds");
            if (--nRunning == 0) {
                loop.quit();
            }
        });
    }
    loop.exec();
}

void SendAllByQt(QNetworkAccessManager& manager, const Exchange& exchange)
{
    QEventLoop loop;
    int nRunning = kReads;
    std::vector<std::unique_ptr<QNetworkReply>> replies;
    for (int i = 0; i < kReads; ++i) {
        replies.emplace_back(SendByQt(manager, exchange));
        QObject::connect(replies.back().get(), &QNetworkReply::finished, &loop, [&] {
            if (--nRunning == 0) {
                loop.quit();
            }
        });
    }
    loop.exec();
}

void RegisterAtOnce(const Server& server)
{
    constexpr int kRounds = 3;
    const Exchange exchange = Get(false, server.Port(false), "/after/50");
    const auto pManager = std::make_shared<QNetworkAccessManager>();
    RegisterAlternating("20 reads of 50 ms", kRounds,
                        {{"one after the other", TimeOf([=] {
                              for (int i = 0; i < kReads; ++i) {
                                  RunOnce(exchange);
                              }
                          })},
                         {kLibrary, TimeOf([=] { StartAll(exchange); })}});
    RegisterAlternating(
        "20 reads of 50 ms at once", kRounds,
        {{kQt, TimeOf([=] { SendAllByQt(*pManager, exchange); })}, {kLibrary, TimeOf([=] { StartAll(exchange); })}});
}

/// Measures the longest stall of the event loop that @p begin is given, until its work quits the loop.
std::function<Values()> StallOf(std::function<void(QEventLoop&)> begin)
{
    return [begin = std::move(begin)] {
        return Stall([&begin] {
            QEventLoop loop;
            begin(loop);
            loop.exec();
        });
    };
}

void RegisterStall(const Server& server)
{
    constexpr int kRounds = 3;
    const Exchange exchange = Get(false, server.Port(false), "/lots/2600");
    const auto pManager = std::make_shared<QNetworkAccessManager>();
    const auto byQt = [=](QEventLoop& loop) {
        QNetworkReply* const pReply = SendByQt(*pManager, exchange);
        QObject::connect(pReply, &QNetworkReply::finished, &loop, [&loop, pReply] {
            Lots lots;
            const QJsonObject envelope = QJsonDocument::fromJson(pReply->readAll()).object();
            Require(APIModule::CIPMSModule::ParseGetDetailParkingLots(envelope.value(QLatin1String("data")).toObject(),
                                                                      lots) == 0,
                    "the lots are read");
            pReply->deleteLater();
            loop.quit();
        });
    };
    const auto byStart = [=](QEventLoop& loop) {
        UseServerOf(exchange);
        Start(ReadLots(exchange), &loop, [&loop](const APIModule::Outcome<Lots>& lots) {
            Require(bool(lots), "the lots are read");
            loop.quit();
        });
    };
    RegisterAlternating("records of 10 MB, longest stall", kRounds,
                        {{std::string(kQtWithJson) + "+Parse", StallOf(byQt)}, {kLibrary, StallOf(byStart)}});
}

}  // namespace

void RegisterBenchmarks()
{
    static const Server server;
    static const std::shared_ptr<Client> pLibrary = MakeLibrary();
    RegisterSmall(server, pLibrary);
    RegisterAtOnce(server);
    RegisterStall(server);
}

}  // namespace bench
