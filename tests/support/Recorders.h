#pragma once

#include <libornl/TalPrintLog.h>

#include <QObject>
#include <QString>
#include <QStringList>

#include <iosfwd>
#include <string>
#include <vector>

namespace testing_support {

/// One log line as the tests compare it: everything but the line number, which must only be there.
struct LogLine {
    std::string file;
    std::string function;
    int level = 0;
    std::string message;
};

bool operator==(const LogLine& left, const LogLine& right);
std::ostream& operator<<(std::ostream& stream, const LogLine& line);

using LogLines = std::vector<LogLine>;

/// Collects everything that is logged during its lifetime.
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

/// Collects the texts that are notified while it lives.
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

/// Shows the text where a comparison fails.
void PrintTo(const QString& text, std::ostream* pStream);
