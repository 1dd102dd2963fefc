#pragma once

#include "../ServerTrust.h"

#include <QSslConfiguration>

#include <optional>

class QSslSocket;

namespace APIModule::http {

/// Why a server is not trusted.
struct UnknownServer {
    QString reason;
    QByteArray digest;  ///< of the certificate that it presented
};

/// Whether the host restricts the trusted servers.
bool IsRestricted(const ServerTrust& trust);

/// Configures the handshake to verify what @p trust needs, without failing on errors.
QSslConfiguration Verifying(const ServerTrust& trust, QSslConfiguration configuration);

/// The peer of an encrypted connection.
PresentedServer Presented(const QSslSocket& socket, const QString& host, int nPort);

/// Decides about a server, and asks the host where no other rule does. Runs code of the host.
/// @return nothing for a trusted server
std::optional<UnknownServer> Judge(const ServerTrust& trust, const PresentedServer& server);

}  // namespace APIModule::http
