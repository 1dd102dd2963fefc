#pragma once

#include "ParkingLots.h"

#include <string_view>

/// From the text of a reply to its records, as each library is used in the plain way. A reply that is not a success
/// gives none.
namespace bench {

ParkingLots ReadWithNlohmann(std::string_view reply);
ParkingLots ReadWithRapidJson(std::string_view reply);
/// Behind the text lie PaddingOfSimdjson() bytes that belong to it.
ParkingLots ReadWithSimdjson(std::string_view reply);

int PaddingOfSimdjson();

}  // namespace bench
