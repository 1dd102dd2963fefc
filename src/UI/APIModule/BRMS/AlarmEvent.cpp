#include "AlarmEventFields.h"
#include "BRMSModule_p.h"

namespace APIModule {

int CBRMSModule::PacketGetPageSummaryAlarmPlans(void* pReqParamData, const GetPageSummaryAlarmPlansParam& query,
                                                int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get,
                Url(QStringLiteral("/brms/api/v1.1/alarm/plan/summary/page?page=%1&pageSize=%2&keyword=%3"), query.page,
                    query.pageSize, Text(query.keyword)),
                nServerId);
}

int CBRMSModule::ParseGetPageSummaryAlarmPlans(const QJsonObject& data, std::vector<SummaryAlarmPlan>& plans)
{
    return ReadFields(data, {{"pageData", plans}});
}

int CBRMSModule::PacketGetAlarmLinkControlList(void* pReqParamData, const std::string& sourceCode, int alarmType,
                                               int nServerId)
{
    return Pack(
        pReqParamData, kBrms, Method_Get,
        Url(QStringLiteral("/brms/api/v1.1/alarm/plan/source/alarm-type/linkage/list?sourceCode=%1&alarmType=%2"),
            Text(sourceCode), NumberText(alarmType)),
        nServerId);
}

int CBRMSModule::ParseGetAlarmLinkControlList(const QJsonObject& data, AlarmLinkControl& control)
{
    return ReadFields(data, {
                                {"linkAudioLightChannels", control.linkAudioLightChannels},
                                {"linkAlarmOutputChannels", control.linkAlarmOutputChannels},
                                {"linkAudioChannels", control.linkAudioChannels},
                            });
}

int CBRMSModule::PacketGetAlarmLayerDetail(void* pReqParamData, const std::string& resourceCode, int resourceType,
                                           int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get,
                Url(QStringLiteral("/ipms/api/v1.1/parking-lot/layer/detail?resourceType=%1&resourceCode=%2"),
                    resourceType, Text(resourceCode)),
                nServerId);
}

int CBRMSModule::ParseGetAlarmLayerDetail(const QJsonObject& data, AlarmLayerInfo& layer)
{
    return ReadFields(data, {
                                {"layerId", layer.layerId},
                                {"layerName", layer.layerName},
                                {"layerPicture", layer.layerPicture},
                                {"height", layer.height},
                                {"width", layer.width},
                                {"locationX", layer.locationX},
                                {"locationY", layer.locationY},
                                {"angle", layer.angle},
                            });
}

int CBRMSModule::PacketGetAlarmHostFileInfo(void* pReqParamData, const std::string& alarmRecordId, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get,
                Url(QStringLiteral("/brms/api/v1.1/alarm/record/%1/file/detail"), Text(alarmRecordId)), nServerId);
}

int CBRMSModule::ParseGetAlarmHostFileInfo(const QJsonObject& data, AlarmHostFileInfo& info)
{
    return ReadRecord(data, info);
}

int CBRMSModule::PacketGetAudioFileInfo(void* pReqParamData, const std::string& url, const std::string& body,
                                        int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get, CText(url), nServerId, CText(body));
}

int CBRMSModule::ParseGetAudioFileInfo(const QJsonObject& data, AudioFileInfo& info)
{
    return ReadFields(data, {{"fileUrl", info.fileUrl}, {"taskProgress", info.taskProgress}});
}

int CBRMSModule::PacketGetPluginLogType(void* pReqParamData, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get, QStringLiteral("/brms/api/v1.1/log/plugin-log/event-type/list"),
                nServerId);
}

int CBRMSModule::ParseGetPluginLogType(const QJsonObject& data, std::vector<PluginLogTypeGroupInfo>& groups)
{
    return ReadFields(data, {{"results", groups}});
}

int CBRMSModule::PacketGetGeneralEvents(void* pReqParamData, GetGeneralEventsParam& query, int nServerId)
{
    // A GET is sent without its body, but the request still contains the filter.
    return Pack(pReqParamData, kBrms, Method_Get, QStringLiteral("/brms/api/v1.1/alarm/general/event/list"), nServerId,
                Body({{"transportType", Text(query.transportType)},
                      {"matchType", Text(query.matchType)},
                      {"keyword", Text(query.keyword)}}));
}

int CBRMSModule::ParseGetGeneralEvents(const QJsonObject& data, std::vector<GeneralEventRsp>& events)
{
    return ReadFields(data, {{"results", events}});
}

}  // namespace APIModule
