#include "Fields.h"
#include "Peers.h"

#include <rapidjson/document.h>

#include <string>

namespace bench {
namespace {

using Json = rapidjson::Value;

void Read(const Json& json, int& number)
{
    number = json.GetInt();
}

void Read(const Json& json, std::string& text)
{
    text.assign(json.GetString(), json.GetStringLength());
}

template <typename Record>
void Read(const Json& json, std::vector<Record>& list);

template <typename Record>
void Read(const Json& json, Record& record)
{
    VisitFields(record, [&json](const auto& key, auto& field) { Read(json[key], field); });
}

template <typename Record>
void Read(const Json& json, std::vector<Record>& list)
{
    list.reserve(json.Size());
    for (const Json& element : json.GetArray()) {
        Read(element, list.emplace_back());
    }
}

}  // namespace

ParkingLots ReadWithRapidJson(std::string_view reply)
{
    rapidjson::Document envelope;
    envelope.Parse(reply.data(), reply.size());
    ParkingLots lots;
    if (!envelope.HasParseError() && envelope["code"].GetInt() == kSuccess) {
        Read(envelope["data"]["results"], lots);
    }
    return lots;
}

}  // namespace bench
