#pragma once

#include <explorer/CallOutcome.h>

namespace view_test {

/// A successful call that returned this record.
explorer::CallOutcome Succeeded(const char* call, const char* arguments, const char* record);

/// A list of records with counts: the number of devices in each category.
explorer::CallOutcome DeviceCategories();
/// Nested records: parking lots with positions, points and channels.
explorer::CallOutcome ParkingLots();
/// A record with three lists.
explorer::CallOutcome AlarmLinkage();
/// A write whose request has a body.
explorer::CallOutcome EncodeUpdate();
/// A call whose connection closed before the reply was complete.
explorer::CallOutcome CutShort();

}  // namespace view_test
