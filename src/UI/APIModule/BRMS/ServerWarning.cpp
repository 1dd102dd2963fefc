#include "BRMSModule_p.h"
#include "ServerWarningFields.h"

namespace APIModule {

int CBRMSModule::PacketCheckHotSpareWarning(void* pReqParamData, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get, QStringLiteral("/brms/api/v1.1/system/hot-spare/switch/warning"),
                nServerId);
}

int CBRMSModule::ParseCheckHotSpareWarning(const QJsonObject& data, CheckHostSpareWarning& warning)
{
    return ReadRecord(data, warning);
}

int CBRMSModule::PacketGetBasicServiceWarm(void* pReqParamData, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get,
                QStringLiteral("/brms/api/v1.1/system/only-startup-basic-service/warning"), nServerId);
}

int CBRMSModule::ParseGetBasicServiceWarm(const QJsonObject& data, bool& warningHappened)
{
    return ReadFields(data, {{"warningHappened", warningHappened}});
}

int CBRMSModule::PacketGetDiskWarm(void* pReqParamData, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get, QStringLiteral("/brms/api/v1.1/system/warn/disk/list"), nServerId);
}

int CBRMSModule::ParseGetDiskWarm(const QJsonObject& data, std::vector<DiskWarmParam>& servers)
{
    return ReadFields(data, {{"results", servers}});
}

int CBRMSModule::PacketGetMemoryOutOfServerList(void* pReqParamData, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get, QStringLiteral("/brms/api/v1.1/system/out/memory/server/list"),
                nServerId);
}

int CBRMSModule::ParseGetMemoryOutOfServerList(const QJsonObject& data, std::vector<std::string>& serverIps)
{
    return ReadList(data, QLatin1String("results"), serverIps, [](const JsonObject& element, std::string& serverIp) {
        return ReadFields(element, {{"serverIp", serverIp}});
    });
}

int CBRMSModule::PacketGetNetWorks(void* pReqParamData, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get, QStringLiteral("/brms/api/v1.1/system/network/list"), nServerId);
}

int CBRMSModule::ParseGetNetWorks(const QJsonObject& data, NetWorksParam& netWorks)
{
    return ReadFields(data, {{"results", netWorks.netWorks}});
}

}  // namespace APIModule
