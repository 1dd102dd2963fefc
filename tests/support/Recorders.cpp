#include "Recorders.h"

#include <OrnGui/OrnMessageNotify.h>
#include <OrnGui/OrnSingleton.h>

#include <gtest/gtest.h>

#include <ostream>
#include <utility>

namespace testing_support {

bool operator==(const LogLine& left, const LogLine& right)
{
    return left.file == right.file && left.function == right.function && left.level == right.level &&
           left.message == right.message;
}

std::ostream& operator<<(std::ostream& stream, const LogLine& line)
{
    return stream << '[' << line.level << "] " << line.file << ' ' << line.function << ": " << line.message;
}

LogRecorder::LogRecorder()
{
    ornl::TalPrintLog::instance().SetObserver([this](const ornl::LogRecord& record) {
        EXPECT_GT(record.nLine, 0) << record.strMessage;
        EXPECT_EQ(record.strTag, "") << record.strMessage;
        m_lines.push_back({record.strFile, record.strFunction, record.nLevel, record.strMessage});
    });
}

LogRecorder::~LogRecorder()
{
    ornl::TalPrintLog::instance().SetObserver({});
}

LogLines LogRecorder::Take()
{
    return std::exchange(m_lines, {});
}

NotificationRecorder::NotificationRecorder()
{
    QObject::connect(&ORNGUI::OrnSingleton<ORNGUI::OrnMessageNotify>::Instance(),
                     &ORNGUI::OrnMessageNotify::TextNotificationAdded, &m_context,
                     [this](const QString& text) { m_texts.append(text); });
}

QStringList NotificationRecorder::Take()
{
    return std::exchange(m_texts, {});
}

}  // namespace testing_support

void PrintTo(const QString& text, std::ostream* pStream)
{
    *pStream << '"' << text.toStdString() << '"';
}
