#pragma once

#include "CardIntercom.h"

#include <boost/describe/class.hpp>

namespace APIModule {

// The fields of each record, in the order of their declaration.
BOOST_DESCRIBE_STRUCT(AcsCardConfigParam, (), (enableDesfire, enableReadEncryptContent))
BOOST_DESCRIBE_STRUCT(ConfigDesFireFailureReq, (), (page, pageSize, keyword))
BOOST_DESCRIBE_STRUCT(DesfireFailureInfo, (), (id, deviceCode, deviceName, deviceIp, reason))
BOOST_DESCRIBE_STRUCT(GetPageConfigDesfireFailureResp, (), (totalCount, pageData))
BOOST_DESCRIBE_STRUCT(DeleteAddressBookParam, (), (deleteAll, vtoDeviceCode, vthDeviceCodes))

}  // namespace APIModule
