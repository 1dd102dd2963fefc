#include "Fields.h"
#include "Peers.h"

#include <nlohmann/json.hpp>

namespace APIModule {

/// The function that nlohmann/json calls to read a record.
template <typename Record>
auto from_json(const nlohmann::json& json, Record& record) -> decltype(bench::VisitFields(record, nullptr))
{
    bench::VisitFields(record, [&json](const char* key, auto& field) { json.at(key).get_to(field); });
}

}  // namespace APIModule

namespace bench {

ParkingLots ReadWithNlohmann(std::string_view reply)
{
    const nlohmann::json envelope = nlohmann::json::parse(reply);
    if (envelope.at("code").get<int>() != kSuccess) {
        return {};
    }
    return envelope.at("data").at("results").get<ParkingLots>();
}

}  // namespace bench
