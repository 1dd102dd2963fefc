#pragma once

#include "../APIModuleGlobal.h"

namespace APIModule {

/// The ERMS family; it has no calls.
class APIMODULE_EXPORT CERMSModule {
public:
    CERMSModule& operator=(const CERMSModule&);      ///< @assignsnothing
    CERMSModule& operator=(CERMSModule&&) noexcept;  ///< @assignsnothing
};

}  // namespace APIModule
