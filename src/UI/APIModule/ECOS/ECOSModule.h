#pragma once

#include "../APIModuleGlobal.h"

namespace APIModule {

/// The ECOS family; it has no calls.
class APIMODULE_EXPORT CECOSModule {
public:
    CECOSModule& operator=(const CECOSModule&);      ///< Does nothing, the class has no data. @return *this
    CECOSModule& operator=(CECOSModule&&) noexcept;  ///< Does nothing, the class has no data. @return *this
};

}  // namespace APIModule
