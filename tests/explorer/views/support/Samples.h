#pragma once

#include <explorer/CallOutcome.h>

namespace view_test {

/// A call that ended well with this record.
explorer::CallOutcome Succeeded(const char* call, const char* arguments, const char* record);

/// Records with counts: the devices of each category.
explorer::CallOutcome DeviceCategories();
/// Records in records: parking lots with positions, points and channels.
explorer::CallOutcome ParkingLots();
/// Three lists in one record.
explorer::CallOutcome AlarmLinkage();
/// A write with a body.
explorer::CallOutcome EncodeUpdate();
/// A call whose connection ended in the middle of the reply.
explorer::CallOutcome CutShort();

}  // namespace view_test
