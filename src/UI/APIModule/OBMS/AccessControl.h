#pragma once

#include "../APIModuleGlobal.h"

#include <string>
#include <vector>

namespace APIModule {

/// The requested page of the authorised persons, and their filter.
struct GetPageAccessAuthorizePersonsReq {
    int page = 0;                       ///< "page": page number from 1, 0 also means 1; sent as a decimal string
    int pageSize = 0;                   ///< "pageSize": persons per page; sent as a decimal string
    bool containChild = false;          ///< "containChild": include child organisations; sent as "1" or "0"
    std::string keyword;                ///< "keyword": search text, empty for all persons
    std::string deviceCode;             ///< "deviceCode": the access control device, empty for all
    std::string orgCode;                ///< "orgCode": the organisation, empty for all
    std::vector<std::string> pointIds;  ///< "pointIds": the access points
};

/// One organisation of a person.
struct PersonOrgInfo {
    std::string orgCode;  ///< "orgCode": code of the organisation
    std::string orgName;  ///< "orgName": its name
};

/// One person who is authorised at access points.
struct AccessAuthorizePersonInfo {
    std::string personId;                 ///< "personId": the person
    std::string personName;               ///< "personName": the person's name
    std::string orgCode;                  ///< "orgCode": the person's organisation
    std::string orgName;                  ///< "orgName": name of that organisation
    std::vector<PersonOrgInfo> orgInfos;  ///< "orgInfos": the organisations of the person
};

/// One page of the authorised persons.
struct GetPageAccessAuthorizePersonsResp {
    int totalCount = 0;                               ///< "totalCount": persons on all pages
    std::vector<AccessAuthorizePersonInfo> pageData;  ///< "pageData": the persons of the page
};

/// The access control device whose managed persons are listed.
struct GetManagePersonReq {
    std::string deviceCode;  ///< the device
};

/// One person who is managed on an access control device.
struct ManagePersonInfo {
    std::string personId;                 ///< "personId": the person
    std::string personName;               ///< "personName": the person's name
    std::string orgCode;                  ///< "orgCode": the person's organisation
    std::string orgName;                  ///< "orgName": name of that organisation
    std::string errorCode;                ///< "errorCode": the server's code, as a string, such as "0"
    std::vector<PersonOrgInfo> orgInfos;  ///< "orgInfos": the organisations of the person
};

/// The persons to manage on an access control device.
struct SetManagePersonReq {
    std::string deviceCode;              ///< the device
    std::vector<std::string> personIds;  ///< "personIds": the persons
};

/// Filter of the listed access rules.
struct GetPointAccessRules {
    std::string pointId;      ///< the access point
    std::string ruleType;     ///< "ruleType": kind of rule, the server's code as a string, such as "1"
    int hasOfflinePoint = 0;  ///< "hasOfflinePoint": a number in the query, such as 0; a flag in the reply
};

/// One access rule of a point.
struct RuleInfo {
    std::string ruleId;            ///< "ruleId": identifier of the rule
    std::string ruleName;          ///< "ruleName": display name
    std::string ruleType;          ///< "ruleType": kind of rule, the server's code as a string
    bool hasOfflinePoint = false;  ///< "hasOfflinePoint": a point of the rule is offline
};

}  // namespace APIModule
