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
/// A Parse reads the "data" object of the reply, @p data. It returns 0, or -1 at the first key that is missing: what it
/// read before that key stays filled. It appends to lists without clearing them, each element once all of it was read,
/// its inner lists included. It does not run for a reply without data.
///
/// "In the URL as given": the Pack escapes nothing there. The caller passes a text that may hold `%`, `&`, `#`, `?` or
/// `/` through QUrl::toPercentEncoding(). The keyword `R&D` would end at its ampersand, and the server refuse the call
/// with code 1003; `R%26D` finds it. QUrl itself encodes blanks and letters beyond ASCII.
///
/// Codes, units and text formats that the server defines pass through unchanged; the comments name the value in the
/// contract's example. A list in "results" is complete and has no total; a page has one.
class APIMODULE_EXPORT COBMSModule {
public:
    /// @name Access control
    /// Persons and rules of access points and devices.
    /// @{

    /// Reads one page of the authorised persons: POST /obms/api/v1.1/acs/person/access/authorize/fetch/page
    ///
    /// Body: every field of @p req under its key; numbers and flag are texts, "pointIds" is a list of texts, empty for
    /// no points. Texts in the body need no encoding.
    /// @param req the page, counted from 1 (0 is the first page, too), its size, and the filter, in which an empty
    ///        keyword, device or organisation stands for all
    static int PacketGetPageAccessAuthorizePersons(void* pReqParamData, const GetPageAccessAuthorizePersonsReq& req,
                                                   int nServerId);
    /// Stores "totalCount", the number of persons on all pages, in @p resp once "pageData" was found, then appends the
    /// persons of "pageData". Without "pageData" the count stays as it is.
    static int ParseGetPageAccessAuthorizePersons(const QJsonObject& data, GetPageAccessAuthorizePersonsResp& resp);

    /// Lists the persons who are managed on a device: GET /obms/api/v1.1/acs/device/{req.deviceCode}/manage/person/list
    /// @param req the device, in the URL as given
    /// @param nServerId ignored: the request always goes to the user manager's current server
    static int PacketGetManagePersons(void* pReqParamData, const GetManagePersonReq& req, int nServerId);
    /// Appends the persons of "results" with their organisations to @p persons.
    static int ParseGetManagePersons(const QJsonObject& data, std::vector<ManagePersonInfo>& persons);

    /// Replaces the persons who are managed on a device: PUT /obms/api/v1.1/acs/device/{req.deviceCode}/manage/person
    ///
    /// Body: "personIds", a list of texts, empty for no persons. There is no Parse.
    /// @param req the device, in the URL as given, and all of its persons
    static int PacketSetManagePersons(void* pReqParamData, const SetManagePersonReq& req, int nServerId);

    /// Lists the access rules of a point: GET
    /// /obms/api/v1.1/acp/point/{req.pointId}/rule/list?ruleType={req.ruleType}&hasOfflinePoint={req.hasOfflinePoint}
    /// @param req the point and the filter. Point and rule type are inserted into the URL as given. A `%` before a
    /// single digit
    ///        in them, as in `%2F`, would be replaced by a later value; codes of two digits such as `%26` are safe.
    static int PackGetPointRules(void* pReqParamData, const GetPointAccessRules& req, int nServerId);
    /// Appends the rules of "results" to @p rules.
    static int ParesGetPointRules(const QJsonObject& data, std::vector<RuleInfo>& rules);

    /// Resets the anti-passback time of a person: POST /obms/api/v1.1/acs/person/{personId}/anti-pass-time/reset, no
    /// body
    ///
    /// There is no Parse.
    /// @param personId the person, in the URL as given
    static int PackPersonResetAntiPass(void* pReqParamData, const std::string& personId, int nServerId);
    /// @}

    /// @name Cards, intercom and alarm hosts
    /// The DESFire card configuration of the service, contacts of outdoor stations and zones of alarm hosts.
    /// @{

    /// Reads the DESFire card configuration: GET /obms/api/v1.1/acs/config/desfire
    static int PackGetConfigDesfireInfo(void* pReqParamData, int nServerId);
    /// Fills the fields of @p param in their order.
    static int ParseGetConfigDesfireInfo(const QJsonObject& data, AcsCardConfigParam& param);

    /// Writes the DESFire card configuration, both switches: PUT /obms/api/v1.1/acs/config/desfire
    ///
    /// Body: "enableDesfire" and "enableReadEncryptContent", the texts "1" or "0". There is no Parse. Its log texts are
    /// "UpdateConfigDesfireInfo is failed." and "UpdateConfigDesfireInfo is success.".
    /// @param param the new configuration
    static int PackUpdateConfigDesfireInfo(void* pReqParamData, const AcsCardConfigParam& param, int nServerId);

    /// Reads one page of the devices to which the card configuration could not be issued: GET
    /// /obms/api/v1.1/acs/config/desfire/failure/page?page={req.page}&pageSize={req.pageSize}&keyword={req.keyword}
    /// @param req the page, counted from 1 (0 is the first page, too), its size, and the text to look for, empty for
    ///        all devices; the keyword is inserted into the URL as given, so `R&D` is passed as `R%26D`
    static int PackGetPageConfigDesfireFailInfo(void* pReqParamData, const ConfigDesFireFailureReq& req, int nServerId);
    /// Stores "totalCount", the number of devices on all pages, in @p resp once "pageData" was found, then appends the
    /// devices of "pageData". Without "pageData" the count stays as it is.
    static int ParseGetPageConfigDesfireFailInfo(const QJsonObject& data, GetPageConfigDesfireFailureResp& resp);

    /// Issues the card configuration again to the devices that did not get it:
    /// POST /obms/api/v1.1/acs/config/desfire/failure/reissue, no body
    ///
    /// There is no Parse.
    static int PackReissueConfigDesfire(void* pReqParamData, int nServerId);

    /// Deletes intercom contacts of an outdoor station: POST /obms/api/v1.1/vtalk/issue/contact/delete
    ///
    /// Body: "mode", the text "1" for all contacts or "2" for the listed ones, "vtoDeviceCode", a text, and
    /// "vthDeviceCodes", a list of texts that is always empty for all contacts. There is no Parse. Its log texts are
    /// "Delete contacts failed." and "Delete contacts success.".
    /// @param param the station and the contacts
    static int PackDeleteAddressBooks(void* pReqParamData, const DeleteAddressBookParam& param, int nServerId);

    /// Asks an alarm host for a snapshot of a zone: POST /obms/api/v1.1/alarm-host/zone/{zoneId}/snapshot
    ///
    /// Body: "action", the number @p action.
    /// @param zoneId the zone, in the URL as given
    /// @param action the server's code (1 in the contract's example)
    static int PacketAlarmHostZoneSnapShot(void* pReqParamData, const std::string& zoneId, int action, int nServerId);
    /// Reads "session", which names the snapshot that the server started, into @p session.
    static int ParseAlarmHostZoneSnapShot(const QJsonObject& data, std::string& session);
    /// @}

    COBMSModule& operator=(const COBMSModule&);      ///< Does nothing, the class has no data. @return *this
    COBMSModule& operator=(COBMSModule&&) noexcept;  ///< Does nothing, the class has no data. @return *this
};

}  // namespace APIModule
