#pragma once

#include "../CallOutcome.h"

#include <QByteArray>

#include <memory>

namespace explorer {

/// An HTTP/1.1 message as it came over the wire.
struct HttpMessage {
    QByteArray startLine;
    Headers headers;
    QByteArray body;  ///< without chunks, still compressed
    bool complete = false;

    /// The value of the first header of that name, whatever its case; empty without one.
    [[nodiscard]] QByteArray Value(const char* name) const;
    /// The second word of the start line: a request's target, a reply's status.
    [[nodiscard]] QByteArray SecondWord() const;
    /// The body as its sender meant it, as far as it can be told.
    [[nodiscard]] QByteArray DecodedBody() const;
};

/// Cuts the bytes of one direction of a connection into messages.
class HttpReader {
public:
    enum Kind {
        Requests,
        Replies
    };

    explicit HttpReader(Kind kind) : m_kind(kind) {}

    void Feed(const QByteArray& bytes);
    /// The sender said all: what is open without a length is complete.
    void End();

    /// The message that is being read; it grows with the bytes that are fed.
    [[nodiscard]] std::shared_ptr<const HttpMessage> Current() const { return m_message; }
    [[nodiscard]] bool HasHead() const { return !m_message->startLine.isEmpty(); }
    /// Whether a whole message is there: Next() must be called before more is read.
    [[nodiscard]] bool IsComplete() const { return m_message->complete; }
    /// Goes on with the next message.
    void Next();

private:
    enum State {
        Head,
        Body,
        UntilEnd,
        ChunkSize,
        ChunkData,
        Trailer,
        Broken
    };

    void Read();
    bool Step();
    bool ReadHead();
    bool ReadBody();
    bool ReadChunkSize();
    bool ReadChunkData();
    bool ReadTrailer();
    bool TakeLine(QByteArray& line);
    void Complete();

    const Kind m_kind;
    State m_state = Head;
    QByteArray m_buffer;
    std::shared_ptr<HttpMessage> m_message = std::make_shared<HttpMessage>();
    qint64 m_missing = 0;  // bytes of the body or chunk
};

}  // namespace explorer
