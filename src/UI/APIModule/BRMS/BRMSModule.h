#pragma once

#include "../APIModuleGlobal.h"
#include "DeviceConfig.h"
#include "DeviceControl.h"
#include "ServerWarning.h"
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

    /// @name Device and channel configuration
    /// Settings of one device or channel, which is named in the URL as it stands, nothing escaped. Encoding and image
    /// settings travel as numbers, network and multicast settings as texts ("1"/"0", decimal) that end at their first
    /// zero byte.
    /// @{

    /// Reads the network settings of a device: GET /brms/api/v1.1/device/{deviceCode}/config/network
    static int PacketGetNetworkConfig(void* pReqParamData, const std::string& deviceCode, int nServerId);
    /// Fills "ip", "mask", "gateway" and "dns" in this order; the device code stays as it is.
    static int ParseGetNetworkConfig(const QJsonObject& data, NetworkConfig& config);

    /// Writes the network settings of a device: PUT /brms/api/v1.1/device/{config.deviceCode}/config/network
    ///
    /// Body: "ip", "mask", "gateway" and "dns", texts.
    static int PacketUpdateNetworkConfig(void* pReqParamData, NetworkConfig& config, int nServerId);

    /// Reads the encoding of a channel's streams: GET /brms/api/v1.1/device/channel/{channelId}/config/encode
    static int PacketGetEncodeConfig(void* pReqParamData, const std::string& channelId, int nServerId);
    /// Appends the streams of "encodeConfigurations" up to the first that is not whole. Their channel stays empty.
    static int ParseGetEncodeConfig(const QJsonObject& data, std::vector<EncodeConfig>& configs);

    /// Writes the encoding of a channel's streams: PUT /brms/api/v1.1/device/channel/{channelId}/config/encode
    ///
    /// Body: "encodeConfigurations", a list with the nine numbers of each stream; empty for no @p configs.
    static int PacketUpdateEncodeConfig(void* pReqParamData, const std::string& channelId,
                                        std::vector<EncodeConfig>& configs, int nServerId);

    /// Reads what the encoder of a stream offers:
    /// GET /brms/api/v1.1/device/channel/{channelId}/capability/encode?streamType={streamType}
    ///
    /// @param pReqParamData the RequestParam
    /// @param channelId the channel
    /// @param streamType which stream, the server's code
    /// @param nServerId the server, -1 for the current one
    static int PacketGetEncodeCapability(void* pReqParamData, const std::string& channelId, int streamType,
                                         int nServerId);
    /// Appends the codes of "supportCompressions", a list of decimal texts in which anything else counts as 0, then
    /// the capabilities of "encodeCapabilities" up to the first that is not whole, its formats included.
    static int ParseGetEncodeCapability(const QJsonObject& data, EncodeCapability& capability);

    /// Reads the image adjustment of a channel: GET /brms/api/v1.1/device/channel/{channelId}/config/video
    static int PacketGetImageConfig(void* pReqParamData, const std::string& channelId, int nServerId);
    /// Fills the four adjustments in their order; the channel stays as it is.
    static int ParseGetImageConfig(const QJsonObject& data, ImageConfig& config);

    /// Writes the image adjustment of a channel: PUT /brms/api/v1.1/device/channel/{config.channelId}/config/video
    ///
    /// Body: "brightness", "saturation", "contrast" and "sharpness", numbers.
    static int PacketUpdateImageConfig(void* pReqParamData, ImageConfig& config, int nServerId);

    /// Reads the multicast settings of a channel: GET /brms/api/v1.1/device/channel/{channelId}/config/multicast
    static int PacketGetMultiCastConfig(void* pReqParamData, const std::string& channelId, int nServerId);
    /// Fills "status", then appends the streams of "streams" up to the first that is not whole; the channel stays as
    /// it is.
    static int ParseGetMultiCastConfig(const QJsonObject& data, MultiCastConfigInfo& info);

    /// Writes the multicast settings of a channel: PUT /brms/api/v1.1/device/channel/{info.channelId}/config/multicast
    ///
    /// Body: "status", the text "1" or "0", and "streams", a list with "status", "multicastIp", "multicastPort" and
    /// "streamType" of each stream, all of them texts.
    static int PacketSetMultiCastConfig(void* pReqParamData, const MultiCastConfigInfo& info, int nServerId);

    /// Switches the multicast of one stream:
    /// PUT /brms/api/v1.1/device/channel/{status.channelId}/config/multicast/stream/status
    ///
    /// Body: "status", the text "1" or "0", and "streamType", a decimal text.
    static int PacketSetMultiCastStreamStatus(void* pReqParamData, const MultiCastStreamStatus& status, int nServerId);
    /// @}

    /// @name Device control
    /// Commands that act at once. Flags and numbers travel as numbers; an empty list of channels is sent as such.
    /// @{

    /// Starts the discovery of several devices: POST /brms/api/v1.1/device/discover/async/batch
    ///
    /// Body: "deviceCodes", a list of texts, and "discoverMode", a number that the server defines.
    static int PacketBatchDiscoverDevices(void* pReqParamData, const std::vector<std::string>& deviceCodes,
                                          int discoverMode, int nServerId);
    /// Reads "session", which names the discovery that the server started.
    static int ParseBatchDiscoverDevices(const QJsonObject& data, std::string& session);

    /// Switches alarm outputs: POST /brms/api/v1.1/device/channel/alarm-output/control; the reply is read by
    /// ParseChannelControl().
    ///
    /// Body: "channelIds", a list of texts, "action", always the number 0, and "command", the number 1 or 0.
    static int PacketAlarmOutputControl(void* pReqParamData, const std::vector<std::string>& channelIds, bool on,
                                        int nServerId);

    /// Switches audio-light alarms: POST /brms/api/v1.1/device/channel/audio-light/regulate; the reply is read by
    /// ParseChannelControl().
    ///
    /// Body: "channelIds", a list of texts, and "command", the number 1 or 0; no "action" here.
    static int PacketAudioLightControl(void* pReqParamData, const std::vector<std::string>& channelIds, bool on,
                                       int nServerId);

    /// Lets IP speakers play audio files: POST /brms/api/v1.1/device/channel/audio/ip-speaker/control; the reply is
    /// read by ParseChannelControl().
    ///
    /// Body: "channels", a list with the three texts of each speaker, and "command", a number.
    static int PacketIPSpeakerControl(void* pReqParamData, IPSpeakerControl control, int nServerId);

    /// Appends the channels of "failedChannels", on which a command failed, up to the first that is not whole; none
    /// when all channels succeeded.
    static int ParseChannelControl(const QJsonObject& data, std::vector<ChannelControlRsp>& failedChannels);
    /// @}

    /// @name Server status warnings
    /// States of the platform's servers that a user must hear of.
    /// @{

    /// Asks for a switch-over to the hot-spare server: GET /brms/api/v1.1/system/hot-spare/switch/warning
    static int PacketCheckHotSpareWarning(void* pReqParamData, int nServerId);
    /// Fills the fields of @p warning in their order.
    static int ParseCheckHotSpareWarning(const QJsonObject& data, CheckHostSpareWarning& warning);

    /// Asks whether only the basic services were started:
    /// GET /brms/api/v1.1/system/only-startup-basic-service/warning
    static int PacketGetBasicServiceWarm(void* pReqParamData, int nServerId);
    /// Reads "warningHappened".
    static int ParseGetBasicServiceWarm(const QJsonObject& data, bool& warningHappened);

    /// Lists the servers with disks that raise warnings: GET /brms/api/v1.1/system/warn/disk/list
    static int PacketGetDiskWarm(void* pReqParamData, int nServerId);
    /// Appends the servers of "results" up to the first that is not whole, its disks included.
    static int ParseGetDiskWarm(const QJsonObject& data, std::vector<DiskWarmParam>& servers);

    /// Lists the servers that ran out of memory: GET /brms/api/v1.1/system/out/memory/server/list
    static int PacketGetMemoryOutOfServerList(void* pReqParamData, int nServerId);
    /// Appends the "serverIp" of each element of "results" up to the first that has none.
    static int ParseGetMemoryOutOfServerList(const QJsonObject& data, std::vector<std::string>& serverIps);

    /// Lists the networks that the system knows: GET /brms/api/v1.1/system/network/list
    static int PacketGetNetWorks(void* pReqParamData, int nServerId);
    /// Appends the networks of "results" up to the first that is not whole.
    static int ParseGetNetWorks(const QJsonObject& data, NetWorksParam& netWorks);
    /// @}
};

}  // namespace APIModule
