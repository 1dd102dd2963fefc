// The calls fill the places of a URL one after the other. clazy:excludeall=qstring-arg
#include "ByHand.h"

#include <DMS/DMSModule.h>
#include <IAMS/IAMSModule.h>
#include <IPMS/IPMSModule.h>
#include <OBMS/OBMSModule.h>
#include <OMMS/OMMSModule.h>

namespace bench {

using namespace APIModule;

namespace {

QJsonObject WashCommand(const std::string& channelId)
{
    QJsonObject command;
    command.insert(QStringLiteral("channelId"), QString::fromStdString(channelId));
    command.insert(QStringLiteral("command"), 1);
    return command;
}

}  // namespace

// NOLINTBEGIN(performance-unnecessary-value-param): the parameters of the Packs
std::vector<HandWritten> OtherFamiliesByHand()
{
    return {
        {"DMS.WashOpen", ByHand([](void* pRequest, std::string channelId) {
             QJsonObject body;
             body.insert(QStringLiteral("data"), WashCommand(channelId));
             return Describe(pRequest, Method_Post, QStringLiteral("/admin/API/DMS/Ptz/AuxControl"), 1, Compact(body));
         })},
        {"DMS.BatchWashOpen", ByHand([](void* pRequest, std::vector<std::string>& channelIds) {
             QJsonArray commands;
             for (const std::string& channelId : channelIds) {
                 commands.append(WashCommand(channelId));
             }
             QJsonObject data;
             data.insert(QStringLiteral("ptzAuxControlXos"), commands);
             QJsonObject body;
             body.insert(QStringLiteral("data"), data);
             return Describe(pRequest, Method_Post, QStringLiteral("/admin/API/DMS/Ptz/AuxBatchControl"), 1,
                             Compact(body));
         })},
        {"DMS.SetHomePosition", ByHand([](void* pRequest, std::string channelId, int nServerId) {
             return Describe(pRequest, Method_Post,
                             QStringLiteral("/brms/api/v1.1/ptz/channel/%1/home-position/configure")
                                 .arg(QString::fromLatin1(channelId.c_str())),
                             nServerId);
         })},
        {"DMS.GotoHomePosition", ByHand([](void* pRequest, std::string channelId, int nServerId) {
             return Describe(pRequest, Method_Post,
                             QStringLiteral("/brms/api/v1.1/ptz/channel/%1/home-position/goto")
                                 .arg(QString::fromLatin1(channelId.c_str())),
                             nServerId);
         })},
        {"IAMS.SetAnalysisTaskUploadFailed",
         ByHand([](void* pRequest, const std::vector<std::string>& taskIds, int nServerId) {
             QJsonObject body;
             body.insert(QStringLiteral("ids"), Texts(taskIds));
             return Describe(pRequest, Method_Post,
                             QStringLiteral("/iams/api/v1.1/stream-analyse/task/file/upload/failed/update/batch"),
                             nServerId, Compact(body));
         })},
        {"IPMS.GetSimpleParkingLots",
         ByHand([](void* pRequest, const std::string& parkingLotIds, int mode, int nServerId) {
             return Describe(pRequest, Method_Get,
                             QStringLiteral("/ipms/api/v1.1/parking-lot/summary/list?parkingLotIds=%1&mode=%2")
                                 .arg(QString::fromStdString(parkingLotIds))
                                 .arg(mode),
                             nServerId);
         })},
        {"IPMS.GetDetailParkingLots", ByHand([](void* pRequest, const std::string& parkingLotIds,
                                                const std::string& orgCode, int mode, int nServerId) {
             return Describe(
                 pRequest, Method_Get,
                 QStringLiteral("/ipms/api/v1.1/parking-lot/detail/list?parkingLotIds=%1&mode=%2&orgCode=%3")
                     .arg(QString::fromStdString(parkingLotIds))
                     .arg(mode)
                     .arg(QString::fromStdString(orgCode)),
                 nServerId);
         })},
        {"IPMS.GetParkingOrganization", ByHand([](void* pRequest, int nServerId) {
             return Describe(pRequest, Method_Get, QStringLiteral("/ipms/api/v1.1/organization/list"), nServerId);
         })},
        {"IPMS.UpdateVehicleCaptureRecord",
         ByHand([](void* pRequest, const UpdateVehicleCaptureRecordInfo& info, int nServerId) {
             QJsonObject body;
             body.insert(QStringLiteral("id"), QString::fromStdString(info.id));
             body.insert(QStringLiteral("plateNo"), QString::fromStdString(info.plateNo));
             return Describe(pRequest, Method_Put, QStringLiteral("/ipms/api/v1.1/fusion/vehicle-capture/record"),
                             nServerId, Compact(body));
         })},
        {"OBMS.GetPageAccessAuthorizePersons",
         ByHand([](void* pRequest, const GetPageAccessAuthorizePersonsReq& req, int nServerId) {
             QJsonObject body;
             body.insert(QStringLiteral("page"), QString::number(req.page));
             body.insert(QStringLiteral("pageSize"), QString::number(req.pageSize));
             body.insert(QStringLiteral("containChild"), Flag(req.containChild));
             body.insert(QStringLiteral("keyword"), QString::fromStdString(req.keyword));
             body.insert(QStringLiteral("deviceCode"), QString::fromStdString(req.deviceCode));
             body.insert(QStringLiteral("orgCode"), QString::fromStdString(req.orgCode));
             body.insert(QStringLiteral("pointIds"), Texts(req.pointIds));
             return Describe(pRequest, Method_Post,
                             QStringLiteral("/obms/api/v1.1/acs/person/access/authorize/fetch/page"), nServerId,
                             Compact(body));
         })},
        {"OBMS.GetManagePersons", ByHand([](void* pRequest, const GetManagePersonReq& req, int /*nServerId*/) {
             return Describe(pRequest, Method_Get,
                             QStringLiteral("/obms/api/v1.1/acs/device/%1/manage/person/list")
                                 .arg(QString::fromStdString(req.deviceCode)),
                             -1);
         })},
        {"OBMS.SetManagePersons", ByHand([](void* pRequest, const SetManagePersonReq& req, int nServerId) {
             QJsonObject body;
             body.insert(QStringLiteral("personIds"), Texts(req.personIds));
             return Describe(pRequest, Method_Put,
                             QStringLiteral("/obms/api/v1.1/acs/device/%1/manage/person")
                                 .arg(QString::fromStdString(req.deviceCode)),
                             nServerId, Compact(body));
         })},
        {"OBMS.GetPointRules", ByHand([](void* pRequest, const GetPointAccessRules& req, int nServerId) {
             return Describe(pRequest, Method_Get,
                             QStringLiteral("/obms/api/v1.1/acp/point/%1/rule/list?ruleType=%2&hasOfflinePoint=%3")
                                 .arg(QString::fromStdString(req.pointId))
                                 .arg(QString::fromStdString(req.ruleType))
                                 .arg(req.hasOfflinePoint),
                             nServerId);
         })},
        {"OBMS.PersonResetAntiPass", ByHand([](void* pRequest, const std::string& personId, int nServerId) {
             return Describe(pRequest, Method_Post,
                             QStringLiteral("/obms/api/v1.1/acs/person/%1/anti-pass-time/reset")
                                 .arg(QString::fromStdString(personId)),
                             nServerId);
         })},
        {"OBMS.GetConfigDesfireInfo", ByHand([](void* pRequest, int nServerId) {
             return Describe(pRequest, Method_Get, QStringLiteral("/obms/api/v1.1/acs/config/desfire"), nServerId);
         })},
        {"OBMS.UpdateConfigDesfireInfo", ByHand([](void* pRequest, const AcsCardConfigParam& param, int nServerId) {
             QJsonObject body;
             body.insert(QStringLiteral("enableDesfire"), Flag(param.enableDesfire));
             body.insert(QStringLiteral("enableReadEncryptContent"), Flag(param.enableReadEncryptContent));
             return Describe(pRequest, Method_Put, QStringLiteral("/obms/api/v1.1/acs/config/desfire"), nServerId,
                             Compact(body));
         })},
        {"OBMS.GetPageConfigDesfireFailInfo",
         ByHand([](void* pRequest, const ConfigDesFireFailureReq& req, int nServerId) {
             return Describe(
                 pRequest, Method_Get,
                 QStringLiteral("/obms/api/v1.1/acs/config/desfire/failure/page?page=%1&pageSize=%2&keyword=%3")
                     .arg(req.page)
                     .arg(req.pageSize)
                     .arg(QString::fromStdString(req.keyword)),
                 nServerId);
         })},
        {"OBMS.ReissueConfigDesfire", ByHand([](void* pRequest, int nServerId) {
             return Describe(pRequest, Method_Post, QStringLiteral("/obms/api/v1.1/acs/config/desfire/failure/reissue"),
                             nServerId);
         })},
        {"OBMS.DeleteAddressBooks", ByHand([](void* pRequest, const DeleteAddressBookParam& param, int nServerId) {
             QJsonObject body;
             body.insert(QStringLiteral("mode"), QString::number(param.deleteAll ? 1 : 2));
             body.insert(QStringLiteral("vtoDeviceCode"), QString::fromStdString(param.vtoDeviceCode));
             body.insert(QStringLiteral("vthDeviceCodes"),
                         param.deleteAll ? QJsonArray() : Texts(param.vthDeviceCodes));
             return Describe(pRequest, Method_Post, QStringLiteral("/obms/api/v1.1/vtalk/issue/contact/delete"),
                             nServerId, Compact(body));
         })},
        {"OBMS.AlarmHostZoneSnapShot", ByHand([](void* pRequest, const std::string& zoneId, int action, int nServerId) {
             QJsonObject body;
             body.insert(QStringLiteral("action"), action);
             return Describe(
                 pRequest, Method_Post,
                 QStringLiteral("/obms/api/v1.1/alarm-host/zone/%1/snapshot").arg(QString::fromStdString(zoneId)),
                 nServerId, Compact(body));
         })},
        {"OMMS.GetAlertTypes", ByHand([](void* pRequest, int nServerId) {
             return Describe(pRequest, Method_Get, QStringLiteral("/omms/api/v1.1/alert/rule/alert-type/list"),
                             nServerId);
         })},
        {"OMMS.GetChannelInfo", ByHand([](void* pRequest, std::string channelId, int nServerId) {
             return Describe(pRequest, Method_Get,
                             QStringLiteral("/omms/api/v1.1/channel/%1").arg(QString::fromStdString(channelId)),
                             nServerId);
         })},
        {"OMMS.GetDeviceInfo", ByHand([](void* pRequest, std::string deviceCode, int nServerId) {
             return Describe(pRequest, Method_Get,
                             QStringLiteral("/omms/api/v1.1/device/%1").arg(QString::fromStdString(deviceCode)),
                             nServerId);
         })},
    };
}
// NOLINTEND(performance-unnecessary-value-param)

}  // namespace bench
