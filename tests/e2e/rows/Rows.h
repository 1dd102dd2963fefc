#pragma once

#include "../support/Expected.h"

#include <string>
#include <string_view>
#include <vector>

namespace e2e {

/// A change that a write must make: the value must differ before the call and be as expected after it.
struct Effect {
    std::string call;  ///< the call that reads the value back; empty if none does
    Json arguments;
    std::string pointer;  ///< JSON pointer into the emulator's state, if no call reads the value back
    Json expected;
};

/// Read back by a call of the library.
Effect ReadBack(std::string call, Json arguments, Json record);
/// Found in the emulator's state; null if nothing is stored there.
Effect StateAt(std::string pointer, Json value);
/// Recorded by the emulator as the first accepted request of its operation.
Effect Accepted(const std::string& operation, Json path, Json body);

/// A call, its expected record and its expected changes.
struct Row {
    std::string call;
    std::string variant;  ///< distinguishes further rows of the same call
    Json arguments = {};
    Expectation record = {};  ///< empty for a call without a record
    std::vector<Effect> effects = {};
    Json state = {};  ///< values by JSON pointer that are added to the emulator's seeds before the call

    [[nodiscard]] std::string Name() const;  ///< "BRMS_GetUserGroupList_Keyword"
};

/// @name Rows of a call, named after the call and an optional variant: "BRMS.GetUserGroupList Keyword"
/// @{
Row Reads(const std::string& name, Json arguments, Expectation record, Json state = {});
Row Writes(const std::string& name, Json arguments, std::vector<Effect> effects);
Row WritesAndReads(const std::string& name, Json arguments, std::vector<Effect> effects, Expectation record);
/// @}

/// All rows below, and a row with the contract's examples for each call without one.
const std::vector<Row>& Rows();
/// The first row of a call.
const Row& RowOf(std::string_view call);

std::vector<Row> SystemConfigRows();
std::vector<Row> DeviceConfigRows();
std::vector<Row> UserGroupRows();
std::vector<Row> QuickCommandRows();
std::vector<Row> DeviceControlRows();
std::vector<Row> ServerWarningRows();
std::vector<Row> AlarmEventRows();
std::vector<Row> AccountAccessRows();
std::vector<Row> DmsRows();
std::vector<Row> IamsRows();
std::vector<Row> IpmsRows();
std::vector<Row> ObmsRows();
std::vector<Row> OmmsRows();

}  // namespace e2e
