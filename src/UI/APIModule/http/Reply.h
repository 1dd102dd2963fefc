#pragma once

#include "Trust.h"

#include <QByteArray>
#include <QList>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPair>

#include <chrono>
#include <optional>
#include <utility>

class QNetworkProxy;

namespace APIModule::http {

class AccessManager;
class ReplyReader;

/// Names and values.
using HeaderList = QList<QPair<QByteArray, QByteArray>>;

/// The headers that are sent with a request, as a HeaderList. Its raw headers are not sent, because Qt changes those
/// from 6.8 on: it stores names in lower case, trims values, and drops values with control characters.
inline constexpr auto kHeadersAttribute = QNetworkRequest::Attribute(QNetworkRequest::User + 104);

/// A request and its outcome: a complete HTTP reply, with the attribute HttpStatusCodeAttribute, or an error. The
/// signal finished() is emitted from the event loop, never inside a signal of a socket, whose receivers must not run an
/// event loop.
class Reply final : public QNetworkReply {
    Q_OBJECT

public:
    /// @param pBody read at once; null for a request without one
    Reply(AccessManager& manager, QNetworkAccessManager::Operation operation, const QNetworkRequest& request,
          QIODevice* pBody);
    ~Reply() override;

    /// Ends the exchange and closes its connection. Finishes the reply with OperationCanceledError.
    void abort() override;

    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override;

    /// Takes the complete body, which can then no longer be read.
    QByteArray TakeBody() { return std::exchange(m_body, QByteArray()); }
    /// Repeated headers are joined.
    const HeaderList& Headers() const { return m_headers; }

    /// The bytes of the request.
    /// @param pProxy the HTTP proxy that the request is sent to, null without one
    QByteArray Bytes(const QNetworkProxy* pProxy) const;

    const QByteArray& Verb() const { return m_verb; }
    const QByteArray& SentBody() const { return m_sentBody; }

    /// Makes the reply record when its first byte arrives.
    void Observe() { m_bObserved = true; }
    void NoteSent(const QByteArray& bytes) { m_sent = bytes; }
    void NoteFirstByte();
    /// Request line and header lines as they were sent; empty when nothing was sent.
    QByteArray SentHead() const { return m_sent.left(m_sent.size() - m_sentBody.size()); }
    /// The same, as it will be sent without a proxy.
    QByteArray Head() const
    {
        const QByteArray bytes = Bytes(nullptr);
        return bytes.left(bytes.size() - m_sentBody.size());
    }
    const std::optional<std::chrono::steady_clock::time_point>& FirstByte() const { return m_firstByte; }

    /// Whether the request must not reach the server twice.
    bool IsWrite() const { return m_bWrite; }

    /// A read on a connection that had died is repeated once on a new one.
    bool IsRepeated() const { return m_bRepeated; }
    void SetRepeated() { m_bRepeated = true; }

    /// Finishes with the complete reply in @p reader.
    void Complete(ReplyReader& reader);
    /// Finishes without a reply.
    void Fail(NetworkError error, const QString& text);
    /// Finishes without having sent anything, because the server is not trusted.
    void Refuse(const UnknownServer& server);

    const std::optional<UnknownServer>& GetUnknownServer() const { return m_unknownServer; }

    /// Finishes because the reply is larger than the manager accepts.
    void FailTooLarge();
    bool IsTooLarge() const { return m_bTooLarge; }

protected:
    qint64 readData(char* pData, qint64 size) override;

private:
    void FinishLater();
    void Finish();

    AccessManager* m_pManager;
    QByteArray m_verb;
    QByteArray m_sentBody;
    bool m_bHasBody;
    bool m_bWrite;
    bool m_bRepeated = false;
    bool m_bTooLarge = false;
    bool m_bObserved = false;
    QByteArray m_sent;
    std::optional<std::chrono::steady_clock::time_point> m_firstByte;
    QByteArray m_body;
    qint64 m_nRead = 0;
    HeaderList m_headers;
    std::optional<UnknownServer> m_unknownServer;
};

}  // namespace APIModule::http
