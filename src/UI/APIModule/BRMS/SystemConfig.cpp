#include "BRMSModule_p.h"
#include "SystemConfigFields.h"

namespace APIModule {

int CBRMSModule::PacketGetTimeSyncConfig(void* pReqParamData, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get, QStringLiteral("/brms/api/v1.1/config/time-sync"), nServerId);
}

int CBRMSModule::ParseGetTimeSyncConfig(const QJsonObject& data, TimeSyncConfig& config)
{
    return ReadRecord(data, config);
}

int CBRMSModule::PacketSetTimeSyncConfig(void* pReqParamData, const TimeSyncConfig& config, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Put, QStringLiteral("/brms/api/v1.1/config/time-sync"), nServerId,
                Body({{"enable", FlagText(config.enable)},
                      {"startTime", CText(config.startTime)},
                      {"interval", NumberText(config.interval)},
                      {"deviceOnlineTimeSync", FlagText(config.deviceOnlineTimeSync)},
                      {"enableNtp", FlagText(config.enableNtp)},
                      {"ntpIp", CText(config.ntpIp)},
                      {"ntpPort", NumberText(config.ntpPort)},
                      {"ntpSyncInterval", NumberText(config.ntpSyncInterval)}}));
}

int CBRMSModule::PacketImmediatelySyncTime(void* pReqParamData, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Post, QStringLiteral("/brms/api/v1.1/config/time-sync/immediate"),
                nServerId);
}

int CBRMSModule::PacketGetRemoteLogConfig(void* pReqParamData, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get, QStringLiteral("/brms/api/v1.1/config/remote-log"), nServerId);
}

int CBRMSModule::ParseGetRemoteLogConfig(const QJsonObject& data, RemoteLogConfigInfo& config)
{
    return ReadRecord(data, config);
}

int CBRMSModule::PacketSetRemoteLogConfig(void* pReqParamData, const RemoteLogConfigInfo& config, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Put, QStringLiteral("/brms/api/v1.1/config/remote-log"), nServerId,
                Body({{"enable", FlagText(config.enable)},
                      {"ip", CText(config.ip)},
                      {"port", NumberText(config.port)},
                      {"platformId", CText(config.platformId)}}));
}

int CBRMSModule::PacketGetDeviceLoginModel(void* pReqParamData, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get, QStringLiteral("/brms/api/v1.1/config/device-login-model"),
                nServerId);
}

int CBRMSModule::ParseGetDeviceLoginModel(const QJsonObject& data, int& model)
{
    return ReadFields(data, {{"deviceLoginModel", model}});
}

int CBRMSModule::PacketSetDeviceLoginModel(void* pReqParamData, const int& model, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Put, QStringLiteral("/brms/api/v1.1/config/device-login-model"), nServerId,
                Body({{"deviceLoginModel", NumberText(model)}}));
}

int CBRMSModule::PacketGetPushAppMsgConfig(void* pReqParamData, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get, QStringLiteral("/brms/api/v1.1/config/app/push-message"), nServerId);
}

int CBRMSModule::ParseGetPushAppMsgConfig(const QJsonObject& data, bool& enable)
{
    return ReadFields(data, {{"enablePushMessage", enable}});
}

int CBRMSModule::PacketSetPushAppMsgConfig(void* pReqParamData, const bool& enable, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Put, QStringLiteral("/brms/api/v1.1/config/app/push-message"), nServerId,
                Body({{"enablePushMessage", FlagText(enable)}}));
}

int CBRMSModule::PacketGetSupportDataBaseType(void* pReqParamData, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get, QStringLiteral("/brms/api/v1.1/config/outside-database/support/list"),
                nServerId);
}

int CBRMSModule::ParseGetSupportDataBaseType(const QJsonObject& data, std::vector<int>& types)
{
    return ReadFields(data, {{"databaseTypes", types}});
}

int CBRMSModule::PacketGetLocalSetting(void* pReqParamData, const int& settingType, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get,
                Url(QStringLiteral("/brms/api/v1.1/config/local/setting?settingType=%1"), settingType), nServerId);
}

int CBRMSModule::ParseGetLocalSetting(const QJsonObject& data, LocalSettingQueryResult& setting)
{
    return ReadRecord(data, setting);
}

int CBRMSModule::PacketUpdateLocalSetting(void* pReqParamData, bool& apply, const std::string& content, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Put, QStringLiteral("/brms/api/v1.1/config/local/setting"), nServerId,
                Body({{"apply", FlagText(apply)}, {"settingContent", CText(content)}}));
}

int CBRMSModule::PacketGetAIPrivacyConfig(void* pReqParamData, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get, QStringLiteral("/brms/api/v1.1/config/ai/privacy"), nServerId);
}

int CBRMSModule::ParseGetAIPrivacyConfig(const QJsonObject& data, int& enable)
{
    return ReadFields(data, {{"enable", enable}});
}

int CBRMSModule::PacketUpdateAIPrivacyConfig(void* pReqParamData, const bool& enable, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Put, QStringLiteral("/brms/api/v1.1/config/ai/privacy"), nServerId,
                Body({{"enable", FlagNumber(enable)}}));
}

}  // namespace APIModule
