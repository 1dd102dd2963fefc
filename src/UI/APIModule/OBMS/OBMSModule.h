#pragma once

#include "../APIModuleGlobal.h"
#include "AccessControl.h"
#include "CardIntercom.h"

#include <QJsonObject>

#include <string>
#include <vector>

namespace APIModule {

/// Calls of the access control and intercom service: Packs and Parses as CAPIModule describes them.
class APIMODULE_EXPORT COBMSModule {
public:
    COBMSModule& operator=(const COBMSModule&);      ///< @assignsnothing
    COBMSModule& operator=(COBMSModule&&) noexcept;  ///< @assignsnothing

    /// @name Access control
    /// Persons and rules of access points and devices. Identifiers and codes go into the URL as they stand, nothing
    /// escaped.
    /// @{

    /// Reads one page of the authorised persons: POST /obms/api/v1.1/acs/person/access/authorize/fetch/page
    ///
    /// Body: every field of @p req under its key; numbers and flag are texts, "pointIds" is a list of texts, empty for
    /// no points.
    /// @pack{req, the page and the filter}
    static int PacketGetPageAccessAuthorizePersons(void* pReqParamData, const GetPageAccessAuthorizePersonsReq& req,
                                                   int nServerId);
    /// Stores "totalCount" once "pageData" was found, then appends its persons up to the first that is not whole, the
    /// organisations included. Without "pageData" the count stays as it is.
    /// @parse{resp}
    static int ParseGetPageAccessAuthorizePersons(const QJsonObject& data, GetPageAccessAuthorizePersonsResp& resp);

    /// Lists the persons who are managed on a device: GET
    /// /obms/api/v1.1/acs/device/{req.deviceCode}/manage/person/list
    ///
    /// @param pReqParamData the RequestParam
    /// @param req the device
    /// @param nServerId ignored: the request always goes to the user manager's current server
    /// @return 0 or -1
    static int PacketGetManagePersons(void* pReqParamData, const GetManagePersonReq& req, int nServerId);
    /// Appends the persons of "results" up to the first that is not whole, the organisations included.
    /// @parse{persons}
    static int ParseGetManagePersons(const QJsonObject& data, std::vector<ManagePersonInfo>& persons);

    /// Replaces the persons who are managed on a device: PUT /obms/api/v1.1/acs/device/{req.deviceCode}/manage/person
    ///
    /// Body: "personIds", a list of texts, empty for no persons. There is no Parse.
    /// @pack{req, the device and its persons}
    static int PacketSetManagePersons(void* pReqParamData, const SetManagePersonReq& req, int nServerId);

    /// Lists the access rules of a point: GET
    /// /obms/api/v1.1/acp/point/{req.pointId}/rule/list?ruleType={req.ruleType}&hasOfflinePoint={req.hasOfflinePoint}
    /// @pack{req, the point and the filter}
    static int PackGetPointRules(void* pReqParamData, const GetPointAccessRules& req, int nServerId);
    /// Appends the rules of "results" up to the first that is not whole.
    /// @parse{rules}
    static int ParesGetPointRules(const QJsonObject& data, std::vector<RuleInfo>& rules);

    /// Resets the anti-passback time of a person: POST /obms/api/v1.1/acs/person/{personId}/anti-pass-time/reset, no
    /// body
    ///
    /// There is no Parse.
    /// @pack{personId, the person}
    static int PackPersonResetAntiPass(void* pReqParamData, const std::string& personId, int nServerId);
    /// @}

    /// @name Cards, intercom and alarm hosts
    /// The DESFire card configuration of the service, contacts of outdoor stations and zones of alarm hosts.
    /// Identifiers and keywords go into the URL as they stand, nothing escaped.
    /// @{

    /// Reads the DESFire card configuration: GET /obms/api/v1.1/acs/config/desfire
    /// @pack
    static int PackGetConfigDesfireInfo(void* pReqParamData, int nServerId);
    /// Fills the fields of @p param in their order.
    /// @parse{param}
    static int ParseGetConfigDesfireInfo(const QJsonObject& data, AcsCardConfigParam& param);

    /// Writes the DESFire card configuration: PUT /obms/api/v1.1/acs/config/desfire
    ///
    /// Body: "enableDesfire" and "enableReadEncryptContent", the texts "1" or "0". There is no Parse. Its log texts are
    /// "UpdateConfigDesfireInfo is failed." and "UpdateConfigDesfireInfo is success.".
    /// @pack{param, what is to be written}
    static int PackUpdateConfigDesfireInfo(void* pReqParamData, const AcsCardConfigParam& param, int nServerId);

    /// Reads one page of the devices to which the card configuration could not be issued: GET
    /// /obms/api/v1.1/acs/config/desfire/failure/page?page={req.page}&pageSize={req.pageSize}&keyword={req.keyword}
    /// @pack{req, the page and the text to look for}
    static int PackGetPageConfigDesfireFailInfo(void* pReqParamData, const ConfigDesFireFailureReq& req, int nServerId);
    /// Stores "totalCount" once "pageData" was found, then appends its devices up to the first that is not whole.
    /// Without "pageData" the count stays as it is.
    /// @parse{resp}
    static int ParseGetPageConfigDesfireFailInfo(const QJsonObject& data, GetPageConfigDesfireFailureResp& resp);

    /// Issues the card configuration again to the devices that did not get it:
    /// POST /obms/api/v1.1/acs/config/desfire/failure/reissue, no body
    ///
    /// There is no Parse.
    /// @pack
    static int PackReissueConfigDesfire(void* pReqParamData, int nServerId);

    /// Deletes intercom contacts of an outdoor station: POST /obms/api/v1.1/vtalk/issue/contact/delete
    ///
    /// Body: "mode", the text "1" for all contacts or "2" for the listed ones, "vtoDeviceCode", a text, and
    /// "vthDeviceCodes", a list of texts that is always empty for all contacts. There is no Parse. Its log texts are
    /// "Delete contacts failed." and "Delete contacts success.".
    /// @pack{param, the station and the contacts}
    static int PackDeleteAddressBooks(void* pReqParamData, const DeleteAddressBookParam& param, int nServerId);

    /// Asks an alarm host for a snapshot of a zone: POST /obms/api/v1.1/alarm-host/zone/{zoneId}/snapshot
    ///
    /// Body: "action", the number @p action as the server defines it.
    /// @pack{zoneId, the zone, action, the server's code}
    static int PacketAlarmHostZoneSnapShot(void* pReqParamData, const std::string& zoneId, int action, int nServerId);
    /// Reads "session", which names the snapshot that the server started.
    /// @parse{session}
    static int ParseAlarmHostZoneSnapShot(const QJsonObject& data, std::string& session);
    /// @}
};

}  // namespace APIModule
