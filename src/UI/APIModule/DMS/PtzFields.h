#pragma once

#include "Ptz.h"

#include <boost/describe/class.hpp>

namespace APIModule {

// The fields of each record, in the order of their declaration.
BOOST_DESCRIBE_STRUCT(PtzWashStatus, (), (result, userName, userLevel, lowerDomain))
BOOST_DESCRIBE_STRUCT(PtzBatchWashStatus, (), (result, msg))
BOOST_DESCRIBE_STRUCT(PtzPositionResetReq, (), (result, userName, userLevel, lowerDomain))

}  // namespace APIModule
