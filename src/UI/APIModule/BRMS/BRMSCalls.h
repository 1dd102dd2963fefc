#pragma once

#include "../Call.h"
#include "BRMSModule.h"

/// The calls of CBRMSModule as values: each pairs a Pack, which documents the arguments, with its Parse.
namespace APIModule::BRMS {

using Module = CBRMSModule;  ///< the class of their Packs and Parses

// One call per line.
// clang-format off

/// @name System configuration
/// @{

/// @copybrief CBRMSModule::PacketGetTimeSyncConfig
inline constexpr Call<&Module::PacketGetTimeSyncConfig, &Module::ParseGetTimeSyncConfig> GetTimeSyncConfig;
/// @copybrief CBRMSModule::PacketSetTimeSyncConfig
inline constexpr Call<&Module::PacketSetTimeSyncConfig> SetTimeSyncConfig;
/// @copybrief CBRMSModule::PacketImmediatelySyncTime
inline constexpr Call<&Module::PacketImmediatelySyncTime> ImmediatelySyncTime;
/// @copybrief CBRMSModule::PacketGetRemoteLogConfig
inline constexpr Call<&Module::PacketGetRemoteLogConfig, &Module::ParseGetRemoteLogConfig> GetRemoteLogConfig;
/// @copybrief CBRMSModule::PacketSetRemoteLogConfig
inline constexpr Call<&Module::PacketSetRemoteLogConfig> SetRemoteLogConfig;
/// @copybrief CBRMSModule::PacketGetDeviceLoginModel
inline constexpr Call<&Module::PacketGetDeviceLoginModel, &Module::ParseGetDeviceLoginModel> GetDeviceLoginModel;
/// @copybrief CBRMSModule::PacketSetDeviceLoginModel
inline constexpr Call<&Module::PacketSetDeviceLoginModel> SetDeviceLoginModel;
/// @copybrief CBRMSModule::PacketGetPushAppMsgConfig
inline constexpr Call<&Module::PacketGetPushAppMsgConfig, &Module::ParseGetPushAppMsgConfig> GetPushAppMsgConfig;
/// @copybrief CBRMSModule::PacketSetPushAppMsgConfig
inline constexpr Call<&Module::PacketSetPushAppMsgConfig> SetPushAppMsgConfig;
/// @copybrief CBRMSModule::PacketGetSupportDataBaseType
inline constexpr Call<&Module::PacketGetSupportDataBaseType, &Module::ParseGetSupportDataBaseType> GetSupportDataBaseType;
/// @copybrief CBRMSModule::PacketGetLocalSetting
inline constexpr Call<&Module::PacketGetLocalSetting, &Module::ParseGetLocalSetting> GetLocalSetting;
/// @copybrief CBRMSModule::PacketUpdateLocalSetting
inline constexpr Call<&Module::PacketUpdateLocalSetting> UpdateLocalSetting;
/// @copybrief CBRMSModule::PacketGetAIPrivacyConfig
inline constexpr Call<&Module::PacketGetAIPrivacyConfig, &Module::ParseGetAIPrivacyConfig> GetAIPrivacyConfig;
/// @copybrief CBRMSModule::PacketUpdateAIPrivacyConfig
inline constexpr Call<&Module::PacketUpdateAIPrivacyConfig> UpdateAIPrivacyConfig;
/// @}

/// @name Device and channel configuration
/// @{

/// @copybrief CBRMSModule::PacketGetNetworkConfig
inline constexpr Call<&Module::PacketGetNetworkConfig, &Module::ParseGetNetworkConfig> GetNetworkConfig;
/// @copybrief CBRMSModule::PacketUpdateNetworkConfig
inline constexpr Call<&Module::PacketUpdateNetworkConfig> UpdateNetworkConfig;
/// @copybrief CBRMSModule::PacketGetEncodeConfig
inline constexpr Call<&Module::PacketGetEncodeConfig, &Module::ParseGetEncodeConfig> GetEncodeConfig;
/// @copybrief CBRMSModule::PacketUpdateEncodeConfig
inline constexpr Call<&Module::PacketUpdateEncodeConfig> UpdateEncodeConfig;
/// @copybrief CBRMSModule::PacketGetEncodeCapability
inline constexpr Call<&Module::PacketGetEncodeCapability, &Module::ParseGetEncodeCapability> GetEncodeCapability;
/// @copybrief CBRMSModule::PacketGetImageConfig
inline constexpr Call<&Module::PacketGetImageConfig, &Module::ParseGetImageConfig> GetImageConfig;
/// @copybrief CBRMSModule::PacketUpdateImageConfig
inline constexpr Call<&Module::PacketUpdateImageConfig> UpdateImageConfig;
/// @copybrief CBRMSModule::PacketGetMultiCastConfig
inline constexpr Call<&Module::PacketGetMultiCastConfig, &Module::ParseGetMultiCastConfig> GetMultiCastConfig;
/// @copybrief CBRMSModule::PacketSetMultiCastConfig
inline constexpr Call<&Module::PacketSetMultiCastConfig> SetMultiCastConfig;
/// @copybrief CBRMSModule::PacketSetMultiCastStreamStatus
inline constexpr Call<&Module::PacketSetMultiCastStreamStatus> SetMultiCastStreamStatus;
/// @}

/// @name Device control
/// @{

/// @copybrief CBRMSModule::PacketBatchDiscoverDevices
inline constexpr Call<&Module::PacketBatchDiscoverDevices, &Module::ParseBatchDiscoverDevices> BatchDiscoverDevices;
/// @copybrief CBRMSModule::PacketAlarmOutputControl
inline constexpr Call<&Module::PacketAlarmOutputControl, &Module::ParseChannelControl> AlarmOutputControl;
/// @copybrief CBRMSModule::PacketAudioLightControl
inline constexpr Call<&Module::PacketAudioLightControl, &Module::ParseChannelControl> AudioLightControl;
/// @copybrief CBRMSModule::PacketIPSpeakerControl
inline constexpr Call<&Module::PacketIPSpeakerControl, &Module::ParseChannelControl> IPSpeakerControl;
/// @}

/// @name Server status warnings
/// @{

/// @copybrief CBRMSModule::PacketCheckHotSpareWarning
inline constexpr Call<&Module::PacketCheckHotSpareWarning, &Module::ParseCheckHotSpareWarning> CheckHotSpareWarning;
/// @copybrief CBRMSModule::PacketGetBasicServiceWarm
inline constexpr Call<&Module::PacketGetBasicServiceWarm, &Module::ParseGetBasicServiceWarm> GetBasicServiceWarm;
/// @copybrief CBRMSModule::PacketGetDiskWarm
inline constexpr Call<&Module::PacketGetDiskWarm, &Module::ParseGetDiskWarm> GetDiskWarm;
/// @copybrief CBRMSModule::PacketGetMemoryOutOfServerList
inline constexpr Call<&Module::PacketGetMemoryOutOfServerList, &Module::ParseGetMemoryOutOfServerList> GetMemoryOutOfServerList;
/// @copybrief CBRMSModule::PacketGetNetWorks
inline constexpr Call<&Module::PacketGetNetWorks, &Module::ParseGetNetWorks> GetNetWorks;
/// @}

/// @name User groups
/// @{

/// @copybrief CBRMSModule::PacketGetUserGroupList
inline constexpr Call<&Module::PacketGetUserGroupList, &Module::ParseGetUserGroupList> GetUserGroupList;
/// @copybrief CBRMSModule::PacketGetUserGroup
inline constexpr Call<&Module::PacketGetUserGroup, &Module::ParseGetUserGroup> GetUserGroup;
/// @copybrief CBRMSModule::PacketAddUserGroup
inline constexpr Call<&Module::PacketAddUserGroup, &Module::ParseAddUserGroup> AddUserGroup;
/// @copybrief CBRMSModule::PacketUpdateUserGroup
inline constexpr Call<&Module::PacketUpdateUserGroup> UpdateUserGroup;
/// @copybrief CBRMSModule::PacketMoveUserGroup
inline constexpr Call<&Module::PacketMoveUserGroup> MoveUserGroup;
/// @copybrief CBRMSModule::PacketClearUserGroup
inline constexpr Call<&Module::PacketClearUserGroup> ClearUserGroup;
/// @copybrief CBRMSModule::PacketDeleteUserGroup
inline constexpr Call<&Module::PacketDeleteUserGroup> DeleteUserGroup;
/// @}

/// @name Quick commands
/// @{

/// @copybrief CBRMSModule::PacketAddQuickCommand
inline constexpr Call<&Module::PacketAddQuickCommand> AddQuickCommand;
/// @copybrief CBRMSModule::PacketUpdateQuickCommand
inline constexpr Call<&Module::PacketUpdateQuickCommand> UpdateQuickCommand;
/// @copybrief CBRMSModule::PacketDelQuickCommand
inline constexpr Call<&Module::PacketDelQuickCommand> DelQuickCommand;
/// @copybrief CBRMSModule::PacketGetQuickCommand
inline constexpr Call<&Module::PacketGetQuickCommand, &Module::ParseGetQuickCommand> GetQuickCommand;
/// @copybrief CBRMSModule::PacketGetQuickCommands
inline constexpr Call<&Module::PacketGetQuickCommands, &Module::ParseGetQuickCommands> GetQuickCommands;
/// @copybrief CBRMSModule::PacketGetAlarmPlanQuickCommands
inline constexpr Call<&Module::PacketGetAlarmPlanQuickCommands, &Module::ParseGetAlarmPlanQuickCommands> GetAlarmPlanQuickCommands;
/// @}

/// @name Alarm and event information
/// @{

/// @copybrief CBRMSModule::PacketGetPageSummaryAlarmPlans
inline constexpr Call<&Module::PacketGetPageSummaryAlarmPlans, &Module::ParseGetPageSummaryAlarmPlans> GetPageSummaryAlarmPlans;
/// @copybrief CBRMSModule::PacketGetAlarmLinkControlList
inline constexpr Call<&Module::PacketGetAlarmLinkControlList, &Module::ParseGetAlarmLinkControlList> GetAlarmLinkControlList;
/// @copybrief CBRMSModule::PacketGetAlarmLayerDetail
inline constexpr Call<&Module::PacketGetAlarmLayerDetail, &Module::ParseGetAlarmLayerDetail> GetAlarmLayerDetail;
/// @copybrief CBRMSModule::PacketGetAlarmHostFileInfo
inline constexpr Call<&Module::PacketGetAlarmHostFileInfo, &Module::ParseGetAlarmHostFileInfo> GetAlarmHostFileInfo;
/// @copybrief CBRMSModule::PacketGetAudioFileInfo
inline constexpr Call<&Module::PacketGetAudioFileInfo, &Module::ParseGetAudioFileInfo> GetAudioFileInfo;
/// @copybrief CBRMSModule::PacketGetPluginLogType
inline constexpr Call<&Module::PacketGetPluginLogType, &Module::ParseGetPluginLogType> GetPluginLogType;
/// @copybrief CBRMSModule::PacketGetGeneralEvents
inline constexpr Call<&Module::PacketGetGeneralEvents, &Module::ParseGetGeneralEvents> GetGeneralEvents;
/// @}

/// @name Account and web access
/// @{

/// @copybrief CBRMSModule::PacketGetChannelWebTunnel
inline constexpr Call<&Module::PacketGetChannelWebTunnel, &Module::ParseGetChannelWebTunnel> GetChannelWebTunnel;
/// @copybrief CBRMSModule::PacketGetChannelWebAuthorization
inline constexpr Call<&Module::PacketGetChannelWebAuthorization, &Module::ParseGetChannelWebAuthorization> GetChannelWebAuthorization;
/// @copybrief CBRMSModule::PacketGetChannelWebEnablement
inline constexpr Call<&Module::PacketGetChannelWebEnablement, &Module::ParseGetChannelWebEnablement> GetChannelWebEnablement;
/// @copybrief CBRMSModule::PacketGetWebEnablement
inline constexpr Call<&Module::PacketGetWebEnablement, &Module::ParseGetWebEnablement> GetWebEnablement;
/// @copybrief CBRMSModule::PacketGetMenuAvailable
inline constexpr Call<&Module::PacketGetMenuAvailable, &Module::ParseGetMenuAvailable> GetMenuAvailable;
/// @copybrief CBRMSModule::PacketGetDeriveToken
inline constexpr Call<&Module::PacketGetDeriveToken, &Module::ParseGetDeriveToken> GetDeriveToken;
/// @copybrief CBRMSModule::PacketGetPermissionResourceCollection
inline constexpr Call<&Module::PacketGetPermissionResourceCollection, &Module::ParseGetPermissionResourceCollection> GetPermissionResourceCollection;
/// @copybrief CBRMSModule::PacketFunctionChannelCheck
inline constexpr Call<&Module::PacketFunctionChannelCheck, &Module::ParseFunctionChannelCheck> FunctionChannelCheck;
/// @copybrief CBRMSModule::PacketGetDeviceCategoryCount
inline constexpr Call<&Module::PacketGetDeviceCategoryCount, &Module::ParseGetGetDeviceCategoryCount> GetDeviceCategoryCount;
/// @}

// clang-format on

}  // namespace APIModule::BRMS
