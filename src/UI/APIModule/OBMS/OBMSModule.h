#pragma once

#include "../APIModuleGlobal.h"

namespace APIModule {

/// The OBMS family; it has no calls.
class APIMODULE_EXPORT COBMSModule {
public:
    COBMSModule() = default;
    COBMSModule(const COBMSModule&) = default;
    COBMSModule(COBMSModule&&) = default;
    COBMSModule& operator=(const COBMSModule& other);
    COBMSModule& operator=(COBMSModule&& other) noexcept;
};

}  // namespace APIModule
