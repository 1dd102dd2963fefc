#include "AccountAccessFields.h"
#include "BRMSModule_p.h"

#include <cstdlib>

namespace APIModule {

int CBRMSModule::PacketGetChannelWebTunnel(void* pReqParamData, const std::string& channelId, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get,
                Url(QStringLiteral("/brms/api/v1.1/device/channel/%1/web/tunnel"), Text(channelId)), nServerId);
}

int CBRMSModule::ParseGetChannelWebTunnel(const QJsonObject& data, GetChannelWebTunnelRsp& tunnel)
{
    return ReadFields(data, {
                                {"https", tunnel.https},
                                {"port", tunnel.port},
                                {"ip", tunnel.ip},
                            });
}

int CBRMSModule::PacketGetChannelWebAuthorization(void* pReqParamData, const std::string& channelId, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get,
                Url(QStringLiteral("/brms/api/v1.1/device/channel/%1/web/authorization"), Text(channelId)), nServerId);
}

int CBRMSModule::ParseGetChannelWebAuthorization(const QJsonObject& data, GetChannelWebTunnelRsp& tunnel)
{
    return ReadFields(data, {{"username", tunnel.username}, {"token", tunnel.token}});
}

int CBRMSModule::PacketGetChannelWebEnablement(void* pReqParamData, const std::string& channelId, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get,
                Url(QStringLiteral("/brms/api/v1.1/device/channel/%1/web/enablement"), Text(channelId)), nServerId);
}

int CBRMSModule::ParseGetChannelWebEnablement(const QJsonObject& data, bool& enabled)
{
    return ReadFields(data, {{"enableWeb", enabled}});
}

int CBRMSModule::PacketGetWebEnablement(void* pReqParamData, const std::string& deviceCode, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get,
                Url(QStringLiteral("/brms/api/v1.1/device/%1/web/enablement"), Text(deviceCode)), nServerId);
}

int CBRMSModule::ParseGetWebEnablement(const QJsonObject& data, bool& enabled)
{
    return ReadFields(data, {{"enableWeb", enabled}});
}

int CBRMSModule::PacketGetMenuAvailable(void* pReqParamData, const std::string& menuCode, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get,
                Url(QStringLiteral("/brms/api/v1.1/menu/%1/available"), Text(menuCode)), nServerId);
}

int CBRMSModule::ParseGetMenuAvailable(const QJsonObject& data, bool& available)
{
    return ReadFields(data, {{"available", available}});
}

int CBRMSModule::PacketGetDeriveToken(void* pReqParamData, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Post, QStringLiteral("/brms/api/v1.1/account/token/derive"), nServerId);
}

int CBRMSModule::ParseGetDeriveToken(const QJsonObject& data, std::string& token)
{
    return ReadFields(data, {{"token", token}});
}

int CBRMSModule::PacketGetPermissionResourceCollection(void* pReqParamData, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get,
                QStringLiteral("/brms/api/v1.1/account/permission/resource/collection"), nServerId);
}

int CBRMSModule::ParseGetPermissionResourceCollection(const QJsonObject& data,
                                                      PermissionResourceCollectionResp& collection)
{
    JsonArray menuFunctionCodes;
    JsonArray localConfigItemCodes;
    const int nResult =
        ReadFields(data, {{"menuFunctionCodes", menuFunctionCodes}, {"localConfigItemCodes", localConfigItemCodes}});
    if (nResult == 0) {
        AppendTexts(menuFunctionCodes, collection.menuFunctionCodes);
        AppendTexts(localConfigItemCodes, collection.localConfigItemCodes);
    }
    return nResult;
}

int CBRMSModule::PacketFunctionChannelCheck(void* pReqParamData, FunctionChannelCheck& check, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Post, QStringLiteral("/brms/api/v1.1/account/function/channel/check"),
                nServerId, Body({{"channelId", Text(check.channelId)}, {"functionCode", Text(check.functionCode)}}));
}

int CBRMSModule::ParseFunctionChannelCheck(const QJsonObject& data, FunctionChannelCheckResult& result)
{
    std::string strAuthorized;
    if (ReadFields(data, {{"authorized", strAuthorized}}) != 0) {
        return -1;
    }
    result.authorized = std::atoi(strAuthorized.c_str());  // NOLINT(cert-err34-c): text that is no number means 0
    return 0;
}

int CBRMSModule::PacketGetDeviceCategoryCount(void* pReqParamData, const DeviceCategoryParamReq& query, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get,
                Url(QStringLiteral("/brms/api/v1.1/device/statistics/count-by-device-category/list"
                                   "?keyword=%1&orgCode=%2&domain=%3&permitted=%4&sourceType=%5&containChild=%6"),
                    Text(query.keyword), Text(query.orgCode), Text(query.domain), Text(query.permitted),
                    Text(query.sourceType), Text(query.containChild)),
                nServerId);
}

int CBRMSModule::ParseGetGetDeviceCategoryCount(const QJsonObject& data,
                                                std::vector<DeviceCategoryQueryResult>& categories)
{
    return ReadFields(data, {{"results", categories}});
}

}  // namespace APIModule
