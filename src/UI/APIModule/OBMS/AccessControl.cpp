#include "AccessControlFields.h"
#include "OBMSModule_p.h"

namespace APIModule {

/// Managed persons are always read from the user manager's current server.
static constexpr int kCurrentServerId = -1;

int COBMSModule::PacketGetPageAccessAuthorizePersons(void* pReqParamData, const GetPageAccessAuthorizePersonsReq& req,
                                                     int nServerId)
{
    return Pack(pReqParamData, kObms, Method_Post,
                QStringLiteral("/obms/api/v1.1/acs/person/access/authorize/fetch/page"), nServerId,
                Body({{"page", NumberText(req.page)},
                      {"pageSize", NumberText(req.pageSize)},
                      {"containChild", FlagText(req.containChild)},
                      {"keyword", Text(req.keyword)},
                      {"deviceCode", Text(req.deviceCode)},
                      {"orgCode", Text(req.orgCode)},
                      {"pointIds", TextList(req.pointIds)}}));
}

int COBMSModule::ParseGetPageAccessAuthorizePersons(const QJsonObject& data, GetPageAccessAuthorizePersonsResp& resp)
{
    return ReadPage(data, resp.totalCount, resp.pageData);
}

int COBMSModule::PacketGetManagePersons(void* pReqParamData, const GetManagePersonReq& req, int /*nServerId*/)
{
    return Pack(pReqParamData, kObms, Method_Get,
                Url(QStringLiteral("/obms/api/v1.1/acs/device/%1/manage/person/list"), Text(req.deviceCode)),
                kCurrentServerId);
}

int COBMSModule::ParseGetManagePersons(const QJsonObject& data, std::vector<ManagePersonInfo>& persons)
{
    return ReadFields(data, {{"results", persons}});
}

int COBMSModule::PacketSetManagePersons(void* pReqParamData, const SetManagePersonReq& req, int nServerId)
{
    return Pack(pReqParamData, kObms, Method_Put,
                Url(QStringLiteral("/obms/api/v1.1/acs/device/%1/manage/person"), Text(req.deviceCode)), nServerId,
                Body({{"personIds", TextList(req.personIds)}}));
}

int COBMSModule::PackGetPointRules(void* pReqParamData, const GetPointAccessRules& req, int nServerId)
{
    return Pack(pReqParamData, kObms, Method_Get,
                Url(QStringLiteral("/obms/api/v1.1/acp/point/%1/rule/list?ruleType=%2&hasOfflinePoint=%3"),
                    Text(req.pointId), Text(req.ruleType), req.hasOfflinePoint),
                nServerId);
}

int COBMSModule::ParesGetPointRules(const QJsonObject& data, std::vector<RuleInfo>& rules)
{
    return ReadFields(data, {{"results", rules}});
}

int COBMSModule::PackPersonResetAntiPass(void* pReqParamData, const std::string& personId, int nServerId)
{
    return Pack(pReqParamData, kObms, Method_Post,
                Url(QStringLiteral("/obms/api/v1.1/acs/person/%1/anti-pass-time/reset"), Text(personId)), nServerId);
}

}  // namespace APIModule
