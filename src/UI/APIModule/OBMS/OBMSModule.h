#pragma once

#include "../APIModuleGlobal.h"
#include "AccessControl.h"
#include "CardIntercom.h"

#include <QJsonObject>

#include <string>
#include <vector>

namespace APIModule {

/// Calls of the access control and intercom service.
///
/// A Pack describes its request in the RequestParam behind @p pReqParamData, for the server @p nServerId (-1: the user
/// manager's current one). It returns 0, or -1 with the RequestParam untouched, and writes one log line either way.
///
/// A Parse reads the "data" object of the reply, @p data. It returns 0, or stops with -1 at the first missing key;
/// fields read before that key keep their new values. It appends complete elements to lists, with their inner lists,
/// and does not clear the lists first. It does not run for a reply without data.
///
/// "Inserted unencoded": the Pack inserts the string into the URL unchanged. If it may contain `%`, `&`, `#`, `?` or
/// `/`, the caller encodes it by QUrl::toPercentEncoding() first: the keyword `R&D` would end at its ampersand, and the
/// server would refuse the call with code 1003. QUrl itself encodes spaces and non-ASCII letters.
///
/// Codes, units and formats that the server defines are passed through unchanged; the comments give the value in the
/// contract's example. A list in "results" is complete and has no total; a page has one.
class APIMODULE_EXPORT COBMSModule {
public:
    /// @name Access control
    /// Persons and rules of access points and devices.
    /// @{

    /// Reads one page of the authorised persons: POST /obms/api/v1.1/acs/person/access/authorize/fetch/page
    ///
    /// Body: every field of @p req under its key; numbers and flag are strings, "pointIds" is a list of strings that
    /// may be empty. Strings in the body need no encoding.
    /// @param req the page, counted from 1 (0 also means the first page), its size, and the filter, in which an
    ///        empty keyword, device or organisation selects all
    static int PacketGetPageAccessAuthorizePersons(void* pReqParamData, const GetPageAccessAuthorizePersonsReq& req,
                                                   int nServerId);
    /// Stores "totalCount", the number of persons on all pages, in @p resp, then appends the persons in "pageData".
    /// Without "pageData" the count is not stored either.
    static int ParseGetPageAccessAuthorizePersons(const QJsonObject& data, GetPageAccessAuthorizePersonsResp& resp);

    /// Lists the persons who are managed on a device: GET /obms/api/v1.1/acs/device/{req.deviceCode}/manage/person/list
    /// @param req the device, inserted unencoded
    /// @param nServerId ignored: the request always goes to the user manager's current server
    static int PacketGetManagePersons(void* pReqParamData, const GetManagePersonReq& req, int nServerId);
    /// Appends the persons of "results" with their organisations to @p persons.
    static int ParseGetManagePersons(const QJsonObject& data, std::vector<ManagePersonInfo>& persons);

    /// Replaces the persons who are managed on a device: PUT /obms/api/v1.1/acs/device/{req.deviceCode}/manage/person
    ///
    /// Body: "personIds", a list of strings that may be empty. There is no Parse.
    /// @param req the device, inserted unencoded, and all of its persons
    static int PacketSetManagePersons(void* pReqParamData, const SetManagePersonReq& req, int nServerId);

    /// Lists the access rules of a point: GET
    /// /obms/api/v1.1/acp/point/{req.pointId}/rule/list?ruleType={req.ruleType}&hasOfflinePoint={req.hasOfflinePoint}
    /// @param req the point and the filter. Point and rule type are inserted unencoded. A `%` before a single digit in
    ///        them, as in `%2F`, would be replaced by a later value; codes of two digits, such as `%26`, are safe.
    static int PackGetPointRules(void* pReqParamData, const GetPointAccessRules& req, int nServerId);
    /// Appends the rules of "results" to @p rules.
    static int ParesGetPointRules(const QJsonObject& data, std::vector<RuleInfo>& rules);

