#include "Deflated.h"

#include <gtest/gtest.h>

#include <zlib.h>

namespace testing_support {

namespace {

int WindowBits(Wrapper wrapper)
{
    constexpr int kGzip = 16;
    return wrapper == Wrapper::Gzip ? MAX_WBITS + kGzip : wrapper == Wrapper::Zlib ? MAX_WBITS : -MAX_WBITS;
}

class Deflater {
public:
    explicit Deflater(Wrapper wrapper)
    {
        constexpr int kMemory = 8;
        EXPECT_EQ(
            deflateInit2(&m_stream, Z_BEST_COMPRESSION, Z_DEFLATED, WindowBits(wrapper), kMemory, Z_DEFAULT_STRATEGY),
            Z_OK);
    }
    ~Deflater() { deflateEnd(&m_stream); }
    Deflater(const Deflater&) = delete;
    Deflater& operator=(const Deflater&) = delete;

    QByteArray Append(QByteArray bytes, int nFlush)
    {
        constexpr int kFlushed = 64;
        QByteArray deflated(int(deflateBound(&m_stream, uLong(bytes.size()))) + kFlushed, Qt::Uninitialized);
        m_stream.next_in = reinterpret_cast<Bytef*>(bytes.data());
        m_stream.avail_in = uInt(bytes.size());
        m_stream.next_out = reinterpret_cast<Bytef*>(deflated.data());
        m_stream.avail_out = uInt(deflated.size());
        deflate(&m_stream, nFlush);
        deflated.chop(int(m_stream.avail_out));
        return deflated;
    }

private:
    z_stream m_stream{};
};

}  // namespace

QByteArray Deflated(const QByteArray& bytes, Wrapper wrapper)
{
    return Deflater(wrapper).Append(bytes, Z_FINISH);
}

QByteArray GzipOfMegabytes(int nMegabytes)
{
    constexpr int kMegabyte = 1024 * 1024;
    // After a full flush nothing refers to earlier data, so the same compressed megabyte can be repeated.
    Deflater deflater(Wrapper::Gzip);
    QByteArray gzip = deflater.Append(QByteArray(), Z_FULL_FLUSH);
    const QByteArray megabyte = deflater.Append(QByteArray(kMegabyte, ' '), Z_FULL_FLUSH);
    gzip.reserve(gzip.size() + nMegabytes * megabyte.size());
    for (int i = 0; i < nMegabytes; ++i) {
        gzip += megabyte;
    }
    return gzip + deflater.Append(QByteArray(), Z_FINISH);
}

}  // namespace testing_support
