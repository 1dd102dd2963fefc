#pragma once

#include "Inflater.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QPair>

#include <memory>
#include <optional>
#include <utility>

namespace APIModule::http {

/// Reads one HTTP/1.x reply from the bytes of a connection, however they are split.
///
/// It accepts some deviations from the standard: line ends without a carriage return, a status line without a reason,
/// folded headers, a length that is not a number. Interim replies with status 100 are skipped. Trailers are ignored.
class ReplyReader {
public:
    enum class State {
        Reading,
        Complete,
        Closed,    ///< not HTTP, or the connection ended within the reply
        Corrupt,   ///< the compressed data is invalid or truncated
        TooLarge,  ///< more bytes than the caller accepts
    };

    /// @param nMost largest number of bytes, as received and after decompression
    explicit ReplyReader(qint64 nMost) : m_nMost(nMost) {}

    /// Reads from @p size bytes at @p pData. @return how many of them belong to the reply
    qint64 Feed(const char* pData, qint64 size);

    /// Must be called when the connection ended; completes a reply that is delimited by the end of the connection.
    void End();

    State GetState() const { return m_state; }
    /// Whether no byte of a reply has arrived yet.
    bool IsUntouched() const { return m_nReceived == 0; }
    /// Whether the connection may carry another request after this reply.
    bool KeepsConnection() const { return m_bKeepsConnection; }

    int Status() const { return m_nStatus; }
    const QByteArray& Reason() const { return m_reason; }
    /// In the order of their first appearance; the values of a name that appears more than once are joined.
    const QList<QPair<QByteArray, QByteArray>>& Headers() const { return m_headers; }
    QByteArray TakeBody() { return std::move(m_body); }

private:
    enum class Step {
        StatusLine,
        HeaderLine,
        BodyOfLength,
        BodyUntilEnd,
        ChunkSize,
        ChunkData,
        Trailer,
    };

    qint64 FeedLine(const char* pData, qint64 size);
    qint64 FeedBody(const char* pData, qint64 size);
    void TakeLine(QByteArray line);
    void TakeStatusLine(const QByteArray& line);
    void TakeHeaderLine(const QByteArray& line);
    void TakeChunkSize(const QByteArray& line);
    void EndHead();
    void BeginBody(std::optional<qint64> length);
    QByteArray Value(const QByteArray& lowerName) const;
    void Finish(State state);

    qint64 m_nMost;
    qint64 m_nReceived = 0;
    State m_state = State::Reading;
    Step m_step = Step::StatusLine;
    QByteArray m_line;       ///< the beginning of an incomplete line
    qint64 m_nExpected = 0;  ///< bytes missing from the body or the chunk
    bool m_bKeepsConnection = false;

    int m_nMajor = 1;
    int m_nMinor = 1;
    int m_nStatus = -1;
    QByteArray m_reason;
    QList<QPair<QByteArray, QByteArray>> m_headers;
    QHash<QByteArray, int> m_places;  ///< index of each header, by its name in lower case
    int m_nLastHeader = -1;           ///< the one that a folded line continues
    QByteArray m_body;
    std::unique_ptr<Inflater> m_pInflater;
};

}  // namespace APIModule::http
