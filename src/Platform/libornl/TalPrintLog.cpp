#include "TalPrintLog.h"

#include "detail/FileSink.h"
#include "detail/WithoutSigpipe.h"

#include <spdlog/logger.h>
#include <spdlog/pattern_formatter.h>
#include <spdlog/sinks/dist_sink.h>
#include <spdlog/sinks/stdout_sinks.h>

#include <cstdarg>
#include <cstdio>
#include <exception>
#include <mutex>
#include <string_view>
#include <utility>
#include <vector>

namespace ornl {
namespace {

using Observer = std::function<void(const LogRecord&)>;

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

/// The part of a line before its message.
std::string Head(const char* file, int line, const char* function, std::string_view tag)
{
    constexpr std::size_t kUsualSize = 384;
    std::string text;
    text.reserve(kUsualSize);
    text.append(file).append(1, ':').append(std::to_string(line)).append(1, ' ').append(function).append(": ");
    if (!tag.empty()) {
        text.append(1, '[').append(tag).append("] ");
    }
    return text;
}

/// Writes a line that is already formatted.
class CompleteLine : public spdlog::formatter {
public:
    void format(const spdlog::details::log_msg& line, spdlog::memory_buf_t& written) override
    {
        written.append(line.payload.begin(), line.payload.end());
    }
    std::unique_ptr<spdlog::formatter> clone() const override { return std::make_unique<CompleteLine>(); }
};

/// Formats each line once for all sinks.
class Sinks : public spdlog::sinks::dist_sink_mt {
public:
    /// Standard error and, when it is not null, a second sink.
    void Set(const spdlog::sink_ptr& second)
    {
        std::vector<spdlog::sink_ptr> all{m_stderr};
        if (second) {
            all.push_back(second);
        }
        for (const spdlog::sink_ptr& each : all) {
            each->set_formatter(std::make_unique<CompleteLine>());
        }
        set_sinks(std::move(all));
    }

protected:
    void sink_it_(const spdlog::details::log_msg& message) override
    {
        spdlog::memory_buf_t line;
        m_pattern.format(message, line);
        spdlog::details::log_msg complete = message;
        complete.payload = {line.data(), line.size()};
        dist_sink::sink_it_(complete);
    }

private:
    const spdlog::sink_ptr m_stderr = std::make_shared<spdlog::sinks::stderr_sink_mt>();
    spdlog::pattern_formatter m_pattern{kPattern};
};

void ReportOnStderr(const char* what, const char* reason)
{
    const detail::WithoutSigpipe withoutSigpipe;
    (void)std::fprintf(stderr, "ornl: %s: %s\n", what, reason);
}

}  // namespace

class TalPrintLog::Private {
public:
    Private()
    {
        sinks->Set(nullptr);
        logger.set_level(spdlog::level::trace);
        logger.flush_on(spdlog::level::trace);
    }

    std::shared_ptr<const Observer> CurrentObserver()
    {
        const std::lock_guard<std::mutex> lock(observerMutex);
        return observer;
    }

    const std::shared_ptr<Sinks> sinks = std::make_shared<Sinks>();
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
    std::string text = Head(OrEmpty(file), line, OrEmpty(function), OrEmpty(tag));
    const std::size_t head = text.size();
    if (format) {
        // The arguments are read again if the first buffer is too small. Nothing may throw before va_end().
        constexpr std::size_t kUsualSize = 128;
        text.resize(head + kUsualSize);
        std::va_list arguments;
        va_start(arguments, format);
        const int length = std::vsnprintf(&text[head], kUsualSize, format, arguments);
        va_end(arguments);
        const std::size_t size = length < 0 ? 0 : static_cast<std::size_t>(length);
        if (size >= kUsualSize) {
            text.resize(head + size + 1);
            va_start(arguments, format);
            (void)std::vsnprintf(&text[head], size + 1, format, arguments);
            va_end(arguments);
        }
        text.resize(head + size);
        if (length < 0) {
            text.append(format);  // an invalid format is logged as its text
        }
    }

    {
        const detail::WithoutSigpipe withoutSigpipe;  // standard error may be a closed pipe
        d->logger.log(SpdlogLevel(level), spdlog::string_view_t(text));
    }
    if (const auto observer = d->CurrentObserver()) {
        (*observer)({OrEmpty(file), line, OrEmpty(function), OrEmpty(tag), level, text.substr(head)});
    }
} catch (const std::exception& error) {
    ReportOnStderr("a record was not logged completely", error.what());
} catch (...) {
    ReportOnStderr("a record was not logged completely", "unknown exception");
}

void TalPrintLog::SetObserver(std::function<void(const LogRecord&)> observer)
{
    auto next = observer ? std::make_shared<const Observer>(std::move(observer)) : nullptr;
    // The old observer is destroyed after the lock is released, because its destructor may log.
    const std::lock_guard<std::mutex> lock(d->observerMutex);
    d->observer.swap(next);
}

void TalPrintLog::SetFile(const std::string& strFileName)
try {
    const std::lock_guard<std::mutex> lock(d->fileMutex);
    d->sinks->Set(nullptr);
    if (!strFileName.empty()) {
        d->sinks->Set(std::make_shared<detail::FileSink>(strFileName));
    }
} catch (const std::exception& error) {
    ReportOnStderr(strFileName.c_str(), error.what());
}

}  // namespace ornl
