#include "HttpReader.h"

#include <zlib.h>

namespace explorer {
namespace {

bool IsSame(const QString& left, const char* right)
{
    return left.compare(QLatin1String(right), Qt::CaseInsensitive) == 0;
}

/// Undoes gzip and deflate; empty when the bytes are neither.
QByteArray Inflate(const QByteArray& bytes)
{
    constexpr int kEitherFormat = 32 + MAX_WBITS;
    z_stream stream{};
    if (inflateInit2(&stream, kEitherFormat) != Z_OK) {
        return {};
    }
    QByteArray input = bytes;
    stream.next_in = reinterpret_cast<Bytef*>(input.data());
    stream.avail_in = static_cast<uInt>(input.size());
    QByteArray result;
    QByteArray piece(1 << 16, Qt::Uninitialized);
    int status = Z_OK;
    while (status == Z_OK) {
        stream.next_out = reinterpret_cast<Bytef*>(piece.data());
        stream.avail_out = static_cast<uInt>(piece.size());
        status = inflate(&stream, Z_NO_FLUSH);
        result.append(piece.constData(), piece.size() - static_cast<int>(stream.avail_out));
    }
    inflateEnd(&stream);
    return result;
}

}  // namespace

QByteArray HttpMessage::Value(const char* name) const
{
    for (const Header& header : headers) {
        if (IsSame(header.name, name)) {
            return header.value.toLatin1();
        }
    }
    return {};
}

QByteArray HttpMessage::SecondWord() const
{
    return startLine.split(' ').value(1);
}

QByteArray HttpMessage::DecodedBody() const
{
    const QByteArray encoding = Value("Content-Encoding").toLower();
    const bool compressed = encoding == "gzip" || encoding == "deflate";
    return compressed ? Inflate(body) : body;
}

void HttpReader::Feed(const QByteArray& bytes)
{
    m_buffer += bytes;
    Read();
}

void HttpReader::End()
{
    if (m_state == UntilEnd) {
        Complete();
    }
}

void HttpReader::Next()
{
    m_message = std::make_shared<HttpMessage>();
    m_state = Head;
    Read();
}

void HttpReader::Read()
{
    while (!m_message->complete && Step()) {
    }
}

bool HttpReader::Step()
{
    switch (m_state) {
    case Head:
        return ReadHead();
    case Body:
        return ReadBody();
    case UntilEnd:
        m_message->body += m_buffer;
        m_buffer.clear();
        return false;
    case ChunkSize:
        return ReadChunkSize();
    case ChunkData:
        return ReadChunkData();
    case Trailer:
        return ReadTrailer();
    case Broken:
        return false;
    }
    return false;
}

bool HttpReader::TakeLine(QByteArray& line)
{
    const int end = m_buffer.indexOf('\n');
    if (end < 0) {
        return false;
    }
    line = m_buffer.left(end);
    if (line.endsWith('\r')) {
        line.chop(1);
    }
    m_buffer.remove(0, end + 1);
    return true;
}

bool HttpReader::ReadHead()
{
    const int end = m_buffer.indexOf("\r\n\r\n");
    if (end < 0) {
        return false;
    }
    QByteArray line;
    TakeLine(m_message->startLine);
    while (TakeLine(line) && !line.isEmpty()) {
        const int colon = line.indexOf(':');
        m_message->headers.append(
            {QString::fromLatin1(line.left(colon)), QString::fromLatin1(line.mid(colon + 1)).trimmed()});
    }

    const QByteArray status = m_kind == Replies ? m_message->SecondWord() : QByteArray();
    const QByteArray length = m_message->Value("Content-Length");
    if (status.startsWith('1')) {  // another reply follows
        *m_message = {};
    } else if (m_message->Value("Transfer-Encoding").toLower().contains("chunked")) {
        m_state = ChunkSize;
    } else if (const bool hasNoBody = status == "204" || status == "304"; !hasNoBody && !length.isEmpty()) {
        m_missing = length.toLongLong();
        m_state = Body;
    } else if (!hasNoBody && m_kind == Replies) {
        m_state = UntilEnd;
    } else {
        Complete();
    }
    return true;
}

bool HttpReader::ReadBody()
{
    const QByteArray piece = m_buffer.left(static_cast<int>(qMin<qint64>(m_missing, m_buffer.size())));
    m_message->body += piece;
    m_buffer.remove(0, piece.size());
    m_missing -= piece.size();
    if (m_missing == 0) {
        Complete();
    }
    return false;
}

bool HttpReader::ReadChunkSize()
{
    QByteArray line;
    if (!TakeLine(line)) {
        return false;
    }
    bool isNumber = false;
    m_missing = line.split(';').first().trimmed().toLongLong(&isNumber, 16);
    if (!isNumber || m_missing < 0) {
        m_state = Broken;
    } else {
        m_state = m_missing == 0 ? Trailer : ChunkData;
    }
    return true;
}

bool HttpReader::ReadChunkData()
{
    constexpr int kLineEnd = 2;
    if (m_buffer.size() < m_missing + kLineEnd) {
        return false;
    }
    m_message->body += m_buffer.left(static_cast<int>(m_missing));
    m_buffer.remove(0, static_cast<int>(m_missing) + kLineEnd);
    m_state = ChunkSize;
    return true;
}

bool HttpReader::ReadTrailer()
{
    QByteArray line;
    if (!TakeLine(line)) {
        return false;
    }
    if (line.isEmpty()) {
        Complete();
    }
    return true;
}

void HttpReader::Complete()
{
    m_message->complete = true;
}

}  // namespace explorer
