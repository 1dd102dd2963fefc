#pragma once

#include "SystemConfig.h"

#include <boost/describe/class.hpp>

namespace APIModule {

// The fields of each record, in the order of their declaration.
BOOST_DESCRIBE_STRUCT(TimeSyncConfig, (),
                      (enable, startTime, interval, deviceOnlineTimeSync, enableNtp, ntpIp, ntpPort, ntpSyncInterval))
BOOST_DESCRIBE_STRUCT(RemoteLogConfigInfo, (), (enable, ip, port, platformId))
BOOST_DESCRIBE_STRUCT(LocalSettingQueryResult, (), (apply, settingType, settingVersion, settingContent))

}  // namespace APIModule
