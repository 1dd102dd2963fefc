#pragma once

#include "../Call.h"
#include "IAMSModule.h"

/// The calls of CIAMSModule as values: each pairs a Pack, which documents the arguments, with its Parse.
namespace APIModule::IAMS {

using Module = CIAMSModule;  ///< the class of their Packs and Parses

// One call per line.
// clang-format off

/// @name Analysis tasks
/// @{

/// @copybrief CIAMSModule::PacketSetAnalysisTaskUploadFailed
inline constexpr Call<&Module::PacketSetAnalysisTaskUploadFailed> SetAnalysisTaskUploadFailed;
/// @}

// clang-format on

}  // namespace APIModule::IAMS
