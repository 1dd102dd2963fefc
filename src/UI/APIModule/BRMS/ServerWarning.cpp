#include "BRMSModule_p.h"

namespace APIModule {

static int ReadRecord(const JsonObject& element, WarnDisk& disk)
{
    return ReadFields(element, "path", disk.path, "slot", disk.slot);
}

static int ReadRecord(const JsonObject& element, DiskWarmParam& server)
{
    return ReadFields(element, "serverIp", server.serverIp, "serverType", server.serverType, "warnDisks",
                      server.warnDisks);
}

static int ReadRecord(const JsonObject& element, NetWorkItem& netWork)
{
    return ReadFields(element, "netWorkName", netWork.netWorkName, "netWorkValue", netWork.netWorkValue);
}

int CBRMSModule::PacketCheckHotSpareWarning(void* pReqParamData, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get, QStringLiteral("/brms/api/v1.1/system/hot-spare/switch/warning"),
                nServerId);
}

int CBRMSModule::ParseCheckHotSpareWarning(const QJsonObject& data, CheckHostSpareWarning& warning)
{
    return ReadFields(data, "warningHappened", warning.warningHappened, "warningTime", warning.warningTime,
                      "warningContent", warning.warningContent);
}

int CBRMSModule::PacketGetBasicServiceWarm(void* pReqParamData, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get,
                QStringLiteral("/brms/api/v1.1/system/only-startup-basic-service/warning"), nServerId);
}

int CBRMSModule::ParseGetBasicServiceWarm(const QJsonObject& data, bool& warningHappened)
{
    return ReadFields(data, "warningHappened", warningHappened);
}

int CBRMSModule::PacketGetDiskWarm(void* pReqParamData, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get, QStringLiteral("/brms/api/v1.1/system/warn/disk/list"), nServerId);
}

int CBRMSModule::ParseGetDiskWarm(const QJsonObject& data, std::vector<DiskWarmParam>& servers)
{
    return ReadFields(data, "results", servers);
}

int CBRMSModule::PacketGetMemoryOutOfServerList(void* pReqParamData, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get, QStringLiteral("/brms/api/v1.1/system/out/memory/server/list"),
                nServerId);
}

int CBRMSModule::ParseGetMemoryOutOfServerList(const QJsonObject& data, std::vector<std::string>& serverIps)
{
    return ReadList(data, QLatin1String("results"), serverIps, [](const JsonObject& element, std::string& serverIp) {
        return ReadFields(element, "serverIp", serverIp);
    });
}

int CBRMSModule::PacketGetNetWorks(void* pReqParamData, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get, QStringLiteral("/brms/api/v1.1/system/network/list"), nServerId);
}

int CBRMSModule::ParseGetNetWorks(const QJsonObject& data, NetWorksParam& netWorks)
{
    return ReadFields(data, "results", netWorks.netWorks);
}

}  // namespace APIModule
