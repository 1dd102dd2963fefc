#pragma once

#include "Certificate.h"

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QSslConfiguration>

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

class QEventLoop;

namespace testing_support {

/// An HTTP request as received.
struct RawRequest {
    QByteArray head;  ///< from the first byte up to the empty line, which is excluded
    QByteArray method;
    QByteArray target;
    QList<QPair<QByteArray, QByteArray>> headers;
    QByteArray body;
    int connection = 0;

    /// The values of a header, whatever the case of its name.
    QList<QByteArray> Values(const QByteArray& name) const;
    /// The value of a header. The test fails unless there is exactly one.
    QByteArray Value(const QByteArray& name) const;
};

/// What to do with one request.
struct RawReply {
    enum Then {
        KeepOpen,
        Close,
        CloseLater,
        Reset,
        HalfClose,  ///< stops sending but keeps reading; over TLS without close_notify
        Vanish      ///< the other side notices it only when it sends; needs root
    };

    QByteArray bytes;                 ///< sent unchanged; nothing when empty
    int delayMilliseconds = 0;        ///< before the bytes
    Then then = KeepOpen;             ///< after the bytes
    int trickleMilliseconds = 0;      ///< between one byte and the next; 0 sends all at once
    QByteArray moreBytes = {};        ///< sent as a separate segment and TLS record
    int moreMilliseconds = 0;         ///< between the bytes and moreBytes
    int endlessPerSecond = 0;         ///< if not 0, repeats moreBytes at this rate until the server is destroyed
    int thenMilliseconds = 0;         ///< delay between the last byte and the end
    std::shared_ptr<void> done = {};  ///< released when all of the above is done or the connection is closed
};

/// Whether this process may use RawReply::Vanish.
bool CanVanish();

/// A complete HTTP reply.
RawReply HttpReply(int status, const QByteArray& body, const QByteArray& moreHeaders = QByteArray());

/// The same reply, sent later.
RawReply Delayed(RawReply reply, int milliseconds);

/// The TLS configuration of a server with this certificate.
QSslConfiguration ServerConfiguration(const Certificate& certificate);

/// A server on loopback, on a separate thread, with full control of the bytes that it sends.
class RawServer {
public:
    using Responder = std::function<RawReply(const RawRequest&)>;

    enum Scheme {
        Http,
        Https
    };

    explicit RawServer(const Responder& responder, Scheme scheme = Http);
    /// An HTTPS server with this TLS configuration.
    RawServer(const Responder& responder, const QSslConfiguration& configuration);
    ~RawServer();
    RawServer(const RawServer&) = delete;
    RawServer& operator=(const RawServer&) = delete;

    int Port() const { return m_port; }

    /// From now on, replies to anything a client sends as if it were a request.
    void ReplyToAnything() { m_bRepliesToAnything = true; }

    /// From now on, closes connections that are idle for this long.
    void CloseIdleAfter(int milliseconds) { m_idleMilliseconds = milliseconds; }

    std::vector<RawRequest> TakeRequests();
    int ConnectionCount() const { return m_connections; }
    /// Connections that the client still holds open.
    int OpenConnectionCount() const { return m_openConnections; }

private:
    class Listener;

    RawServer(const Responder& responder, const std::optional<QSslConfiguration>& configuration);

    std::thread m_thread;           // not a QThread, whose wait() returns before the thread's TLS state is cleaned up
    QEventLoop* m_pLoop = nullptr;  // of m_thread
    std::mutex m_mutex;
    std::vector<RawRequest> m_requests;
    std::atomic<bool> m_bRepliesToAnything{false};
    std::atomic<int> m_idleMilliseconds{0};
    std::atomic<int> m_port{0};
    std::atomic<int> m_connections{0};
    std::atomic<int> m_openConnections{0};
};

inline std::string NameOf(RawServer::Scheme scheme)
{
    return scheme == RawServer::Http ? "http" : "https";
}

}  // namespace testing_support
