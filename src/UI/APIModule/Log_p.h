#pragma once

#include <QString>

#include <string>
#include <vector>

namespace APIModule::detail {

/// The origin of a log line.
struct LogSite {
    const char* file;      ///< source path, without an extension
    const char* function;  ///< full name, with namespace and class; both live as long as the line
    int line = __builtin_LINE();
};

/// Logs information or success. The text is never used as a format.
void LogInfo(const LogSite& site, const char* text);
void LogInfo(const LogSite& site, const QString& text);

/// Logs a failure. The text is never used as a format.
void LogFailure(const LogSite& site, const char* text);
void LogFailure(const LogSite& site, const QString& text);

/// Holds back the log lines of its thread during its lifetime, so that another thread can write them.
class LogCapture {
public:
    struct Line {
        LogSite site;
        int level;
        std::string text;
    };
    using Lines = std::vector<Line>;

    explicit LogCapture(Lines& lines);
    ~LogCapture();
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    static void Write(const Lines& lines);
};

}  // namespace APIModule::detail
