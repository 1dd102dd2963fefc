#pragma once

#include "../APIModuleGlobal.h"
#include "SystemConfig.h"

#include <QJsonObject>

#include <string>
#include <vector>

namespace APIModule {

/// Calls of the basic resource management service.
///
/// A Pack describes its request in the RequestParam behind `pReqParamData`, for the server `nServerId` (-1 for the
/// user manager's current one); it returns 0, or the -1 of CAPIModule::GetRequestParam() with the record untouched,
/// and writes one log line either way. A Parse reads the "data" object of the reply; it returns 0, or -1 at the first
/// key that cannot be read: what was read before that key stays filled, the rest is untouched. Lists are appended to
/// what the caller's vector holds.
class APIMODULE_EXPORT CBRMSModule {
public:
    CBRMSModule() = default;
    CBRMSModule(const CBRMSModule&) = default;
    CBRMSModule(CBRMSModule&&) = default;
    CBRMSModule& operator=(const CBRMSModule& other);
    CBRMSModule& operator=(CBRMSModule&& other) noexcept;

    /// @name System configuration
    /// Settings of the whole platform. Flags and numbers travel to the server as texts ("1"/"0", decimal), with the
    /// exception of the AI privacy switch; a text ends at its first zero byte.
    /// @{

    /// Reads the time synchronisation settings: GET /brms/api/v1.1/config/time-sync
    static int PacketGetTimeSyncConfig(void* pReqParamData, int nServerId);
    /// Fills the fields of @p config in their order.
    static int ParseGetTimeSyncConfig(const QJsonObject& data, TimeSyncConfig& config);

    /// Writes the time synchronisation settings: PUT /brms/api/v1.1/config/time-sync
    ///
    /// Body: every field of @p config under its key, all of them texts.
    static int PacketSetTimeSyncConfig(void* pReqParamData, const TimeSyncConfig& config, int nServerId);

    /// Synchronises the time of all devices now: POST /brms/api/v1.1/config/time-sync/immediate, no body
    static int PacketImmediatelySyncTime(void* pReqParamData, int nServerId);

    /// Reads the remote log settings: GET /brms/api/v1.1/config/remote-log
    static int PacketGetRemoteLogConfig(void* pReqParamData, int nServerId);
    /// Fills the fields of @p config in their order.
    static int ParseGetRemoteLogConfig(const QJsonObject& data, RemoteLogConfigInfo& config);

    /// Writes the remote log settings: PUT /brms/api/v1.1/config/remote-log
    ///
    /// Body: every field of @p config under its key, all of them texts.
    static int PacketSetRemoteLogConfig(void* pReqParamData, const RemoteLogConfigInfo& config, int nServerId);

    /// Reads how devices log in to the platform: GET /brms/api/v1.1/config/device-login-model
    static int PacketGetDeviceLoginModel(void* pReqParamData, int nServerId);
    /// Reads "deviceLoginModel", a number defined by the server.
    static int ParseGetDeviceLoginModel(const QJsonObject& data, int& model);

    /// Writes how devices log in to the platform: PUT /brms/api/v1.1/config/device-login-model
    ///
    /// Body: "deviceLoginModel", the decimal text of @p model.
    static int PacketSetDeviceLoginModel(void* pReqParamData, const int& model, int nServerId);

    /// Reads whether messages are pushed to the mobile app: GET /brms/api/v1.1/config/app/push-message
    static int PacketGetPushAppMsgConfig(void* pReqParamData, int nServerId);
    /// Reads "enablePushMessage".
    static int ParseGetPushAppMsgConfig(const QJsonObject& data, bool& enable);

    /// Switches the push of messages to the mobile app: PUT /brms/api/v1.1/config/app/push-message
    ///
    /// Body: "enablePushMessage", the text "1" or "0".
    static int PacketSetPushAppMsgConfig(void* pReqParamData, const bool& enable, int nServerId);

    /// Reads which outside databases are supported: GET /brms/api/v1.1/config/outside-database/support/list
    static int PacketGetSupportDataBaseType(void* pReqParamData, int nServerId);
    /// Appends the codes of "databaseTypes", a list of decimal texts, to @p types; anything else in it counts as 0.
    static int ParseGetSupportDataBaseType(const QJsonObject& data, std::vector<int>& types);

    /// Reads one of the client's settings: GET /brms/api/v1.1/config/local/setting?settingType=@p settingType
    static int PacketGetLocalSetting(void* pReqParamData, const int& settingType, int nServerId);
    /// Fills the fields of @p setting in their order.
    static int ParseGetLocalSetting(const QJsonObject& data, LocalSettingQueryResult& setting);

    /// Writes the client's setting: PUT /brms/api/v1.1/config/local/setting
    ///
    /// Body: "apply", the text "1" or "0", and "settingContent". The type of the setting is not sent.
    static int PacketUpdateLocalSetting(void* pReqParamData, bool& apply, const std::string& content, int nServerId);

    /// Reads the AI privacy switch: GET /brms/api/v1.1/config/ai/privacy
    static int PacketGetAIPrivacyConfig(void* pReqParamData, int nServerId);
    /// Reads "enable" as a number.
    static int ParseGetAIPrivacyConfig(const QJsonObject& data, int& enable);

    /// Sets the AI privacy switch: PUT /brms/api/v1.1/config/ai/privacy
    ///
    /// Body: "enable", the number 1 or 0, where every other switch sends a text.
    static int PacketUpdateAIPrivacyConfig(void* pReqParamData, const bool& enable, int nServerId);
    /// @}
};

}  // namespace APIModule
