#pragma once

#include "APIModuleGlobal.h"

#include <QByteArray>
#include <QList>
#include <QSslCertificate>
#include <QSslError>
#include <QString>

#include <functional>

/// @file
/// Types of CAPIModule::SetServerTrust(). The only header of the library that requires Qt Network.

namespace APIModule {

/// A server as it presents itself over TLS, before anything was sent to it.
struct PresentedServer {
    QString host;                  ///< as the user manager supplied it
    int nPort = 0;                 ///< TCP port
    QList<QSslCertificate> chain;  ///< the server's certificate first, then its issuers as sent by the server
    QList<QSslError> errors;       ///< errors found by verification; empty for a valid certificate
    QByteArray certificateDigest;  ///< SHA-256 of the server's certificate (DER), 32 bytes
    QByteArray publicKeyDigest;    ///< SHA-256 of its public key (DER), 32 bytes
};

/// A digest that identifies a server.
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

/// The trusted servers for calls over HTTPS. A default-constructed one trusts every server.
///
/// A server that has pins is trusted when it presents one of them. A server without pins is trusted when its
/// certificate passes verification, if that is enabled. A server that is not trusted by these rules is trusted when
/// @ref decide accepts it. Nothing is sent to a server before it is trusted. Revocation is not checked.
struct ServerTrust {
    /// Verify chain, name and date of certificates against the authorities of the system.
    bool bSystemAuthorities = false;
    /// Verify against these authorities, in addition to the system's if those are enabled.
    QList<QSslCertificate> authorities;
    /// The certificates or public keys that servers must present. A pinned certificate need not pass verification: it
    /// may be self-signed or expired.
    QList<ServerPin> pins;
    /// Decides about a server that is not trusted otherwise. It is called on the thread of the application object, from
    /// the event loop, and must not wait for the user: to ask, return false, show the digest, store it as a pin and
    /// repeat the call. An exception counts as false.
    std::function<bool(const PresentedServer&)> decide;
};

}  // namespace APIModule
