#pragma once

#include "../APIModuleGlobal.h"

namespace APIModule {

/// The ECOS family; it has no calls.
class APIMODULE_EXPORT CECOSModule {
public:
    CECOSModule& operator=(const CECOSModule&);      ///< @assignsnothing
    CECOSModule& operator=(CECOSModule&&) noexcept;  ///< @assignsnothing
};

}  // namespace APIModule
