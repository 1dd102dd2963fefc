#pragma once

#include <QString>

namespace APIModule::detail {

/// Where a log line comes from, as the line tells it.
struct LogSite {
    const char* file;      ///< source path, without an extension
    const char* function;  ///< full name, with namespace and class
    int line = __builtin_LINE();
};

/// Logs information or success. The text is never taken as a format.
void LogInfo(const LogSite& site, const char* text);
void LogInfo(const LogSite& site, const QString& text);

/// Logs a failure. The text is never taken as a format.
void LogFailure(const LogSite& site, const char* text);
void LogFailure(const LogSite& site, const QString& text);

}  // namespace APIModule::detail
