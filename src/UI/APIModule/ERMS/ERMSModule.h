#pragma once

#include "../APIModuleGlobal.h"

namespace APIModule {

/// The ERMS family; it has no calls.
class APIMODULE_EXPORT CERMSModule {
public:
    CERMSModule() = default;
    CERMSModule(const CERMSModule&) = default;
    CERMSModule(CERMSModule&&) = default;
    CERMSModule& operator=(const CERMSModule& other);
    CERMSModule& operator=(CERMSModule&& other) noexcept;
};

}  // namespace APIModule