    /// Resets the anti-passback time of a person: POST /obms/api/v1.1/acs/person/{personId}/anti-pass-time/reset, no
    /// body
    ///
    /// There is no Parse.
    /// @param personId the person, inserted unencoded
    static int PackPersonResetAntiPass(void* pReqParamData, const std::string& personId, int nServerId);
    /// @}

    /// @name Cards, intercom and alarm hosts
    /// The DESFire card configuration of the service, contacts of outdoor stations and zones of alarm hosts.
    /// @{

    /// Reads the DESFire card configuration: GET /obms/api/v1.1/acs/config/desfire
    static int PackGetConfigDesfireInfo(void* pReqParamData, int nServerId);
    /// Fills the fields of @p param in their order.
    static int ParseGetConfigDesfireInfo(const QJsonObject& data, AcsCardConfigParam& param);

    /// Writes both switches of the DESFire card configuration: PUT /obms/api/v1.1/acs/config/desfire
    ///
    /// Body: "enableDesfire" and "enableReadEncryptContent", the strings "1" or "0". There is no Parse. Its log texts
    /// are "UpdateConfigDesfireInfo is failed." and "UpdateConfigDesfireInfo is success.".
    /// @param param the new configuration
    static int PackUpdateConfigDesfireInfo(void* pReqParamData, const AcsCardConfigParam& param, int nServerId);

    /// Reads one page of the devices to which the card configuration could not be issued: GET
    /// /obms/api/v1.1/acs/config/desfire/failure/page?page={req.page}&pageSize={req.pageSize}&keyword={req.keyword}
    /// @param req the page, counted from 1 (0 also means the first page), its size, and the search text, empty for
    ///        all devices; the keyword is inserted unencoded, so pass `R&D` as `R%26D`
    static int PackGetPageConfigDesfireFailInfo(void* pReqParamData, const ConfigDesFireFailureReq& req, int nServerId);
    /// Stores "totalCount", the number of devices on all pages, in @p resp, then appends the devices in "pageData".
    /// Without "pageData" the count is not stored either.
    static int ParseGetPageConfigDesfireFailInfo(const QJsonObject& data, GetPageConfigDesfireFailureResp& resp);

    /// Reissues the card configuration to the devices where issuing it failed:
    /// POST /obms/api/v1.1/acs/config/desfire/failure/reissue, no body
    ///
    /// There is no Parse.
    static int PackReissueConfigDesfire(void* pReqParamData, int nServerId);

    /// Deletes intercom contacts of an outdoor station: POST /obms/api/v1.1/vtalk/issue/contact/delete
    ///
    /// Body: "mode", the string "1" for all contacts or "2" for the listed ones, "vtoDeviceCode", a string, and
    /// "vthDeviceCodes", a list of strings that is always empty for all contacts. There is no Parse. Its log texts are
    /// "Delete contacts failed." and "Delete contacts success.".
    /// @param param the station and the contacts
    static int PackDeleteAddressBooks(void* pReqParamData, const DeleteAddressBookParam& param, int nServerId);

    /// Requests a snapshot of an alarm host's zone: POST /obms/api/v1.1/alarm-host/zone/{zoneId}/snapshot
    ///
    /// Body: "action", the number @p action.
    /// @param zoneId the zone, inserted unencoded
    /// @param action the server's code (1 in the contract's example)
    static int PacketAlarmHostZoneSnapShot(void* pReqParamData, const std::string& zoneId, int action, int nServerId);
    /// Reads "session", the identifier of the requested snapshot, into @p session.
    static int ParseAlarmHostZoneSnapShot(const QJsonObject& data, std::string& session);
    /// @}

    COBMSModule& operator=(const COBMSModule&);      ///< Does nothing, the class has no data. @return *this
    COBMSModule& operator=(COBMSModule&&) noexcept;  ///< Does nothing, the class has no data. @return *this
};

}  // namespace APIModule
