#pragma once

#include <QtGlobal>

/// Marks what the library exports; a user needs no definition of its own to import it.
#if defined(ORNGUI_LIBRARY)
#define ORNGUI_EXPORT Q_DECL_EXPORT
#else
#define ORNGUI_EXPORT Q_DECL_IMPORT
#endif
