#pragma once

#include "../APIModuleGlobal.h"

namespace APIModule {

/// The IAMS family; it has no calls.
class APIMODULE_EXPORT CIAMSModule {
public:
    CIAMSModule() = default;
    CIAMSModule(const CIAMSModule&) = default;
    CIAMSModule(CIAMSModule&&) = default;
    CIAMSModule& operator=(const CIAMSModule& other);
    CIAMSModule& operator=(CIAMSModule&& other) noexcept;
};

}  // namespace APIModule
