#include "Trust.h"

#include <QCryptographicHash>
#include <QSslCertificate>
#include <QSslError>
#include <QSslKey>
#include <QSslSocket>
#include <QStringList>

#include <algorithm>

namespace APIModule::http {

namespace {

bool Verifies(const ServerTrust& trust)
{
    return trust.bSystemAuthorities || !trust.authorities.isEmpty();
}

bool Concerns(const ServerPin& pin, const PresentedServer& server)
{
    return (pin.host.isEmpty() || pin.host.compare(server.host, Qt::CaseInsensitive) == 0) &&
           (pin.nPort == 0 || pin.nPort == server.nPort);
}

bool IsPresented(const ServerPin& pin, const PresentedServer& server)
{
    return !pin.digest.isEmpty() && (pin.digest == server.certificateDigest || pin.digest == server.publicKeyDigest);
}

QByteArray Sha256(const QByteArray& bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

}  // namespace

bool IsRestricted(const ServerTrust& trust)
{
    return Verifies(trust) || !trust.pins.isEmpty() || trust.decide;
}

QSslConfiguration Verifying(const ServerTrust& trust, QSslConfiguration configuration)
{
    QList<QSslCertificate> authorities = trust.authorities;
    // Loading the system's authorities takes time and is not needed for pins.
    if (trust.bSystemAuthorities || (authorities.isEmpty() && trust.decide)) {
        authorities += QSslConfiguration::systemCaCertificates();
    }
    configuration.setCaCertificates(authorities);
    configuration.setPeerVerifyMode(QSslSocket::QueryPeer);
    return configuration;
}

PresentedServer Presented(const QSslSocket& socket, const QString& host, int nPort)
{
    const QSslCertificate certificate = socket.peerCertificate();
    return {host,
            nPort,
            socket.peerCertificateChain(),
            socket.sslHandshakeErrors(),
            Sha256(certificate.toDer()),
            Sha256(certificate.publicKey().toDer())};
}

std::optional<UnknownServer> Judge(const ServerTrust& trust, const PresentedServer& server)
{
    const auto concerns = [&](const ServerPin& pin) { return Concerns(pin, server); };
    const bool bPinned = std::any_of(trust.pins.begin(), trust.pins.end(), concerns);
    const bool bKnown =
        bPinned ? std::any_of(trust.pins.begin(), trust.pins.end(),
                              [&](const ServerPin& pin) { return Concerns(pin, server) && IsPresented(pin, server); })
                : Verifies(trust) && server.errors.isEmpty();
    if (bKnown) {
        return std::nullopt;
    }
    if (trust.decide && trust.decide(server)) {
        return std::nullopt;
    }

    QString reason = QStringLiteral("nothing names it");
    if (trust.decide) {
        reason = QStringLiteral("the host refused it");
    } else if (bPinned) {
        reason = QStringLiteral("another certificate is pinned");
    } else if (!server.errors.isEmpty()) {
        QStringList errors;
        for (const QSslError& error : server.errors) {
            errors.append(error.errorString());
        }
        reason = errors.join(QLatin1String(", "));
    }
    return UnknownServer{reason, server.certificateDigest};
}

}  // namespace APIModule::http
