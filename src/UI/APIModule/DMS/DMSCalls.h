#pragma once

#include "../Call.h"
#include "DMSModule.h"

/// The calls of CDMSModule as values: each pairs a Pack, which documents the arguments, with its Parse.
namespace APIModule::DMS {

using Module = CDMSModule;  ///< the class of their Packs and Parses

// One call per line.
// clang-format off

/// @name PTZ
/// @{

/// @copybrief CDMSModule::PackeWashOpen
inline constexpr Call<&Module::PackeWashOpen, &Module::ParseWashOpen> WashOpen;
/// @copybrief CDMSModule::PackeBatchWashOpen
inline constexpr Call<&Module::PackeBatchWashOpen, &Module::ParseBatchWashOpen> BatchWashOpen;
/// @copybrief CDMSModule::PackeSetHomePosition
inline constexpr Call<&Module::PackeSetHomePosition, &Module::ParseSetHomePosition> SetHomePosition;
/// @copybrief CDMSModule::PackeGotoHomePosition
inline constexpr Call<&Module::PackeGotoHomePosition, &Module::ParseGotoHomePosition> GotoHomePosition;
/// @}

// clang-format on

}  // namespace APIModule::DMS
