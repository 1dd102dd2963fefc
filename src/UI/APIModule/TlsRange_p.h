#pragma once

#include <QSsl>

namespace APIModule::detail {

/// The widest range of protocols that Qt offers to servers of any age.
#if QT_VERSION_MAJOR == 5
constexpr QSsl::SslProtocol kWidestTlsRange = QSsl::TlsV1SslV3;
#else
constexpr QSsl::SslProtocol kWidestTlsRange = QSsl::AnyProtocol;
#endif

}  // namespace APIModule::detail
