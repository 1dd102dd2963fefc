#pragma once

#include "HttpReader.h"

#include <QHash>
#include <QObject>
#include <QString>
#include <QUrl>
#include <QVector>

#include <memory>
#include <optional>

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
/// keeps a copy. Where the library speaks TLS, the tap answers with a certificate of its own, which the library accepts
/// since it does not verify its peers, and opens a second TLS connection to the server.
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

    void Seen(const QString& host, int port, const std::shared_ptr<const HttpMessage>& request,
              const std::shared_ptr<const HttpMessage>& reply);

    const std::unique_ptr<Listener> m_listener;
    const QString m_password;
    QVector<Expected> m_expected;
    QHash<QString, QString> m_hosts;  // by the names of the tap's own
    int m_lastNumber = 0;
};

}  // namespace explorer
