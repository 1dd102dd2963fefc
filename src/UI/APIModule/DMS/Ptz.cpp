#include "DMSModule_p.h"
#include "PtzFields.h"

namespace APIModule {

/// Calls of the administration interface always use this server, not the user's current one.
static constexpr int kWashServerId = 1;
static constexpr int kWashCommand = 1;

static QJsonObject WashCommand(const std::string& channelId)
{
    return Object({{"channelId", Text(channelId)}, {"command", Number(kWashCommand)}});
}

/// Reads PtzWashStatus and PtzPositionResetReq.
template <typename Status>
static int ReadStatus(const JsonObject& data, Status& status)
{
    JsonObject lockUser;
    if (ReadFields(data, {{"lockUser", lockUser}, {"result", status.result}}) != 0) {
        return -1;
    }
    if (lockUser.isEmpty()) {
        return 0;
    }
    return ReadFields(lockUser, {
                                    {"userName", status.userName},
                                    {"userLevel", status.userLevel},
                                    {"lowerDomain", status.lowerDomain},
                                });
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): required by the signature
int CDMSModule::PackeWashOpen(void* pReqParamData, std::string channelId)
{
    return Pack(pReqParamData, kDms, Method_Post, QStringLiteral("/admin/API/DMS/Ptz/AuxControl"), kWashServerId,
                Body({{"data", WashCommand(channelId)}}));
}

int CDMSModule::ParseWashOpen(const QJsonObject& data, PtzWashStatus& status)
{
    return ReadStatus(data, status);
}

int CDMSModule::PackeBatchWashOpen(void* pReqParamData, std::vector<std::string>& channelIds)
{
    return Pack(pReqParamData, kDms, Method_Post, QStringLiteral("/admin/API/DMS/Ptz/AuxBatchControl"), kWashServerId,
                Body({{"data", Object({{"ptzAuxControlXos", List(channelIds, WashCommand)}})}}));
}

int CDMSModule::ParseBatchWashOpen(const QJsonObject& data, PtzBatchWashStatus& status)
{
    return ReadRecord(data, status);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): required by the signature
int CDMSModule::PackeSetHomePosition(void* pReqParamData, std::string channelId, int nServerId)
{
    return Pack(pReqParamData, kDms, Method_Post,
                Url(QStringLiteral("/brms/api/v1.1/ptz/channel/%1/home-position/configure"), Latin1Text(channelId)),
                nServerId);
}

int CDMSModule::ParseSetHomePosition(const QJsonObject& data, PtzPositionResetReq& status)
{
    return ReadStatus(data, status);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): required by the signature
int CDMSModule::PackeGotoHomePosition(void* pReqParamData, std::string channelId, int nServerId)
{
    return Pack(pReqParamData, kDms, Method_Post,
                Url(QStringLiteral("/brms/api/v1.1/ptz/channel/%1/home-position/goto"), Latin1Text(channelId)),
                nServerId, QString(), LogTexts{"PackeSetHomePosition failed.", "PackeSetHomePosition success."});
}

int CDMSModule::ParseGotoHomePosition(const QJsonObject& data, PtzPositionResetReq& status)
{
    return ReadStatus(data, status);
}

}  // namespace APIModule
