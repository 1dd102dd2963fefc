#include "BRMSModule_p.h"
#include "DeviceControlFields.h"

namespace APIModule {

int CBRMSModule::PacketBatchDiscoverDevices(void* pReqParamData, const std::vector<std::string>& deviceCodes,
                                            int discoverMode, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Post, QStringLiteral("/brms/api/v1.1/device/discover/async/batch"),
                nServerId, Body({{"deviceCodes", TextList(deviceCodes)}, {"discoverMode", Number(discoverMode)}}));
}

int CBRMSModule::ParseBatchDiscoverDevices(const QJsonObject& data, std::string& session)
{
    return ReadFields(data, {{"session", session}});
}

int CBRMSModule::PacketAlarmOutputControl(void* pReqParamData, const std::vector<std::string>& channelIds, bool on,
                                          int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Post, QStringLiteral("/brms/api/v1.1/device/channel/alarm-output/control"),
                nServerId,
                Body({{"channelIds", TextList(channelIds)}, {"action", Number(0)}, {"command", FlagNumber(on)}}));
}

int CBRMSModule::PacketAudioLightControl(void* pReqParamData, const std::vector<std::string>& channelIds, bool on,
                                         int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Post, QStringLiteral("/brms/api/v1.1/device/channel/audio-light/regulate"),
                nServerId, Body({{"channelIds", TextList(channelIds)}, {"command", FlagNumber(on)}}));
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): required by the signature
int CBRMSModule::PacketIPSpeakerControl(void* pReqParamData, IPSpeakerControl control, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Post,
                QStringLiteral("/brms/api/v1.1/device/channel/audio/ip-speaker/control"), nServerId,
                Body({{"channels", List(control.channels,
                                        [](const IPSpeakerChannel& channel) {
                                            return Object({{"channelId", Text(channel.channelId)},
                                                           {"fileIds", Text(channel.fileIds)},
                                                           {"playCount", Text(channel.playCount)}});
                                        })},
                      {"command", Number(control.command)}}));
}

int CBRMSModule::ParseChannelControl(const QJsonObject& data, std::vector<ChannelControlRsp>& failedChannels)
{
    return ReadFields(data, {{"failedChannels", failedChannels}});
}

}  // namespace APIModule
