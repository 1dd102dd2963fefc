// Reading of replies: the cost of the library's Parses compared with parsing the JSON text, and the cost from the text
// to the records compared with other libraries.
#include "Bench.h"
#include "reading/Lists.h"
#include "reading/ParkingLots.h"
#include "reading/Peers.h"

#include <catalogue/Call.h>
#include <Envelope_p.h>
#include <IPMS/IPMSModule.h>

#include <QJsonDocument>
#include <QJsonObject>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <map>
#include <string>

namespace bench {
namespace {

constexpr const char* kFromJson = "fromJson";

QJsonObject ObjectOf(const QByteArray& text)
{
    return QJsonDocument::fromJson(text).object();
}

QJsonObject DataOf(const QJsonObject& envelope)
{
    return envelope.value(QLatin1String("data")).toObject();
}

/// A reply with detailed parking lots, in the forms that are measured.
struct Reply {
    QByteArray text;
    QJsonObject data;

    [[nodiscard]] std::string_view View() const { return {text.constData(), std::size_t(text.size())}; }
};

ParkingLots Read(const QJsonObject& data)
{
    ParkingLots lots;
    if (APIModule::CIPMSModule::ParseGetDetailParkingLots(data, lots) != 0) {
        Fail("detailed parking lots were not read");
    }
    return lots;
}

/// Reads the text to records as a call does, including the envelope.
ParkingLots ReadWithLibrary(const Reply& reply)
{
    APIModule::ReplyInfo info;
    info.byteBody = reply.text;
    APIModule::detail::Unpack(info);
    return info.nCode == kSuccess ? Read(info.jsonData) : ParkingLots();
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

/// Created on first use. Checks that every reader returns the records that the reply was created from.
const Reply& ReplyWith(int count)
{
    static std::map<int, Reply> replies;
    const auto [place, isNew] = replies.try_emplace(count);
    Reply& reply = place->second;
    if (isNew) {
        ParkingLots lots = MakeParkingLots(count);
        reply.text = ReplyOf(lots);
        reply.text.reserve(reply.text.size() + PaddingOfSimdjson());
        reply.data = DataOf(ObjectOf(reply.text));
        for (const Reader& reader : kReaders) {
            ParkingLots read = reader.read(reply);
            Require(ReplyOf(read) == reply.text, std::to_string(count) + " parking lots read by " + reader.name);
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
    Register(records, count, kFromJson, [](const Reply& reply) { return QJsonDocument::fromJson(reply.text); });
    for (const Reader& reader : kReaders) {
        Register("detailed parking lots, text to records", count, reader.name, reader.read);
    }
}

/// Reads a list reply into a new record.
catalogue::Value Read(const catalogue::Call& call, const QJsonObject& data)
{
    catalogue::Value record(*call.result);
    if (call.parse(data, record.Data()) != 0) {
        Fail(call.name + " was not read");
    }
    return record;
}

void Register(const ListReply& reply)
{
    const catalogue::Call& call = *reply.call;
    const QJsonObject data = ObjectOf(reply.text);
    const auto countLists =
        std::count_if(data.begin(), data.end(), [](const QJsonValue& value) { return value.isArray(); });
    const catalogue::Value record = Read(call, data);
    Require(CountElements(*call.result, record.Data()) == std::size_t(countLists) * kElements,
            call.name + " read completely");

    const std::string work = "list of " + std::to_string(kElements) + ", " + call.name + "/";
    benchmark::RegisterBenchmark((work + kLibrary).c_str(), [=, &call](benchmark::State& state) {
        for (auto _ : state) {
            benchmark::DoNotOptimize(Read(call, data));
        }
    });
    benchmark::RegisterBenchmark((work + kFromJson).c_str(), [text = reply.text](benchmark::State& state) {
        for (auto _ : state) {
            benchmark::DoNotOptimize(QJsonDocument::fromJson(text));
        }
    });
}

}  // namespace

void RegisterBenchmarks()
{
    for (const ListReply& reply : ListReplies()) {
        Register(reply);
    }
    for (const int count : {30, 100, 300, 3000, 30000}) {
        RegisterParkingLots(count);
    }
}

}  // namespace bench
