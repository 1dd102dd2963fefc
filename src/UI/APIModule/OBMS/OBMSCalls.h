#pragma once

#include "../Call.h"
#include "OBMSModule.h"

/// The calls of COBMSModule as values: each pairs a Pack, which documents the arguments, with its Parse.
namespace APIModule::OBMS {

using Module = COBMSModule;  ///< the class of their Packs and Parses

// One call per line.
// clang-format off

/// @name Access-control persons and rules
/// @{

/// @copybrief COBMSModule::PacketGetPageAccessAuthorizePersons
inline constexpr Call<&Module::PacketGetPageAccessAuthorizePersons, &Module::ParseGetPageAccessAuthorizePersons> GetPageAccessAuthorizePersons;
/// @copybrief COBMSModule::PacketGetManagePersons
/// OnServer() has no effect: the request always goes to the current server.
inline constexpr Call<&Module::PacketGetManagePersons, &Module::ParseGetManagePersons> GetManagePersons;
/// @copybrief COBMSModule::PacketSetManagePersons
inline constexpr Call<&Module::PacketSetManagePersons> SetManagePersons;
/// @copybrief COBMSModule::PackGetPointRules
inline constexpr Call<&Module::PackGetPointRules, &Module::ParesGetPointRules> GetPointRules;
/// @copybrief COBMSModule::PackPersonResetAntiPass
inline constexpr Call<&Module::PackPersonResetAntiPass> PersonResetAntiPass;
/// @}

/// @name Cards, intercom and alarm hosts
/// @{

/// @copybrief COBMSModule::PackGetConfigDesfireInfo
inline constexpr Call<&Module::PackGetConfigDesfireInfo, &Module::ParseGetConfigDesfireInfo> GetConfigDesfireInfo;
/// @copybrief COBMSModule::PackUpdateConfigDesfireInfo
inline constexpr Call<&Module::PackUpdateConfigDesfireInfo> UpdateConfigDesfireInfo;
/// @copybrief COBMSModule::PackGetPageConfigDesfireFailInfo
inline constexpr Call<&Module::PackGetPageConfigDesfireFailInfo, &Module::ParseGetPageConfigDesfireFailInfo> GetPageConfigDesfireFailInfo;
/// @copybrief COBMSModule::PackReissueConfigDesfire
inline constexpr Call<&Module::PackReissueConfigDesfire> ReissueConfigDesfire;
/// @copybrief COBMSModule::PackDeleteAddressBooks
inline constexpr Call<&Module::PackDeleteAddressBooks> DeleteAddressBooks;
/// @copybrief COBMSModule::PacketAlarmHostZoneSnapShot
inline constexpr Call<&Module::PacketAlarmHostZoneSnapShot, &Module::ParseAlarmHostZoneSnapShot> AlarmHostZoneSnapShot;
/// @}

// clang-format on

}  // namespace APIModule::OBMS
