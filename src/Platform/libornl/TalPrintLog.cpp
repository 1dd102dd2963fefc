#include "TalPrintLog.h"

#include <spdlog/logger.h>
#include <spdlog/sinks/dist_sink.h>
#include <spdlog/sinks/rotating_file_sink.h>
#include <spdlog/sinks/stdout_sinks.h>

#include <cstdarg>
#include <cstdio>
#include <exception>
#include <mutex>
#include <utility>

namespace ornl {
namespace {

using Observer = std::function<void(const LogRecord&)>;

constexpr std::size_t kMaxFileSize = std::size_t{5} * 1024 * 1024;
constexpr std::size_t kRotatedFiles = 3;
constexpr const char* kPattern = "%Y-%m-%d %H:%M:%S.%e %t %l %v";

const char* OrEmpty(const char* text)
{
    return text != nullptr ? text : "";
}

spdlog::level::level_enum SpdlogLevel(int level)
{
    if (level <= 2) {
        return spdlog::level::trace;
    }
    switch (level) {
    case 3:
        return spdlog::level::debug;
    case 4:
        return spdlog::level::info;
    case 5:
        return spdlog::level::warn;
    case 6:
        return spdlog::level::err;
    default:
        return spdlog::level::critical;
    }
}

/// A format that cannot be carried out gives its own text.
ORNL_PRINTF(1, 0) std::string Formatted(const char* format, std::va_list arguments)
{
    std::va_list counted;
    va_copy(counted, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, counted);
    va_end(counted);
    if (length < 0) {
        return format;
    }
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    (void)std::vsnprintf(text.data(), text.size(), format, arguments);
    text.pop_back();
    return text;
}

std::string Line(const LogRecord& record)
{
    std::string line = record.strFile + ':' + std::to_string(record.nLine) + ' ' + record.strFunction + ": ";
    if (!record.strTag.empty()) {
        line += '[' + record.strTag + "] ";
    }
    return line += record.strMessage;
}

void ReportOnStderr(const char* what, const char* reason)
{
    (void)std::fprintf(stderr, "ornl: %s: %s\n", what, reason);
}

}  // namespace

class TalPrintLog::Private {
public:
    Private()
    {
        logger.set_level(spdlog::level::trace);
        logger.set_pattern(kPattern);
        logger.flush_on(spdlog::level::trace);
    }

    std::shared_ptr<const Observer> CurrentObserver()
    {
        const std::lock_guard<std::mutex> lock(observerMutex);
        return observer;
    }

    const spdlog::sink_ptr stderrSink = std::make_shared<spdlog::sinks::stderr_sink_mt>();
    const std::shared_ptr<spdlog::sinks::dist_sink_mt> sinks =
        std::make_shared<spdlog::sinks::dist_sink_mt>(std::vector<spdlog::sink_ptr>{stderrSink});
    spdlog::logger logger{"ornl", sinks};
    std::mutex fileMutex;

    std::mutex observerMutex;
    std::shared_ptr<const Observer> observer;
};

TalPrintLog::TalPrintLog() : d(std::make_unique<Private>()) {}

TalPrintLog::~TalPrintLog() = default;

TalPrintLog& TalPrintLog::instance()
{
    static auto* const pInstance = new TalPrintLog;
    return *pInstance;
}

void TalPrintLog::Log(const char* file, int line, const char* function, const char* tag, int level, const char* format,
                      ...)
try {
    LogRecord record{OrEmpty(file), line, OrEmpty(function), OrEmpty(tag), level, {}};
    std::va_list arguments;
    va_start(arguments, format);
    if (format) {
        record.strMessage = Formatted(format, arguments);
    }
    va_end(arguments);

    d->logger.log(SpdlogLevel(level), spdlog::string_view_t(Line(record)));
    if (const auto observer = d->CurrentObserver()) {
        (*observer)(record);
    }
} catch (const std::exception& error) {
    ReportOnStderr("a record was not logged completely", error.what());
} catch (...) {
    ReportOnStderr("a record was not logged completely", "unknown exception");
}

void TalPrintLog::SetObserver(std::function<void(const LogRecord&)> observer)
{
    auto next = observer ? std::make_shared<const Observer>(std::move(observer)) : nullptr;
    // The old observer is released after the lock: what it owns may log when it goes.
    const std::lock_guard<std::mutex> lock(d->observerMutex);
    d->observer.swap(next);
}

void TalPrintLog::SetFile(const std::string& strFileName)
try {
    const std::lock_guard<std::mutex> lock(d->fileMutex);
    d->sinks->set_sinks({d->stderrSink});
    if (!strFileName.empty()) {
        auto fileSink =
            std::make_shared<spdlog::sinks::rotating_file_sink_mt>(strFileName, kMaxFileSize, kRotatedFiles);
        fileSink->set_pattern(kPattern);
        d->sinks->add_sink(std::move(fileSink));
    }
} catch (const std::exception& error) {
    ReportOnStderr(strFileName.c_str(), error.what());
}

}  // namespace ornl
