#pragma once

#include <libornl/TalPrintLog.h>

#include <QObject>
#include <QString>
#include <QStringList>

#include <iosfwd>
#include <string>
#include <vector>

namespace testing_support {

/// A log line as the tests compare it: without the line number, which must only be positive.
struct LogLine {
    std::string file;
    std::string function;
    int level = 0;
    std::string message;
};

bool operator==(const LogLine& left, const LogLine& right);
std::ostream& operator<<(std::ostream& stream, const LogLine& line);

using LogLines = std::vector<LogLine>;

/// Collects all log lines during its lifetime.
class LogRecorder {
public:
    LogRecorder();
    ~LogRecorder();
    LogRecorder(const LogRecorder&) = delete;
    LogRecorder& operator=(const LogRecorder&) = delete;

    /// The lines since the last call.
    LogLines Take();

private:
    LogLines m_lines;
};

/// Collects the notified texts during its lifetime.
class NotificationRecorder {
public:
    NotificationRecorder();

    /// The texts since the last call.
    QStringList Take();

private:
    QStringList m_texts;
    QObject m_context;
};

}  // namespace testing_support

/// Prints the text when a comparison fails.
void PrintTo(const QString& text, std::ostream* pStream);
