#include "CertificateLook.h"

#include <QCryptographicHash>
#include <QSslCertificate>
#include <QTimer>

namespace explorer {

CertificateLook::CertificateLook(const QString& host, int port, QObject* parent) : QObject(parent)
{
    constexpr int kPatience = 10000;  // milliseconds
    m_socket.setPeerVerifyMode(QSslSocket::VerifyNone);
    connect(&m_socket, &QSslSocket::encrypted, this, [this] {
        const QByteArray digest = m_socket.peerCertificate().digest(QCryptographicHash::Sha256);
        m_socket.disconnect(this);
        m_socket.abort();
        emit Seen(digest);
    });
    connect(&m_socket, &QSslSocket::errorOccurred, this, [this] {
        m_socket.disconnect(this);
        emit Failed(m_socket.errorString());
    });
    QTimer::singleShot(kPatience, &m_socket, [this] {
        if (!m_socket.isEncrypted() && m_socket.state() != QAbstractSocket::UnconnectedState) {
            m_socket.disconnect(this);
            m_socket.abort();
            emit Failed(tr("The server does not respond"));
        }
    });
    QString bare = host;
    bare.remove(QLatin1Char('[')).remove(QLatin1Char(']'));
    m_socket.connectToHostEncrypted(bare, static_cast<quint16>(port));
}

}  // namespace explorer
