#pragma once

#include "Connection.h"

#include <QNetworkAccessManager>

#include <memory>
#include <vector>

namespace APIModule {
struct ServerTrust;
}

namespace APIModule::http {

/// A network manager that speaks HTTP/1.1 itself, on the thread it belongs to, and keeps nothing but connections.
///
/// In contrast to Qt's own engine a write is sent once whatever happens, bytes that arrive between two calls are never
/// taken for an answer, and a reply that is given up ends its connection at once. There are no cookies, redirects,
/// credentials or caches. Up to six connections to a server carry requests at a time; further requests stand in line.
class AccessManager final : public QNetworkAccessManager {
    Q_OBJECT

public:
    static constexpr int kMostConnections = 6;  ///< to one server, as browsers and Qt have them

    /// @param nMostConnections to one server at a time; with 0 nothing is sent
    explicit AccessManager(int nMostConnections = kMostConnections);
    ~AccessManager() override;

    static constexpr qint64 kDefaultMaximumReplySize = 512LL * 1024 * 1024;

    /// Largest reply that is read, in bytes as received and after decompression.
    qint64 MaximumReplySize() const { return m_nMaximumReplySize; }
    void SetMaximumReplySize(qint64 nBytes) { m_nMaximumReplySize = nBytes; }

    /// Which servers may be talked to; null for all.
    const std::shared_ptr<const ServerTrust>& GetServerTrust() const { return m_pServerTrust; }
    void SetServerTrust(const std::shared_ptr<const ServerTrust>& pTrust) { m_pServerTrust = pTrust; }

    bool HasReplies() const;

    /// Closes the connections that carry no request.
    void CloseIdleConnections();

    /// Takes a reply out of line, or closes the connection that carries its request.
    void Forget(const Reply& reply);

    /// Sends the request of @p reply again, on a new connection.
    void Repeat(Reply& reply);

protected:
    QNetworkReply* createRequest(Operation operation, const QNetworkRequest& request, QIODevice* pBody) override;

private:
    bool Start(Reply& reply);
    Connection* Choose(const Reply& reply);
    void StartNext();
    void Purge();
    void Later(void (AccessManager::*pWork)());

    const int m_nMostConnections;
    qint64 m_nMaximumReplySize = kDefaultMaximumReplySize;
    std::shared_ptr<const ServerTrust> m_pServerTrust;
    std::vector<std::unique_ptr<Connection>> m_connections;
    std::vector<Reply*> m_line;  ///< replies that wait for a connection
};

}  // namespace APIModule::http
