#pragma once

#include <QtGlobal>

/// Marks the exported symbols; a user needs no definition to import them.
#if defined(ORNGUI_LIBRARY)
#define ORNGUI_EXPORT Q_DECL_EXPORT
#else
#define ORNGUI_EXPORT Q_DECL_IMPORT
#endif
