#pragma once

#include "../ServerTrust.h"

#include <QSslConfiguration>

#include <optional>

class QSslSocket;

namespace APIModule::http {

/// What is to be said of a server that is not known.
struct UnknownServer {
    QString reason;
    QByteArray digest;  ///< of the certificate that it presented
};

/// Whether the host restricts the servers that it talks to.
bool IsRestricted(const ServerTrust& trust);

/// Has the handshake look for what @p trust needs, without ending it.
QSslConfiguration Verifying(const ServerTrust& trust, QSslConfiguration configuration);

/// The server at the other end of an encrypted connection.
PresentedServer Presented(const QSslSocket& socket, const QString& host, int nPort);

/// Judges a server, and asks the host where nothing else decides. Runs code of the host.
/// @return nothing for a known server
std::optional<UnknownServer> Judge(const ServerTrust& trust, const PresentedServer& server);

}  // namespace APIModule::http
