#pragma once

#include <spdlog/details/null_mutex.h>
#include <spdlog/sinks/base_sink.h>
#include <spdlog/sinks/rotating_file_sink.h>

#include <sys/stat.h>

#include <memory>
#include <string>

namespace ornl::detail {

/// A rotating file that is opened again after it was deleted or replaced. The caller must lock.
class FileSink : public spdlog::sinks::base_sink<spdlog::details::null_mutex> {
public:
    /// Opens the file; throws spdlog::spdlog_ex when that fails.
    explicit FileSink(std::string strFileName);

protected:
    void sink_it_(const spdlog::details::log_msg& message) override;
    void flush_() override;
    void set_formatter_(std::unique_ptr<spdlog::formatter> formatter) override;

private:
    void Open();

    const std::string m_strFileName;
    std::unique_ptr<spdlog::sinks::rotating_file_sink_st> m_file;
    struct stat m_opened {};
};

}  // namespace ornl::detail
