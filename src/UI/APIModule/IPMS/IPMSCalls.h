#pragma once

#include "../Call.h"
#include "IPMSModule.h"

/// The calls of CIPMSModule as values: each pairs a Pack, which documents the arguments, with its Parse.
namespace APIModule::IPMS {

using Module = CIPMSModule;  ///< the class of their Packs and Parses

// One call per line.
// clang-format off

/// @name Parking
/// @{

/// @copybrief CIPMSModule::PacketGetSimpleParkingLots
inline constexpr Call<&Module::PacketGetSimpleParkingLots, &Module::ParseGetSimpleParkingLots> GetSimpleParkingLots;
/// @copybrief CIPMSModule::PacketGetDetailParkingLots
inline constexpr Call<&Module::PacketGetDetailParkingLots, &Module::ParseGetDetailParkingLots> GetDetailParkingLots;
/// @copybrief CIPMSModule::PacketGetParkingOrganization
inline constexpr Call<&Module::PacketGetParkingOrganization, &Module::ParseGetParkingOrganization> GetParkingOrganization;
/// @copybrief CIPMSModule::PacketUpdateVehicleCaptureRecord
inline constexpr Call<&Module::PacketUpdateVehicleCaptureRecord> UpdateVehicleCaptureRecord;
/// @}

// clang-format on

}  // namespace APIModule::IPMS
