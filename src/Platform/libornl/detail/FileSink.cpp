#include "FileSink.h"

#include <utility>

namespace ornl::detail {
namespace {

constexpr std::size_t kMaxFileSize = std::size_t{5} * 1024 * 1024;
constexpr std::size_t kRotatedFiles = 3;

bool IsSameFile(const struct stat& left, const struct stat& right)
{
    return left.st_dev == right.st_dev && left.st_ino == right.st_ino;
}

}  // namespace

FileSink::FileSink(std::string strFileName) : m_strFileName(std::move(strFileName))
{
    Open();
}

void FileSink::Open()
{
    m_file.reset();  // if opening fails, the next line tries again
    m_file = std::make_unique<spdlog::sinks::rotating_file_sink_st>(m_strFileName, kMaxFileSize, kRotatedFiles);
    m_file->set_formatter(formatter_->clone());
    (void)stat(m_strFileName.c_str(), &m_opened);
}

void FileSink::sink_it_(const spdlog::details::log_msg& message)
{
    struct stat now {};
    // A rotation replaces the file, too.
    if (!m_file || stat(m_strFileName.c_str(), &now) != 0 || !IsSameFile(now, m_opened)) {
        Open();
    }
    m_file->log(message);
}

void FileSink::flush_()
{
    if (m_file) {
        m_file->flush();
    }
}

void FileSink::set_formatter_(std::unique_ptr<spdlog::formatter> formatter)
{
    base_sink::set_formatter_(std::move(formatter));
    if (m_file) {
        m_file->set_formatter(formatter_->clone());
    }
}

}  // namespace ornl::detail
