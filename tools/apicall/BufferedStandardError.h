#pragma once

#include <cstdio>
#include <memory>
#include <string>

namespace apicall {

/// Buffers everything written to standard error during its lifetime, and discards it unless Release() is called. The
/// library can write its log lines nowhere else.
class BufferedStandardError {
public:
    BufferedStandardError();
    ~BufferedStandardError();
    BufferedStandardError(const BufferedStandardError&) = delete;
    BufferedStandardError& operator=(const BufferedStandardError&) = delete;

    /// Writes the buffered text to standard error and stops buffering.
    void Release();

    /// Writes to the real standard error, bypassing the buffer.
    void WriteThrough(const std::string& text);

private:
    void Restore();

    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> m_file;
    int m_original = -1;  ///< the original descriptor; -1 when not buffering
};

}  // namespace apicall
