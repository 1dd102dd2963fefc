// Reading of HTTP replies with any bytes, split in any way.
#include "Fuzz.h"

#include <http/ReplyReader.h>

#include <string>

namespace {

using APIModule::http::ReplyReader;

constexpr qint64 kMost = 64 * 1024;

struct Read {
    ReplyReader::State state;
    qint64 nTaken;
    bool bKept;
    int nStatus;
    QByteArray reason;
    QList<QPair<QByteArray, QByteArray>> headers;
    QByteArray body;

    friend bool operator==(const Read& left, const Read& right)
    {
        return left.state == right.state && left.nTaken == right.nTaken && left.bKept == right.bKept &&
               left.nStatus == right.nStatus && left.reason == right.reason && left.headers == right.headers &&
               left.body == right.body;
    }
};

/// Reads the bytes in pieces, then ends the connection.
template <typename NextSize>
Read ReadInPieces(const std::string& bytes, NextSize nextSize)
{
    ReplyReader reader(kMost);
    qint64 nTaken = 0;
    while (reader.GetState() == ReplyReader::State::Reading && nTaken < qint64(bytes.size())) {
        const qint64 nPiece = std::min<qint64>(nextSize(), qint64(bytes.size()) - nTaken);
        const qint64 nStep = reader.Feed(bytes.data() + nTaken, nPiece);
        const bool bAll = nStep == nPiece || reader.GetState() != ReplyReader::State::Reading;
        fuzz::Require(nStep <= nPiece && bAll, "the reader expects more bytes but did not consume all");
        nTaken += nStep;
    }
    reader.End();
    fuzz::Require(reader.GetState() != ReplyReader::State::Reading,
                  "the reader expects more bytes after the end of the connection");
    Read read{reader.GetState(), nTaken,           reader.KeepsConnection(), reader.Status(),
              reader.Reason(),   reader.Headers(), reader.TakeBody()};
    fuzz::Require(read.body.size() <= kMost + 1, "a body exceeds the size limit");
    fuzz::Require(!read.bKept || read.state == ReplyReader::State::Complete,
                  "the connection is kept after a broken reply");
    return read;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pBytes, std::size_t size)
{
    FuzzedDataProvider data(pBytes, size);
    const auto nSeed = data.ConsumeIntegral<std::uint8_t>();
    const std::string bytes = data.ConsumeRemainingBytesAsString();

    const Read whole = ReadInPieces(bytes, [&] { return qint64(bytes.size()); });
    // The reply does not depend on the pieces, but an error in a reply that is too large or corrupt may be detected
    // earlier or later.
    std::uint32_t nState = nSeed + 1U;
    const Read pieces = ReadInPieces(bytes, [&] {
        nState = nState * 1664525U + 1013904223U;
        return qint64(1 + (nState >> 16U) % 7);
    });
    fuzz::Require(whole.state == pieces.state, "the state of the reader depends on the pieces");
    if (whole.state == ReplyReader::State::Complete) {
        fuzz::Require(whole == pieces, "the reply depends on the pieces");
    }
    return 0;
}
