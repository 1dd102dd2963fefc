#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>

#include <chrono>
#include <functional>
#include <optional>

/// @file
/// Type of CAPIModule::SetExchangeObserver() and Request::Observed().

namespace APIModule {

/// A request, sent or not, and its reply. Bodies are shared with the library, not copied.
///
/// The session token and the credentials of a proxy are masked in URL and headers. Bodies are not: the replies of
/// BRMS::GetDeriveToken and BRMS::GetChannelWebAuthorization contain tokens, which an observer that stores or shows
/// bodies has to remove.
struct ObservedExchange {
    /// Names and values.
    using Headers = QList<QPair<QByteArray, QByteArray>>;

    QByteArray method;       ///< "GET"
    QString url;             ///< as in log lines
    Headers requestHeaders;  ///< in the order sent; empty when nothing was sent
    QByteArray requestBody;  ///< empty without one

    int nStatus = -1;         ///< HTTP status, -1 without a complete reply
    Headers responseHeaders;  ///< values of the same name are joined
    QByteArray responseBody;  ///< decompressed
    QString error;            ///< why no complete reply arrived; empty otherwise

    std::chrono::system_clock::time_point begun;  ///< when the call was packed
    std::chrono::nanoseconds sentAfter{};         ///< until the call left the queue for the transport, since @ref begun
    std::optional<std::chrono::nanoseconds> firstByte;  ///< until the first byte of the reply, since @ref begun
    std::chrono::nanoseconds finishedAfter{};           ///< until the end, since @ref begun
};

/// Called once for each exchange, at its end, on the thread of the application object. It must not run an event loop.
using ExchangeObserver = std::function<void(const ObservedExchange&)>;

}  // namespace APIModule
