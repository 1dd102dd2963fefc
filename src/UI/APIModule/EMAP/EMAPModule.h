#pragma once

#include "../APIModuleGlobal.h"

namespace APIModule {

/// The EMAP family; it has no calls.
class APIMODULE_EXPORT CEMAPModule {
public:
    CEMAPModule() = default;
    CEMAPModule(const CEMAPModule&) = default;
    CEMAPModule(CEMAPModule&&) = default;
    CEMAPModule& operator=(const CEMAPModule& other);
    CEMAPModule& operator=(CEMAPModule&& other) noexcept;
};

}  // namespace APIModule
