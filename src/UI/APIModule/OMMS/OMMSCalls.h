#pragma once

#include "../Call.h"
#include "OMMSModule.h"

/// The calls of COMMSModule as values: each pairs a Pack, which documents the arguments, with its Parse.
namespace APIModule::OMMS {

using Module = COMMSModule;  ///< the class of their Packs and Parses

// One call per line.
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
