#pragma once

#include "QuickCommand.h"

#include <boost/describe/class.hpp>

namespace APIModule {

// The fields of each record, in the order of their declaration.
BOOST_DESCRIBE_STRUCT(QuickCommandHttpUrl, (), (method, url, body, seq))
BOOST_DESCRIBE_STRUCT(QuickCommand, (),
                      (id, quickCommandName, enableShortcutKeys, shortcutKeys, executeMode, remark, httpUrls))

}  // namespace APIModule
