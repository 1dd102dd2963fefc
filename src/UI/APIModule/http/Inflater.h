#pragma once

#include <QByteArray>

#include <memory>

struct z_stream_s;

namespace APIModule::http {

/// Decompresses a body with the content coding gzip or deflate as it arrives.
class Inflater {
public:
    enum class Result {
        Ok,
        Corrupt,
        TooLarge
    };

    Inflater();
    ~Inflater();
    Inflater(const Inflater&) = delete;
    Inflater& operator=(const Inflater&) = delete;

    /// Decompresses @p size bytes at @p pData and appends the result. Bytes after the end of the stream are ignored.
    /// @param nMost largest size of @p out
    Result Append(const char* pData, qint64 size, QByteArray& out, qint64 nMost);

    /// Whether the compressed stream has ended or has not begun.
    bool IsWhole() const { return m_bEnded || (!m_pStream && m_first.isEmpty()); }

private:
    Result Run(const QByteArray& input, QByteArray& out, qint64 nMost);

    QByteArray m_first;                     ///< the first byte until the second arrives
    std::unique_ptr<z_stream_s> m_pStream;  ///< set once the format is known
    bool m_bEnded = false;
};

}  // namespace APIModule::http
