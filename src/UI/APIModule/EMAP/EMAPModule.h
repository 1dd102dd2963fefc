#pragma once

#include "../APIModuleGlobal.h"

namespace APIModule {

/// The EMAP family; it has no calls.
class APIMODULE_EXPORT CEMAPModule {
public:
    CEMAPModule& operator=(const CEMAPModule&);      ///< @assignsnothing
    CEMAPModule& operator=(CEMAPModule&&) noexcept;  ///< @assignsnothing
};

}  // namespace APIModule
