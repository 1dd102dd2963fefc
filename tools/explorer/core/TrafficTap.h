#pragma once

#include "HttpReader.h"

#include <QHash>
#include <QObject>
#include <QPair>
#include <QString>
#include <QUrl>
#include <QVector>

#include <memory>
#include <optional>

class QSslCertificate;

namespace explorer {

/// Request and reply as they went over the wire.
struct Exchange {
    HttpMessage request;
    HttpMessage reply;  ///< as far as it came; without a start line when there was none
};

/// Records what the library's requests look like on the wire.
///
/// The library uses the application's network proxy, as every network client of the program does. The tap is such a
/// proxy (SOCKS 5, on the loopback address, with a password that only this process knows). It passes every byte on and
/// keeps a copy. Where the library speaks TLS, the tap opens a TLS connection to the server and, when that one presents
/// the certificate that is pinned for it or none is pinned, answers the library with a certificate of its own.
/// Otherwise it connects the library with the server untouched, so that the library sees the server's certificate and
/// refuses it.
class TrafficTap : public QObject {
    Q_OBJECT

public:
    explicit TrafficTap(QObject* parent = nullptr);
    ~TrafficTap() override;

    /// Whether connections that begin from now on go through the tap. It stays off where it cannot listen.
    void SetOn(bool on);
    [[nodiscard]] bool IsOn() const;

    /// What the library must call a host so that its connections go through the tap: a name that the tap alone knows in
    /// the place of the loopback address, to which the toolkit uses no proxy; every other host keeps its own.
    QString NameFor(const QString& host);

    /// The digest of the certificate that the library sees in the place of the server's.
    static QByteArray OwnDigest();

    /// Pins the certificate of a server by its SHA-256 digest; an empty digest trusts any.
    void Pin(const QString& host, int port, const QByteArray& digest);

    /// Looks out for the next request of that method and URL. Take() gives what was seen of it, under the number that
    /// is returned here.
    int Expect(const QByteArray& method, const QUrl& url);
    /// What was seen so far, nothing when the request did not come. The tap forgets it.
    std::optional<Exchange> Take(int number);

private:
    class Listener;
    class Connection;

    struct Expected {
        int number = 0;
        QByteArray method;
        QUrl url;
        std::shared_ptr<const HttpMessage> request = nullptr;
        std::shared_ptr<const HttpMessage> reply = nullptr;
    };

    [[nodiscard]] bool Trusts(const QString& host, int port, const QSslCertificate& certificate) const;
    void Seen(const QString& host, int port, const std::shared_ptr<const HttpMessage>& request,
              const std::shared_ptr<const HttpMessage>& reply);

    const std::unique_ptr<Listener> m_listener;
    const QString m_password;
    QVector<Expected> m_expected;
    QHash<QPair<QString, int>, QByteArray> m_pins;  // by host, in lower case and without brackets, and port
    QHash<QString, QString> m_hosts;                // by the names of the tap's own
    int m_lastNumber = 0;
};

}  // namespace explorer
