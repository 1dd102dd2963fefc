#pragma once

#include "../APIModuleGlobal.h"

namespace APIModule {

/// The DMS family; it has no calls.
class APIMODULE_EXPORT CDMSModule {
public:
    CDMSModule() = default;
    CDMSModule(const CDMSModule&) = default;
    CDMSModule(CDMSModule&&) = default;
    CDMSModule& operator=(const CDMSModule& other);
    CDMSModule& operator=(CDMSModule&& other) noexcept;
};

}  // namespace APIModule
