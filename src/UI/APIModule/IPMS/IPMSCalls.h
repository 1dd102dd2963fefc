#pragma once

#include "../Call.h"
#include "IPMSModule.h"

/// The calls of CIPMSModule as values: each one is a Pack, which describes its arguments, with its Parse.
namespace APIModule::IPMS {

using Module = CIPMSModule;  ///< whose Packs and Parses the calls are made of

// A call, a line.
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
