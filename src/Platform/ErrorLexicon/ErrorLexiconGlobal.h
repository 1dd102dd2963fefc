#pragma once

/// Marks the exported symbols, for the library and its users alike.
#if defined(__GNUC__)
#define ERRORLEXICON_EXPORT __attribute__((visibility("default")))
#else
#define ERRORLEXICON_EXPORT
#endif
