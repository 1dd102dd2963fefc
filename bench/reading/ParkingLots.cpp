#include "ParkingLots.h"

#include "Fields.h"

#include <nlohmann/json.hpp>

#include <array>
#include <random>
#include <string>

namespace bench {
namespace {

using Json = nlohmann::ordered_json;  // keys in the order in which the platform sends them

/// Uses only the engine, because the standard distributions give different numbers on different platforms.
class Random {
public:
    int Between(int least, int most) { return least + int(m_engine() % unsigned(most - least + 1)); }

    std::string Name()
    {
        static constexpr std::array<const char*, 10> kPlaces = {
            "Main gate",  "Back gate",    "Car park", "Logistics hall", "Visitor centre",
            "Site North", "Süd-Einfahrt", "停车场",   "Deck \"B\"",     "Barrier lane"};
        return kPlaces[std::size_t(Between(0, int(kPlaces.size()) - 1))] + (" " + std::to_string(Between(1, 99)));
    }

    std::string NameOrNothing() { return Between(0, 2) == 0 ? Name() : std::string(); }

    std::string Identifier() { return std::to_string(Between(100000, 9999999)); }

private:
    std::mt19937 m_engine;
};

template <typename Make>
auto Several(Random& random, int least, int most, Make make)
{
    std::vector<decltype(make(random))> list;
    for (int left = random.Between(least, most); left > 0; --left) {
        list.push_back(make(random));
    }
    return list;
}

APIModule::ParkingChannelInfo MakeChannel(Random& random)
{
    return {random.Identifier() + "$1$0$" + std::to_string(random.Between(0, 15)), random.Between(1, 4)};
}

APIModule::DetailParkingPointInfo MakePoint(Random& random)
{
    APIModule::DetailParkingPointInfo point;
    point.id = random.Identifier();
    point.pointName = random.Name();
    point.remark = random.NameOrNothing();
    point.refPointId = random.Identifier();
    point.refPointName = random.Name();
    point.direction = random.Between(1, 2);
    point.mode = random.Between(1, 3);
    point.channels = Several(random, 1, 3, MakeChannel);
    point.refChannels = Several(random, 0, 2, MakeChannel);
    return point;
}

APIModule::DetailParkingPositionInfo MakePosition(Random& random)
{
    return {random.Identifier(), random.Name(), random.NameOrNothing(), Several(random, 2, 5, MakePoint)};
}

APIModule::DatailParkingLotInfoRsp MakeLot(Random& random)
{
    APIModule::DatailParkingLotInfoRsp lot;
    lot.id = random.Identifier();
    lot.parkingLotName = random.Name();
    lot.orgCode = "001001" + std::to_string(random.Between(100, 999));
    lot.orgName = random.Name();
    lot.parentParkingLotId = random.Identifier();
    lot.parentParkingLotName = random.Name();
    lot.parkingLotMode = random.Between(1, 2);
    lot.enableParkingSpaceStatistics = random.Between(0, 1);
    lot.parkingSpaceStatisticsType = random.Between(0, 2);
    lot.issueVehicles = random.Between(0, 1);
    lot.issueStatus = random.Between(0, 3);
    lot.totalParkingSpaceCount = random.Between(10, 2000);
    lot.idleParkingSpaceCount = random.Between(0, lot.totalParkingSpaceCount);
    lot.positions = Several(random, 2, 4, MakePosition);
    return lot;
}

template <typename Value>
Json ToJson(Value& value)
{
    return value;
}

template <typename Record>
Json ToJson(std::vector<Record>& records)
{
    Json list = Json::array();
    for (Record& record : records) {
        Json& element = list.emplace_back();
        VisitFields(record, [&element](const char* key, auto& field) { element[key] = ToJson(field); });
    }
    return list;
}

}  // namespace

ParkingLots MakeParkingLots(int count)
{
    Random random;
    return Several(random, count, count, MakeLot);
}

QByteArray ReplyOf(ParkingLots& lots)
{
    const Json envelope = {{"code", kSuccess}, {"desc", "Success"}, {"data", {{"results", ToJson(lots)}}}};
    return QByteArray::fromStdString(envelope.dump());
}

}  // namespace bench
