// Reading of replies: what the library's Parses cost beside reading the JSON text itself, and the way from the text to
// the records beside other libraries.
#include "Bench.h"
#include "reading/ParkingLots.h"
#include "reading/Peers.h"
#include "reading/Same.h"

#include <catalogue/Call.h>
#include <IPMS/IPMSModule.h>

#include <QJsonDocument>
#include <QJsonObject>

#include <benchmark/benchmark.h>

#include <map>
#include <string>

namespace bench {
namespace {

QJsonObject Envelope(const QByteArray& text)
{
    return QJsonDocument::fromJson(text).object();
}

QJsonObject DataOf(const QJsonObject& envelope)
{
    return envelope.value(QLatin1String("data")).toObject();
}

/// A reply of so many detailed parking lots, in the forms that are measured.
struct Reply {
    QByteArray text;
    QJsonObject data;

    [[nodiscard]] std::string_view View() const { return {text.constData(), std::size_t(text.size())}; }
};

ParkingLots Read(const QJsonObject& data)
{
    ParkingLots lots;
    Require(APIModule::CIPMSModule::ParseGetDetailParkingLots(data, lots) == 0, "a parse failed");
    return lots;
}

/// From the text to the records, the envelope included. The way of a call itself begins at the network.
ParkingLots ReadWithLibrary(const Reply& reply)
{
    const QJsonObject envelope = Envelope(reply.text);
    benchmark::DoNotOptimize(envelope.value(QLatin1String("desc")).toString());
    return envelope.value(QLatin1String("code")).toInt(0) == kSuccess ? Read(DataOf(envelope)) : ParkingLots();
}

template <ParkingLots (*ReadText)(std::string_view)>
ParkingLots ReadWith(const Reply& reply)
{
    return ReadText(reply.View());
}

struct Reader {
    const char* name;
    ParkingLots (*read)(const Reply& reply);
};

constexpr Reader kReaders[] = {{kLibrary, ReadWithLibrary},
                               {"nlohmann", ReadWith<ReadWithNlohmann>},
                               {"RapidJSON", ReadWith<ReadWithRapidJson>},
                               {"simdjson", ReadWith<ReadWithSimdjson>}};

/// Made when it is first asked for; every reader must then give the records that it was made of.
const Reply& ReplyWith(int count)
{
    static std::map<int, Reply> replies;
    const auto [place, isNew] = replies.try_emplace(count);
    Reply& reply = place->second;
    if (isNew) {
        ParkingLots lots = MakeParkingLots(count);
        reply.text = ReplyOf(lots);
        reply.text.reserve(reply.text.size() + PaddingOfSimdjson());
        reply.data = DataOf(Envelope(reply.text));
        const catalogue::Type& type = *catalogue::FindCall("IPMS.GetDetailParkingLots")->result;
        for (const Reader& reader : kReaders) {
            ParkingLots read = reader.read(reply);
            Require(Same(type, &read, &lots), std::to_string(count) + " parking lots read by " + reader.name);
        }
    }
    return reply;
}

template <typename Run>
void Measure(benchmark::State& state, int count, Run run)
{
    const Reply& reply = ReplyWith(count);
    for (auto _ : state) {
        benchmark::DoNotOptimize(run(reply));
    }
    state.counters["bytes"] = double(reply.text.size());
}

template <typename Run>
void Register(const std::string& work, int count, const char* contender, Run run)
{
    benchmark::RegisterBenchmark((work + "/" + std::to_string(count) + "/" + contender).c_str(),
                                 [=](benchmark::State& state) { Measure(state, count, run); });
}

void RegisterParkingLots(int count)
{
    const char* records = "detailed parking lots, records";
    Register(records, count, kLibrary, [](const Reply& reply) { return Read(reply.data); });
    Register(records, count, "fromJson", [](const Reply& reply) { return QJsonDocument::fromJson(reply.text); });
    for (const Reader& reader : kReaders) {
        Register("detailed parking lots, text to records", count, reader.name, reader.read);
    }
}

}  // namespace

void RegisterBenchmarks()
{
    for (const int count : {30, 100, 300, 3000, 30000}) {
        RegisterParkingLots(count);
    }
}

}  // namespace bench
