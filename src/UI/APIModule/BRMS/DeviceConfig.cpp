#include "BRMSModule_p.h"
#include "DeviceConfigFields.h"

namespace APIModule {

static int ReadRecord(const JsonObject& element, EncodeConfig& config)
{
    return ReadFields(element, {
                                   {"streamType", config.streamType},
                                   {"bitRate", config.bitRate},
                                   {"bitRateControl", config.bitRateControl},
                                   {"compression", config.compression},
                                   {"enable", config.enable},
                                   {"frameRate", config.frameRate},
                                   {"iFrameInterval", config.iFrameInterval},
                                   {"height", config.height},
                                   {"width", config.width},
                               });
}

int CBRMSModule::PacketGetNetworkConfig(void* pReqParamData, const std::string& deviceCode, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get,
                Url(QStringLiteral("/brms/api/v1.1/device/%1/config/network"), Text(deviceCode)), nServerId);
}

int CBRMSModule::ParseGetNetworkConfig(const QJsonObject& data, NetworkConfig& config)
{
    return ReadFields(data, {
                                {"ip", config.ip},
                                {"mask", config.mask},
                                {"gateway", config.gateway},
                                {"dns", config.dns},
                            });
}

int CBRMSModule::PacketUpdateNetworkConfig(void* pReqParamData, NetworkConfig& config, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Put,
                Url(QStringLiteral("/brms/api/v1.1/device/%1/config/network"), Text(config.deviceCode)), nServerId,
                Body({{"ip", CText(config.ip)},
                      {"mask", CText(config.mask)},
                      {"gateway", CText(config.gateway)},
                      {"dns", CText(config.dns)}}));
}

int CBRMSModule::PacketGetEncodeConfig(void* pReqParamData, const std::string& channelId, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get,
                Url(QStringLiteral("/brms/api/v1.1/device/channel/%1/config/encode"), Text(channelId)), nServerId);
}

int CBRMSModule::ParseGetEncodeConfig(const QJsonObject& data, std::vector<EncodeConfig>& configs)
{
    return ReadFields(data, {{"encodeConfigurations", configs}});
}

int CBRMSModule::PacketUpdateEncodeConfig(void* pReqParamData, const std::string& channelId,
                                          std::vector<EncodeConfig>& configs, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Put,
                Url(QStringLiteral("/brms/api/v1.1/device/channel/%1/config/encode"), Text(channelId)), nServerId,
                Body({{"encodeConfigurations", List(configs, [](const EncodeConfig& config) {
                           return Object({{"streamType", Number(config.streamType)},
                                          {"bitRate", Number(config.bitRate)},
                                          {"bitRateControl", Number(config.bitRateControl)},
                                          {"compression", Number(config.compression)},
                                          {"enable", Number(config.enable)},
                                          {"frameRate", Number(config.frameRate)},
                                          {"iFrameInterval", Number(config.iFrameInterval)},
                                          {"height", Number(config.height)},
                                          {"width", Number(config.width)}});
                       })}}));
}

int CBRMSModule::PacketGetEncodeCapability(void* pReqParamData, const std::string& channelId, int streamType,
                                           int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get,
                Url(QStringLiteral("/brms/api/v1.1/device/channel/%1/capability/encode?streamType=%2"), Text(channelId),
                    streamType),
                nServerId);
}

int CBRMSModule::ParseGetEncodeCapability(const QJsonObject& data, EncodeCapability& capability)
{
    return ReadRecord(data, capability);
}

int CBRMSModule::PacketGetImageConfig(void* pReqParamData, const std::string& channelId, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get,
                Url(QStringLiteral("/brms/api/v1.1/device/channel/%1/config/video"), Text(channelId)), nServerId);
}

int CBRMSModule::ParseGetImageConfig(const QJsonObject& data, ImageConfig& config)
{
    return ReadFields(data, {
                                {"brightness", config.brightness},
                                {"saturation", config.saturation},
                                {"contrast", config.contrast},
                                {"sharpness", config.sharpness},
                            });
}

int CBRMSModule::PacketUpdateImageConfig(void* pReqParamData, ImageConfig& config, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Put,
                Url(QStringLiteral("/brms/api/v1.1/device/channel/%1/config/video"), Text(config.channelId)), nServerId,
                Body({{"brightness", Number(config.brightness)},
                      {"saturation", Number(config.saturation)},
                      {"contrast", Number(config.contrast)},
                      {"sharpness", Number(config.sharpness)}}));
}

int CBRMSModule::PacketGetMultiCastConfig(void* pReqParamData, const std::string& channelId, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get,
                Url(QStringLiteral("/brms/api/v1.1/device/channel/%1/config/multicast"), Text(channelId)), nServerId);
}

int CBRMSModule::ParseGetMultiCastConfig(const QJsonObject& data, MultiCastConfigInfo& info)
{
    return ReadFields(data, {{"status", info.status}, {"streams", info.streams}});
}

int CBRMSModule::PacketSetMultiCastConfig(void* pReqParamData, const MultiCastConfigInfo& info, int nServerId)
{
    return Pack(
        pReqParamData, kBrms, Method_Put,
        Url(QStringLiteral("/brms/api/v1.1/device/channel/%1/config/multicast"), Text(info.channelId)), nServerId,
        Body({{"status", FlagText(info.status)}, {"streams", List(info.streams, [](const MultiCastStream& stream) {
                                                      return Object({{"status", FlagText(stream.status)},
                                                                     {"multicastIp", CText(stream.multicastIp)},
                                                                     {"multicastPort", CText(stream.multicastPort)},
                                                                     {"streamType", NumberText(stream.streamType)}});
                                                  })}}));
}

int CBRMSModule::PacketSetMultiCastStreamStatus(void* pReqParamData, const MultiCastStreamStatus& status, int nServerId)
{
    return Pack(
        pReqParamData, kBrms, Method_Put,
        Url(QStringLiteral("/brms/api/v1.1/device/channel/%1/config/multicast/stream/status"), Text(status.channelId)),
        nServerId, Body({{"status", FlagText(status.status)}, {"streamType", NumberText(status.streamType)}}));
}

}  // namespace APIModule
