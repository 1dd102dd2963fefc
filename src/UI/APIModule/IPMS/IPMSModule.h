#pragma once

#include "../APIModuleGlobal.h"

namespace APIModule {

/// The IPMS family; it has no calls.
class APIMODULE_EXPORT CIPMSModule {
public:
    CIPMSModule() = default;
    CIPMSModule(const CIPMSModule&) = default;
    CIPMSModule(CIPMSModule&&) = default;
    CIPMSModule& operator=(const CIPMSModule& other);
    CIPMSModule& operator=(CIPMSModule&& other) noexcept;
};

}  // namespace APIModule
