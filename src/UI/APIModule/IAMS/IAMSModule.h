#pragma once

#include "../APIModuleGlobal.h"

namespace APIModule {

/// The IAMS family; it has no calls.
class APIMODULE_EXPORT CIAMSModule {
public:
    CIAMSModule& operator=(const CIAMSModule& other);      ///< Does nothing: the class has no data.
    CIAMSModule& operator=(CIAMSModule&& other) noexcept;  ///< Does nothing: the class has no data.
};

}  // namespace APIModule
