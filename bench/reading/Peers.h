#pragma once

#include "ParkingLots.h"

#include <string_view>

/// Reads the records from the text of a reply with other libraries, each used in its simplest way. A reply without
/// success contains no records.
namespace bench {

ParkingLots ReadWithNlohmann(std::string_view reply);
ParkingLots ReadWithRapidJson(std::string_view reply);
/// The text must be followed by PaddingOfSimdjson() bytes of the same buffer.
ParkingLots ReadWithSimdjson(std::string_view reply);

int PaddingOfSimdjson();

}  // namespace bench
