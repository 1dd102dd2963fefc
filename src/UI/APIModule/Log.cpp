#include "Log_p.h"

#include <libornl/TalPrintLog.h>

namespace APIModule::detail {

namespace {

constexpr int kLevelInfo = 4;
constexpr int kLevelFailure = 6;

thread_local LogCapture::Lines* pCaptured = nullptr;

void Write(const LogSite& site, int level, const char* text)
{
    if (pCaptured) {
        pCaptured->push_back({site, level, text});
        return;
    }
    ornl::TalPrintLog::instance().Log(site.file, site.line, site.function, "", level, "%s", text);
}

}  // namespace

void LogInfo(const LogSite& site, const char* text)
{
    Write(site, kLevelInfo, text);
}

void LogInfo(const LogSite& site, const QString& text)
{
    Write(site, kLevelInfo, text.toUtf8().constData());
}

void LogFailure(const LogSite& site, const char* text)
{
    Write(site, kLevelFailure, text);
}

void LogFailure(const LogSite& site, const QString& text)
{
    Write(site, kLevelFailure, text.toUtf8().constData());
}

LogCapture::LogCapture(Lines& lines)
{
    pCaptured = &lines;
}

LogCapture::~LogCapture()
{
    pCaptured = nullptr;
}

void LogCapture::Write(const Lines& lines)
{
    for (const Line& line : lines) {
        detail::Write(line.site, line.level, line.text.c_str());
    }
}

}  // namespace APIModule::detail
