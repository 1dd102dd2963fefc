#pragma once

#include "ServerWarning.h"

#include <boost/describe/class.hpp>

namespace APIModule {

// The fields of each record, in the order of their declaration.
BOOST_DESCRIBE_STRUCT(CheckHostSpareWarning, (), (warningHappened, warningTime, warningContent))
BOOST_DESCRIBE_STRUCT(WarnDisk, (), (path, slot))
BOOST_DESCRIBE_STRUCT(DiskWarmParam, (), (serverIp, serverType, warnDisks))
BOOST_DESCRIBE_STRUCT(NetWorkItem, (), (netWorkName, netWorkValue))
BOOST_DESCRIBE_STRUCT(NetWorksParam, (), (netWorks))

}  // namespace APIModule
