#include "BufferedStandardError.h"

#include <unistd.h>

#include <array>
#include <iostream>

namespace apicall {

BufferedStandardError::BufferedStandardError() : m_file(std::tmpfile(), std::fclose)
{
    std::cerr << std::flush;
    if (m_file) {
        m_original = dup(STDERR_FILENO);
    }
    if (m_original != -1) {
        dup2(fileno(m_file.get()), STDERR_FILENO);
    }
}

BufferedStandardError::~BufferedStandardError()
{
    Restore();
}

void BufferedStandardError::Restore()
{
    if (m_original != -1) {
        dup2(m_original, STDERR_FILENO);
        close(m_original);
        m_original = -1;
    }
}

void BufferedStandardError::Release()
{
    if (m_original == -1) {
        return;
    }
    Restore();
    std::rewind(m_file.get());
    constexpr std::size_t kPart = 4096;
    std::array<char, kPart> part{};
    while (const std::size_t size = std::fread(part.data(), 1, part.size(), m_file.get())) {
        std::cerr.write(part.data(), std::streamsize(size));
    }
    std::cerr << std::flush;
}

void BufferedStandardError::WriteThrough(const std::string& text)
{
    const int target = m_original == -1 ? STDERR_FILENO : m_original;
    for (std::size_t written = 0; written < text.size();) {
        const ssize_t size = write(target, text.data() + written, text.size() - written);
        if (size <= 0) {
            return;
        }
        written += std::size_t(size);
    }
}

}  // namespace apicall
