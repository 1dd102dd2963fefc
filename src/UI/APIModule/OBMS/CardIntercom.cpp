#include "CardIntercomFields.h"
#include "OBMSModule_p.h"

namespace APIModule {

static constexpr int kDeleteAllContacts = 1;
static constexpr int kDeleteListedContacts = 2;

int COBMSModule::PackGetConfigDesfireInfo(void* pReqParamData, int nServerId)
{
    return Pack(pReqParamData, kObms, Method_Get, QStringLiteral("/obms/api/v1.1/acs/config/desfire"), nServerId);
}

int COBMSModule::ParseGetConfigDesfireInfo(const QJsonObject& data, AcsCardConfigParam& param)
{
    return ReadRecord(data, param);
}

int COBMSModule::PackUpdateConfigDesfireInfo(void* pReqParamData, const AcsCardConfigParam& param, int nServerId)
{
    return Pack(pReqParamData, kObms, Method_Put, QStringLiteral("/obms/api/v1.1/acs/config/desfire"), nServerId,
                Body({{"enableDesfire", FlagText(param.enableDesfire)},
                      {"enableReadEncryptContent", FlagText(param.enableReadEncryptContent)}}),
                LogTexts{"UpdateConfigDesfireInfo is failed.", "UpdateConfigDesfireInfo is success."});
}

int COBMSModule::PackGetPageConfigDesfireFailInfo(void* pReqParamData, const ConfigDesFireFailureReq& req,
                                                  int nServerId)
{
    return Pack(pReqParamData, kObms, Method_Get,
                Url(QStringLiteral("/obms/api/v1.1/acs/config/desfire/failure/page?page=%1&pageSize=%2&keyword=%3"),
                    req.page, req.pageSize, Text(req.keyword)),
                nServerId);
}

int COBMSModule::ParseGetPageConfigDesfireFailInfo(const QJsonObject& data, GetPageConfigDesfireFailureResp& resp)
{
    return ReadPage(data, resp.totalCount, resp.pageData);
}

int COBMSModule::PackReissueConfigDesfire(void* pReqParamData, int nServerId)
{
    return Pack(pReqParamData, kObms, Method_Post, QStringLiteral("/obms/api/v1.1/acs/config/desfire/failure/reissue"),
                nServerId);
}

int COBMSModule::PackDeleteAddressBooks(void* pReqParamData, const DeleteAddressBookParam& param, int nServerId)
{
    return Pack(pReqParamData, kObms, Method_Post, QStringLiteral("/obms/api/v1.1/vtalk/issue/contact/delete"),
                nServerId,
                Body({{"mode", NumberText(param.deleteAll ? kDeleteAllContacts : kDeleteListedContacts)},
                      {"vtoDeviceCode", Text(param.vtoDeviceCode)},
                      {"vthDeviceCodes", param.deleteAll ? QJsonArray() : TextList(param.vthDeviceCodes)}}),
                LogTexts{"Delete contacts failed.", "Delete contacts success."});
}

int COBMSModule::PacketAlarmHostZoneSnapShot(void* pReqParamData, const std::string& zoneId, int action, int nServerId)
{
    return Pack(pReqParamData, kObms, Method_Post,
                Url(QStringLiteral("/obms/api/v1.1/alarm-host/zone/%1/snapshot"), Text(zoneId)), nServerId,
                Body({{"action", Number(action)}}));
}

int COBMSModule::ParseAlarmHostZoneSnapShot(const QJsonObject& data, std::string& session)
{
    return ReadFields(data, {{"session", session}});
}

}  // namespace APIModule
