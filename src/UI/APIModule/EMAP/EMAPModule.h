#pragma once

#include "../APIModuleGlobal.h"

namespace APIModule {

/// The EMAP family; it has no calls.
class APIMODULE_EXPORT CEMAPModule {
public:
    CEMAPModule& operator=(const CEMAPModule&);      ///< Does nothing, the class has no data. @return *this
    CEMAPModule& operator=(CEMAPModule&&) noexcept;  ///< Does nothing, the class has no data. @return *this
};

}  // namespace APIModule
