#pragma once

#include "../Call.h"
#include "OMMSModule.h"

/// The calls of COMMSModule as values: each one is a Pack, which describes its arguments, with its Parse.
namespace APIModule::OMMS {

using Module = COMMSModule;  ///< whose Packs and Parses the calls are made of

// A call, a line.
// clang-format off

/// @name Maintenance
/// @{

/// @copybrief COMMSModule::PacketGetAlertTypes
inline constexpr Call<&Module::PacketGetAlertTypes, &Module::ParseGetAlertTypes> GetAlertTypes;
/// @copybrief COMMSModule::PacketGetChannelInfo
inline constexpr Call<&Module::PacketGetChannelInfo, &Module::ParseGetChannelInfo> GetChannelInfo;
/// @copybrief COMMSModule::PacketGetDeviceInfo
inline constexpr Call<&Module::PacketGetDeviceInfo, &Module::ParseGetDeviceInfo> GetDeviceInfo;
/// @}

// clang-format on

}  // namespace APIModule::OMMS
