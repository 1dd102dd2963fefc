#include "Fields.h"
#include "Peers.h"

#include <simdjson.h>

#include <string>

namespace bench {
namespace {

using simdjson::ondemand::value;

void Read(value json, int& number)
{
    number = int(json.get_int64());
}

void Read(value json, std::string& text)
{
    text = std::string_view(json.get_string());
}

template <typename Record>
void Read(value json, std::vector<Record>& list);

template <typename Record>
void Read(value json, Record& record)
{
    simdjson::ondemand::object object = json.get_object();
    VisitFields(record, [&object](const auto& key, auto& field) { Read(object.find_field(key), field); });
}

template <typename Record>
void Read(value json, std::vector<Record>& list)
{
    for (auto element : json.get_array()) {
        Read(element.value(), list.emplace_back());
    }
}

}  // namespace

ParkingLots ReadWithSimdjson(std::string_view reply)
{
    static simdjson::ondemand::parser parser;  // reused, as recommended, because it owns the buffers
    auto envelope = parser.iterate(reply.data(), reply.size(), reply.size() + std::size_t(PaddingOfSimdjson()));
    ParkingLots lots;
    if (int64_t(envelope["code"]) == kSuccess) {
        Read(value(envelope["data"]["results"]), lots);
    }
    return lots;
}

int PaddingOfSimdjson()
{
    return int(simdjson::SIMDJSON_PADDING);
}

}  // namespace bench
