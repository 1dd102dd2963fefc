#pragma once

#include "../support/Expected.h"

#include <string>
#include <string_view>
#include <vector>

namespace e2e {

/// Where a write must be seen: otherwise before the call, as expected after it.
struct Trace {
    std::string call;  ///< the call that reads it back; empty where none does
    Json arguments;
    std::string place;  ///< in the emulator's state where no call reads it back
    Json expected;
};

/// Seen by a call of the library.
Trace ReadBack(std::string call, Json arguments, Json record);
/// Seen in the emulator's state; the value is null where nothing stands.
Trace Held(std::string place, Json value);
/// Kept by the emulator as the first accepted request of its operation.
Trace Accepted(const std::string& operation, Json path, Json body);

/// A call, what its record must be and what it must change.
struct Row {
    std::string call;
    std::string variant;  ///< tells further rows of a call apart
    Json arguments = {};
    Expectation record = {};  ///< none for a call without a record
    std::vector<Trace> traces = {};
    Json state = {};  ///< values by JSON pointer that the emulator holds before the call, beside its seed

    [[nodiscard]] std::string Name() const;  ///< "BRMS_GetUserGroupList_Keyword"
};

/// @name Rows of a call, and of its variant behind a blank: "BRMS.GetUserGroupList Keyword"
/// @{
Row Reads(const std::string& name, Json arguments, Expectation record, Json state = {});
Row Writes(const std::string& name, Json arguments, std::vector<Trace> traces);
Row WritesAndReads(const std::string& name, Json arguments, std::vector<Trace> traces, Expectation record);
/// @}

/// Those below; a call without any has one by the examples of the contract.
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
