#pragma once

#include <QtGlobal>

/// Marks exported symbols. A host imports them without defining anything.
#if defined(APIMODULE_LIBRARY)
#define APIMODULE_EXPORT Q_DECL_EXPORT
#else
#define APIMODULE_EXPORT Q_DECL_IMPORT
#endif

namespace APIModule {

/// The 64-bit integer of the records.
using int64 = long long;

}  // namespace APIModule

// The CMake package and the pkg-config file define the Qt of the library.
#if defined(APIMODULE_QT_MAJOR) && APIMODULE_QT_MAJOR != QT_VERSION_MAJOR
#error "APIModule was built with the other major version of Qt: see APIMODULE_QT_MAJOR"
#endif
