#pragma once

#include <QByteArray>
#include <QObject>
#include <QSslSocket>
#include <QString>

namespace explorer {

/// Looks at the certificate that a server presents. Nothing is sent to it but the handshake of TLS.
class CertificateLook : public QObject {
    Q_OBJECT

public:
    /// @param host an IPv6 address with or without brackets
    CertificateLook(const QString& host, int port, QObject* parent);

Q_SIGNALS:
    /// @param digest SHA-256 digest of the certificate
    void Seen(const QByteArray& digest);
    void Failed(const QString& why);

private:
    QSslSocket m_socket;
};

}  // namespace explorer
