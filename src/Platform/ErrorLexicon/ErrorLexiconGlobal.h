#pragma once

/// Marks what the library exports; one form serves the library and its users.
#if defined(__GNUC__)
#define ERRORLEXICON_EXPORT __attribute__((visibility("default")))
#else
#define ERRORLEXICON_EXPORT
#endif
