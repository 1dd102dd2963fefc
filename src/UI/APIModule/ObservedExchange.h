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

/// A request that was sent, or was to be sent, and what came back. Bodies are shared with the library, not copied.
///
/// The session token and the credentials of a proxy are masked in URL and headers. Bodies stand as they are:
/// BRMS::GetDeriveToken and BRMS::GetChannelWebAuthorization reply with tokens, which an observer that stores or shows
/// bodies has to leave out.
struct ObservedExchange {
    /// Names and values.
    using Headers = QList<QPair<QByteArray, QByteArray>>;

    QByteArray method;       ///< "GET"
    QString url;             ///< as log lines show it
    Headers requestHeaders;  ///< as sent, in their order; empty when nothing was sent
    QByteArray requestBody;  ///< empty without one

    int nStatus = -1;         ///< HTTP status, -1 without a complete answer
    Headers responseHeaders;  ///< those of the same name joined
    QByteArray responseBody;  ///< decompressed
    QString error;            ///< why no complete answer came; empty when one came

    std::chrono::system_clock::time_point begun;        ///< when the call was packed
    std::chrono::nanoseconds sentAfter{};               ///< until the call had its turn and was given to the transport
    std::optional<std::chrono::nanoseconds> firstByte;  ///< until the first byte of the answer, since @ref begun
    std::chrono::nanoseconds finishedAfter{};           ///< until the end, since @ref begun
};

/// Called once for each exchange, at its end, on the thread of the application object. It must not run an event loop.
using ExchangeObserver = std::function<void(const ObservedExchange&)>;

}  // namespace APIModule
