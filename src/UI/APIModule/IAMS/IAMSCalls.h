#pragma once

#include "../Call.h"
#include "IAMSModule.h"

/// The calls of CIAMSModule as values: each one is a Pack, which describes its arguments, with its Parse.
namespace APIModule::IAMS {

using Module = CIAMSModule;  ///< whose Packs and Parses the calls are made of

// A call, a line.
// clang-format off

/// @name Analysis tasks
/// @{

/// @copybrief CIAMSModule::PacketSetAnalysisTaskUploadFailed
inline constexpr Call<&Module::PacketSetAnalysisTaskUploadFailed> SetAnalysisTaskUploadFailed;
/// @}

// clang-format on

}  // namespace APIModule::IAMS
