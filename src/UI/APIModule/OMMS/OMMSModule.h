#pragma once

#include "../APIModuleGlobal.h"

namespace APIModule {

/// The OMMS family; it has no calls.
class APIMODULE_EXPORT COMMSModule {
public:
    COMMSModule() = default;
    COMMSModule(const COMMSModule&) = default;
    COMMSModule(COMMSModule&&) = default;
    COMMSModule& operator=(const COMMSModule& other);
    COMMSModule& operator=(COMMSModule&& other) noexcept;
};

}  // namespace APIModule
