#pragma once

#include "Connection.h"

#include <QNetworkAccessManager>

#include <memory>
#include <vector>

namespace APIModule {
struct ServerTrust;
}

namespace APIModule::http {

/// A network manager with its own HTTP/1.1 transport on its thread, which keeps nothing but connections.
///
/// Unlike Qt's engine it sends a write once, whatever happens; it never takes bytes that arrive between two calls for a
/// reply; and an abandoned reply closes its connection at once. There are no cookies, redirects, credentials or caches.
/// At most six connections to a server carry requests concurrently; further requests queue.
class AccessManager final : public QNetworkAccessManager {
    Q_OBJECT

public:
    static constexpr int kMostConnections = 6;  ///< to one server, like browsers and Qt

    /// @param nMostConnections to one server at a time; with 0 nothing is sent
    explicit AccessManager(int nMostConnections = kMostConnections);
    ~AccessManager() override;

    static constexpr qint64 kDefaultMaximumReplySize = 512LL * 1024 * 1024;

    /// Largest reply that is read, in bytes as received and after decompression.
    qint64 MaximumReplySize() const { return m_nMaximumReplySize; }
    void SetMaximumReplySize(qint64 nBytes) { m_nMaximumReplySize = nBytes; }

    /// The trusted servers; null trusts all.
    const std::shared_ptr<const ServerTrust>& GetServerTrust() const { return m_pServerTrust; }
    void SetServerTrust(const std::shared_ptr<const ServerTrust>& pTrust) { m_pServerTrust = pTrust; }

    bool HasReplies() const;

    /// Closes the connections that carry no request.
    void CloseIdleConnections();

    /// Removes a reply from the queue, or closes the connection that carries its request.
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
