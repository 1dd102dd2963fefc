#pragma once

#include <QByteArray>
#include <QObject>
#include <QSslSocket>
#include <QString>

namespace explorer {

/// Retrieves the certificate that a server presents. Sends nothing but the TLS handshake.
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
