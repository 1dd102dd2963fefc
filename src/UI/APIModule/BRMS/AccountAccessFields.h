#pragma once

#include "AccountAccess.h"

#include <boost/describe/class.hpp>

namespace APIModule {

// The fields of each record, in the order of their declaration.
BOOST_DESCRIBE_STRUCT(GetChannelWebTunnelRsp, (), (https, port, ip, username, token))
BOOST_DESCRIBE_STRUCT(PermissionResourceCollectionResp, (), (menuFunctionCodes, localConfigItemCodes))
BOOST_DESCRIBE_STRUCT(FunctionChannelCheck, (), (channelId, functionCode))
BOOST_DESCRIBE_STRUCT(FunctionChannelCheckResult, (), (authorized))
BOOST_DESCRIBE_STRUCT(DeviceCategoryParamReq, (), (keyword, orgCode, domain, permitted, sourceType, containChild))
BOOST_DESCRIBE_STRUCT(DeviceCategoryQueryResult, (), (deviceCategory, deviceCount))

}  // namespace APIModule
