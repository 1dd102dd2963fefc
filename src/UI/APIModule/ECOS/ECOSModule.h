#pragma once

#include "../APIModuleGlobal.h"

namespace APIModule {

/// The ECOS family; it has no calls.
class APIMODULE_EXPORT CECOSModule {
public:
    CECOSModule() = default;
    CECOSModule(const CECOSModule&) = default;
    CECOSModule(CECOSModule&&) = default;
    CECOSModule& operator=(const CECOSModule& other);
    CECOSModule& operator=(CECOSModule&& other) noexcept;
};

}  // namespace APIModule
