#pragma once

/// ORNL_EXPORT marks the exported symbols, for the library and its users alike.
/// ORNL_PRINTF has the compiler check a printf format and its arguments, counted from 1.
#if defined(__GNUC__)
#define ORNL_EXPORT __attribute__((visibility("default")))
#define ORNL_PRINTF(text, arguments) __attribute__((format(printf, text, arguments)))
#else
#define ORNL_EXPORT
#define ORNL_PRINTF(text, arguments)
#endif
