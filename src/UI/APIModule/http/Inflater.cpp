#include "Inflater.h"

#include <zlib.h>

#include <algorithm>

namespace APIModule::http {

namespace {

constexpr int kAnyWrapper = MAX_WBITS + 32;  // zlib's or gzip's
constexpr int kNoWrapper = -MAX_WBITS;       // some servers send "deflate" without one

int WindowBits(const QByteArray& input)
{
    const auto first = static_cast<unsigned char>(input[0]);
    const auto second = static_cast<unsigned char>(input[1]);
    const bool bGzip = first == 0x1f && second == 0x8b;
    const bool bZlib = (first & 0x0f) == Z_DEFLATED && (first * 256 + second) % 31 == 0;
    return bGzip || bZlib ? kAnyWrapper : kNoWrapper;
}

}  // namespace

Inflater::Inflater() = default;

Inflater::~Inflater()
{
    if (m_pStream) {
        inflateEnd(m_pStream.get());
    }
}

Inflater::Result Inflater::Append(const char* pData, qint64 size, QByteArray& out, qint64 nMost)
{
    QByteArray input = QByteArray::fromRawData(pData, int(size));
    if (!m_pStream) {
        input.prepend(std::exchange(m_first, QByteArray()));
        if (input.size() < 2) {
            m_first = QByteArray(input.constData(), input.size());
            return Result::Ok;
        }
        m_pStream = std::make_unique<z_stream_s>();
        if (inflateInit2(m_pStream.get(), WindowBits(input)) != Z_OK) {
            m_pStream.reset();
            return Result::Corrupt;
        }
    }
    return Run(input, out, nMost);
}

Inflater::Result Inflater::Run(const QByteArray& input, QByteArray& out, qint64 nMost)
{
    constexpr qint64 kLeastStep = 64LL * 1024;
    // zlib does not write to its input.
    m_pStream->next_in = reinterpret_cast<Bytef*>(const_cast<char*>(input.constData()));
    m_pStream->avail_in = uInt(input.size());
    bool bMore = true;
    while (bMore && !m_bEnded) {
        const qint64 nOld = out.size();
        // One byte above the limit proves that the limit is exceeded.
        const qint64 nStep = std::min(std::max(nOld / 2, kLeastStep), nMost + 1 - nOld);
        out.resize(int(nOld + nStep));
        m_pStream->next_out = reinterpret_cast<Bytef*>(out.data() + nOld);
        m_pStream->avail_out = uInt(nStep);
        const int nResult = inflate(m_pStream.get(), Z_NO_FLUSH);
        bMore = m_pStream->avail_out == 0;
        out.resize(int(nOld + nStep - m_pStream->avail_out));
        m_bEnded = nResult == Z_STREAM_END;
        if (nResult != Z_OK && nResult != Z_STREAM_END && nResult != Z_BUF_ERROR) {
            return Result::Corrupt;
        }
        if (out.size() > nMost) {
            return Result::TooLarge;
        }
    }
    return Result::Ok;
}

}  // namespace APIModule::http
