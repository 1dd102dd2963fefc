#pragma once

#include <catalogue/Call.h>
#include <catalogue/MissingFields.h>

#include <QByteArray>
#include <QDateTime>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVector>

#include <nlohmann/json.hpp>

#include <optional>

/// A desktop host of the library: every call from a window.
namespace explorer {

/// Replaces the session token in everything that is shown.
constexpr const char* kTokenMask = "**********";

/// Replaces the port of a server while it is unknown.
constexpr const char* kUnknownPort = "$PORT";

struct Header {
    QString name;
    QString value;
};
using Headers = QVector<Header>;

/// The request of a call, with the session token masked.
struct SentRequest {
    QString method;   ///< "GET", "PUT", "POST" or "DELETE"; empty if there is no request
    QString url;      ///< scheme, host, port, path and query
    Headers headers;  ///< in the order sent; empty if nothing was sent
    QByteArray body;  ///< UTF-8, empty for none
};

/// A call that can be made, and the request that it would send.
struct RequestDraft {
    const catalogue::Call* call = nullptr;
    QJsonObject arguments;
    SentRequest request;         ///< without a method when the call cannot be packed
    QStringList apicallOptions;  ///< that select the same server
};

/// The reply of a server.
struct RawReply {
    int status = -1;
    Headers headers;
    QByteArray body;  ///< decompressed
};

/// The times of an exchange, in milliseconds since its call was packed.
struct ExchangeTimes {
    double sent = 0;  ///< passed to the network
    std::optional<double> firstByte;
    double finished = 0;
};

/// How a run waits for its call.
enum class WaitMode {
    WaitDialog,      ///< waits behind the wait dialog
    EventLoop,       ///< waits in the event loop, which delivers input
    WithoutWaiting,  ///< starts the call; several can run at the same time
};

/// The outcome of one run of a call, without the record.
struct RunSummary {
    const catalogue::Call* call = nullptr;
    QJsonObject arguments;
    QString server;  ///< name of the server
    QDateTime started;
    double elapsedMilliseconds = 0;      ///< to the end of the exchange, or of the run without one
    std::optional<ExchangeTimes> times;  ///< empty without an exchange

    int result = -1;  ///< APIModule::OutcomeBase::Code()
    bool succeeded = false;
    QString resultText;  ///< the result as text for the user
    WaitMode waitMode = WaitMode::EventLoop;
    int timeoutSeconds = 0;  ///< time-out of the call

    SentRequest request;
    std::optional<RawReply> reply;     ///< if a complete reply arrived
    QString connectionError;           ///< why no reply arrived
    catalogue::MissingFields missing;  ///< fields of the record
};

/// The outcome of one run of a call.
struct CallOutcome : RunSummary {
    nlohmann::json record;  ///< as far as the Parse filled it; null if it did not run
};

/// Whether the reply contains a token. Such a reply is never written to a file.
inline bool BringsToken(const catalogue::Call& call)
{
    return call.name == "BRMS.GetDeriveToken" || call.name == "BRMS.GetChannelWebAuthorization";
}

}  // namespace explorer
