#pragma once

#include "ReplyReader.h"

#include <QElapsedTimer>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QObject>
#include <QSslConfiguration>
#include <QTcpSocket>
#include <QTimer>
#include <QUrl>

#include <memory>
#include <optional>
#include <vector>

class QHostInfo;

namespace APIModule::http {

class AccessManager;
class Reply;

/// The destination of a connection.
struct Origin {
    bool bEncrypted;
    QString host;
    int nPort;

    static Origin Of(const QUrl& url);
    friend bool operator==(const Origin& left, const Origin& right)
    {
        return left.bEncrypted == right.bEncrypted && left.nPort == right.nPort && left.host == right.host;
    }
};

/// A connection to a server, which carries one request after the other.
///
/// It closes as soon as it receives bytes that belong to no request: bytes that arrive between two replies must not
/// become the reply to the next call.
class Connection final : public QObject {
    Q_OBJECT

public:
    Connection(AccessManager& manager, const QUrl& url, const QSslConfiguration& configuration);
    ~Connection() override;

    const Origin& GetOrigin() const { return m_origin; }
    bool IsClosed() const { return m_bClosed; }
    bool IsFree() const { return !m_bClosed && !m_pReply; }
    const Reply* Carried() const { return m_pReply; }

    /// Whether the connection is idle and usable for the request. Closes an idle connection that is no longer usable.
    bool IsFitFor(const Reply& reply);

    /// Sends the request of @p reply as soon as the connection is established.
    void Carry(Reply& reply);

    /// Releases the request and closes the connection.
    void Close();

signals:
    void Freed();
    void Closed();

private:
    using NetworkError = QNetworkReply::NetworkError;

    void Open();
    void OnHostFound(const QHostInfo& info);
    void Dial(QAbstractSocket::NetworkLayerProtocol protocol);
    void OnConnected(QTcpSocket& socket);
    void OnEncrypted();
    void VerifyServer();
    void OnReady();
    void OnReadyRead();
    void OnSocketError(QTcpSocket& socket, QAbstractSocket::SocketError error);
    void Send();
    void Receive();
    void EndReply();
    void Fail(NetworkError error, const QString& text);

    AccessManager& m_manager;
    const Origin m_origin;
    const QUrl m_url;
    const QSslConfiguration m_configuration;
    QNetworkProxy m_proxy{QNetworkProxy::NoProxy};
    bool m_bThroughCache = false;  ///< the proxy forwards plain HTTP requests instead of tunnelling

    std::vector<std::unique_ptr<QTcpSocket>> m_dialled;  ///< candidates until one of them is connected
    std::unique_ptr<QTcpSocket> m_pSocket;
    std::optional<QAbstractSocket::NetworkLayerProtocol> m_second;  ///< to be tried in parallel with the first
    QTimer m_timer;  ///< until the second attempt, or until the end of an idle connection
    QElapsedTimer m_idleSince;

    Reply* m_pReply = nullptr;
    std::optional<ReplyReader> m_reader;  ///< once the request has been sent
    bool m_bReady = false;
    bool m_bUsed = false;     ///< has carried a request before
    bool m_bProbing = false;  ///< while IsFitFor() polls the socket
    bool m_bClosed = false;
};

}  // namespace APIModule::http
