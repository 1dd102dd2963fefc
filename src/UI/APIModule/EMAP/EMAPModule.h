#pragma once

#include "../APIModuleGlobal.h"

namespace APIModule {

/// The EMAP family; it has no calls.
class APIMODULE_EXPORT CEMAPModule {
public:
    CEMAPModule& operator=(const CEMAPModule& other);      ///< Does nothing: the class has no data.
    CEMAPModule& operator=(CEMAPModule&& other) noexcept;  ///< Does nothing: the class has no data.
};

}  // namespace APIModule
