#include "Log_p.h"

#include <libornl/TalPrintLog.h>

namespace APIModule::detail {

namespace {

constexpr int kLevelInfo = 4;
constexpr int kLevelFailure = 6;

void Write(const LogSite& site, int level, const char* text)
{
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

}  // namespace APIModule::detail
