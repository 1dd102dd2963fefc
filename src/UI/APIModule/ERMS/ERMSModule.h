#pragma once

#include "../APIModuleGlobal.h"

namespace APIModule {

/// The ERMS family; it has no calls.
class APIMODULE_EXPORT CERMSModule {
public:
    CERMSModule& operator=(const CERMSModule&);      ///< Does nothing, the class has no data. @return *this
    CERMSModule& operator=(CERMSModule&&) noexcept;  ///< Does nothing, the class has no data. @return *this
};

}  // namespace APIModule
