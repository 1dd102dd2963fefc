#pragma once

#include "APIModuleGlobal.h"

#include <QByteArray>
#include <QList>
#include <QSslCertificate>
#include <QSslError>
#include <QString>

#include <functional>

/// @file
/// Types of CAPIModule::SetServerTrust(). The one header of the library that needs Qt Network.

namespace APIModule {

/// A server as it presents itself over TLS, before anything has been sent to it.
struct PresentedServer {
    QString host;                  ///< as the user manager gave it
    int nPort = 0;                 ///< TCP port
    QList<QSslCertificate> chain;  ///< the server's certificate first, then its issuers as the server sent them
    QList<QSslError> errors;       ///< what verification objects to; empty when it objects to nothing
    QByteArray certificateDigest;  ///< SHA-256 of the server's certificate (DER), 32 bytes
    QByteArray publicKeyDigest;    ///< SHA-256 of its public key (DER), 32 bytes
};

/// A digest by which a host knows a server.
struct ServerPin {
    QByteArray digest;  ///< SHA-256 of the certificate or of its public key (both DER), 32 bytes
    QString host;       ///< the server that must present it; empty for all servers
    int nPort = 0;      ///< its TCP port; 0 for all ports of the host

    /// Reads the digest as tools print it.
    ///
    /// @param text 64 hexadecimal digits in either case; colons between them are ignored
    /// @return the 32 bytes, or an empty array for any other text
    static APIMODULE_EXPORT QByteArray DigestFromText(const QString& text);
};

/// Which servers the calls over HTTPS may talk to. A default-made one trusts every server.
///
/// A server is known when one of its pins is presented. Where no pin names it, it is known when its certificate passes
/// verification, as far as that is switched on. A server that is not known by these is known when @ref decide says so.
/// Nothing is sent to a server before it is known.
struct ServerTrust {
    /// Verify chain, name and date of certificates against the authorities of the system.
    bool bSystemAuthorities = false;
    /// Verify against these authorities, instead of the system's or beside them.
    QList<QSslCertificate> authorities;
    /// The certificates or public keys that servers must present. A pinned certificate need not pass verification: it
    /// may be signed by itself or have expired.
    QList<ServerPin> pins;
    /// Decides about a server that is not known otherwise. It is called on the thread of the application object, from
    /// the event loop, and must not wait for the user: to ask, return false, show the digest, store it as a pin, call
    /// again. An exception counts as false.
    std::function<bool(const PresentedServer&)> decide;
};

}  // namespace APIModule
