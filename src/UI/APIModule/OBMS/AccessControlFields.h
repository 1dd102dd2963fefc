#pragma once

#include "AccessControl.h"

#include <boost/describe/class.hpp>

namespace APIModule {

// The fields of each record, in the order of their declaration.
BOOST_DESCRIBE_STRUCT(GetPageAccessAuthorizePersonsReq, (),
                      (page, pageSize, containChild, keyword, deviceCode, orgCode, pointIds))
BOOST_DESCRIBE_STRUCT(PersonOrgInfo, (), (orgCode, orgName))
BOOST_DESCRIBE_STRUCT(AccessAuthorizePersonInfo, (), (personId, personName, orgCode, orgName, orgInfos))
BOOST_DESCRIBE_STRUCT(GetPageAccessAuthorizePersonsResp, (), (totalCount, pageData))
BOOST_DESCRIBE_STRUCT(GetManagePersonReq, (), (deviceCode))
BOOST_DESCRIBE_STRUCT(ManagePersonInfo, (), (personId, personName, orgCode, orgName, errorCode, orgInfos))
BOOST_DESCRIBE_STRUCT(SetManagePersonReq, (), (deviceCode, personIds))
BOOST_DESCRIBE_STRUCT(GetPointAccessRules, (), (pointId, ruleType, hasOfflinePoint))
BOOST_DESCRIBE_STRUCT(RuleInfo, (), (ruleId, ruleName, ruleType, hasOfflinePoint))

}  // namespace APIModule
