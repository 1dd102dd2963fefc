#include "ReplyReader.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <limits>
#include <utility>

namespace APIModule::http {

namespace {

constexpr int kContinue = 100;
constexpr int kFirstFinal = 200;
constexpr int kNoContent = 204;
constexpr int kNotModified = 304;

/// Parses a length in a header; nothing when it is not a number.
std::optional<qint64> Length(const QByteArray& value)
{
    bool bOk = false;
    const quint64 length = value.toULongLong(&bOk);
    return bOk && length <= quint64(std::numeric_limits<qint64>::max()) ? std::optional(qint64(length)) : std::nullopt;
}

bool IsBlank(char c)
{
    return c == ' ' || c == '\t';
}

}  // namespace

qint64 ReplyReader::Feed(const char* pData, qint64 size)
{
    qint64 nRead = 0;
    while (m_state == State::Reading && nRead < size) {
        const bool bBody = m_step == Step::BodyOfLength || m_step == Step::BodyUntilEnd || m_step == Step::ChunkData;
        const qint64 nStep = bBody ? FeedBody(pData + nRead, size - nRead) : FeedLine(pData + nRead, size - nRead);
        nRead += nStep;
        m_nReceived += nStep;
        if (m_state == State::Reading && m_nReceived > m_nMost) {
            Finish(State::TooLarge);
        }
    }
    return nRead;
}

void ReplyReader::End()
{
    if (m_state == State::Reading) {
        Finish(m_step == Step::BodyUntilEnd ? State::Complete : State::Closed);
        m_bKeepsConnection = false;
    }
}

qint64 ReplyReader::FeedLine(const char* pData, qint64 size)
{
    const auto* const pEnd = static_cast<const char*>(std::memchr(pData, '\n', size_t(size)));
    const qint64 nLine = pEnd ? pEnd - pData : size;
    m_line.append(pData, int(nLine));
    if (!pEnd) {
        return size;
    }
    QByteArray line = std::exchange(m_line, QByteArray());
    if (line.endsWith('\r')) {
        line.chop(1);
    }
    TakeLine(std::move(line));
    return nLine + 1;
}

void ReplyReader::TakeLine(QByteArray line)
{
    switch (m_step) {
    case Step::StatusLine:
        line = line.trimmed();  // empty lines and blanks before a reply are left over from the one before
        if (!line.isEmpty()) {
            TakeStatusLine(line);
        }
        break;
    case Step::HeaderLine:
        if (line.isEmpty()) {
            EndHead();
        } else {
            TakeHeaderLine(line);
        }
        break;
    case Step::ChunkSize:
        TakeChunkSize(line);
        break;
    case Step::Trailer:
        if (line.isEmpty()) {
            Finish(State::Complete);
        }
        break;
    case Step::BodyOfLength:
    case Step::BodyUntilEnd:
    case Step::ChunkData:
        break;
    }
}

void ReplyReader::TakeStatusLine(const QByteArray& line)
{
    // HTTP/1.1 200 OK
    constexpr int kMajor = 5;
    constexpr int kDot = 6;
    constexpr int kMinor = 7;
    constexpr int kBlank = 8;
    constexpr int kCode = 9;
    const bool bHttp = line.size() > kCode && line.startsWith("HTTP/") && std::isdigit(line[kMajor]) &&
                       line[kDot] == '.' && std::isdigit(line[kMinor]) && line[kBlank] == ' ';
    const int nEnd = line.indexOf(' ', kCode);
    bool bCode = false;
    const int nStatus = line.mid(kCode, nEnd < 0 ? -1 : nEnd - kCode).toInt(&bCode);
    if (!bHttp || !bCode) {
        Finish(State::Closed);
        return;
    }
    m_nMajor = line[kMajor] - '0';
    m_nMinor = line[kMinor] - '0';
    m_nStatus = nStatus;
    m_reason = nEnd < 0 ? QByteArray() : line.mid(nEnd + 1);
    m_step = Step::HeaderLine;
}

void ReplyReader::TakeHeaderLine(const QByteArray& line)
{
    if (IsBlank(line[0])) {
        if (m_nLastHeader >= 0) {
            m_headers[m_nLastHeader].second += ' ' + line.trimmed();
        }
        return;
    }
    const int nColon = line.indexOf(':');
    if (nColon < 0) {
        m_nLastHeader = -1;
        return;
    }
    const QByteArray name = line.left(nColon).trimmed();
    const QByteArray value = line.mid(nColon + 1).trimmed();
    const QByteArray lowerName = name.toLower();
    const auto place = m_places.constFind(lowerName);
    if (place == m_places.constEnd()) {
        m_nLastHeader = m_headers.size();
        m_places.insert(lowerName, m_nLastHeader);
        m_headers.append({name, value});
    } else {
        m_nLastHeader = *place;
        m_headers[m_nLastHeader].second += (lowerName == "set-cookie" ? "\n" : ", ") + value;
    }
}

QByteArray ReplyReader::Value(const QByteArray& lowerName) const
{
    const auto place = m_places.constFind(lowerName);
    return place == m_places.constEnd() ? QByteArray() : m_headers[*place].second;
}

void ReplyReader::EndHead()
{
    if (m_nStatus == kContinue) {
        m_headers.clear();
        m_places.clear();
        m_nLastHeader = -1;
        m_step = Step::StatusLine;
        return;
    }

    const QByteArray connection = Value("connection").toLower();
    const bool bOld = m_nMajor < 1 || (m_nMajor == 1 && m_nMinor == 0);
    m_bKeepsConnection = !connection.contains("close") && (!bOld || connection.contains("keep-alive"));

    if (m_nStatus < kFirstFinal || m_nStatus == kNoContent || m_nStatus == kNotModified) {
        // The connection cannot be reused: some servers send a body after these statuses.
        m_bKeepsConnection = false;
        Finish(State::Complete);
        return;
    }

    const QByteArray coding = Value("content-encoding").toLower();
    if (coding == "gzip" || coding == "deflate") {
        m_pInflater = std::make_unique<Inflater>();
    }
    if (Value("transfer-encoding").toLower().contains("chunked")) {
        m_step = Step::ChunkSize;
        return;
    }
    BeginBody(Length(Value("content-length")));
}

void ReplyReader::BeginBody(std::optional<qint64> length)
{
    constexpr qint64 kMostReserved = 64LL * 1024 * 1024;
    if (!length) {
        m_step = Step::BodyUntilEnd;
        m_bKeepsConnection = false;
    } else if (*length > m_nMost) {
        Finish(State::TooLarge);
    } else if (*length == 0) {
        Finish(State::Complete);
    } else {
        m_step = Step::BodyOfLength;
        m_nExpected = *length;
        if (!m_pInflater) {
            m_body.reserve(int(std::min(*length, kMostReserved)));
        }
    }
}

void ReplyReader::TakeChunkSize(const QByteArray& line)
{
    const QByteArray text = line.mid(0, line.indexOf(';')).trimmed();
    if (text.isEmpty()) {
        return;  // the end of the chunk before
    }
    bool bOk = false;
    const qint64 size = text.toLongLong(&bOk, 16);
    if (!bOk || size < 0) {
        m_bKeepsConnection = false;
        Finish(State::Complete);
    } else if (size == 0) {
        m_step = Step::Trailer;
    } else {
        m_step = Step::ChunkData;
        m_nExpected = size;
    }
}

qint64 ReplyReader::FeedBody(const char* pData, qint64 size)
{
    const qint64 nTaken = m_step == Step::BodyUntilEnd ? size : std::min(size, m_nExpected);
    if (m_pInflater) {
        switch (m_pInflater->Append(pData, nTaken, m_body, m_nMost)) {
        case Inflater::Result::Ok:
            break;
        case Inflater::Result::Corrupt:
            Finish(State::Corrupt);
            return nTaken;
        case Inflater::Result::TooLarge:
            Finish(State::TooLarge);
            return nTaken;
        }
    } else {
        m_body.append(pData, int(nTaken));
    }
    if (m_step != Step::BodyUntilEnd) {
        m_nExpected -= nTaken;
        if (m_nExpected == 0 && m_step == Step::BodyOfLength) {
            Finish(State::Complete);
        } else if (m_nExpected == 0) {
            m_step = Step::ChunkSize;
        }
    }
    return nTaken;
}

void ReplyReader::Finish(State state)
{
    const bool bCut = state == State::Complete && m_pInflater && !m_pInflater->IsWhole();
    m_state = bCut ? State::Corrupt : state;
    m_line.clear();
    if (m_state != State::Complete) {
        m_bKeepsConnection = false;
    }
}

}  // namespace APIModule::http
