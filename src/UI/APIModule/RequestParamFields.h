#pragma once

#include "APIModule.h"

#include <boost/describe/class.hpp>

namespace APIModule {

// The fields, in the order of their declaration.
BOOST_DESCRIBE_STRUCT(RequestParam, (),
                      (nPort, nTimeout, bHttps, bCompress, eMethod, strIp, strUrl, strBody, strToken, strSequence,
                       bExcludeUserInput))

}  // namespace APIModule
