#pragma once

#include <cstdio>
#include <memory>
#include <string>

namespace apicall {

/// Keeps what is written to standard error from there while it lives. The library writes its log lines there and has no
/// other place for them.
class HeldStandardError {
public:
    HeldStandardError();
    ~HeldStandardError();
    HeldStandardError(const HeldStandardError&) = delete;
    HeldStandardError& operator=(const HeldStandardError&) = delete;

    /// Writes what was held to standard error, where what follows goes, too.
    void Release();

    /// Writes to standard error at once.
    void WriteThrough(const std::string& text);

private:
    void Restore();

    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> m_file;
    int m_standardError = -1;  ///< as it was; -1 when nothing is held
};

}  // namespace apicall
