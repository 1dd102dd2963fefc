#pragma once

#include <QSsl>

namespace APIModule::detail {

/// The widest range of TLS versions that Qt supports, for servers of any age.
#if QT_VERSION_MAJOR == 5
constexpr QSsl::SslProtocol kWidestTlsRange = QSsl::TlsV1SslV3;
#else
constexpr QSsl::SslProtocol kWidestTlsRange = QSsl::AnyProtocol;
#endif

}  // namespace APIModule::detail
