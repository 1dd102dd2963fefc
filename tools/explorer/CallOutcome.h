#pragma once

#include <catalogue/Call.h>

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

/// What stands where the session token stood.
constexpr const char* kTokenMask = "**********";

/// What stands where the port of a server is not known yet.
constexpr const char* kUnknownPort = "$PORT";

struct Header {
    QString name;
    QString value;
};
using Headers = QVector<Header>;

/// The request of a call. No session token is in it: the mask stands in its place.
struct SentRequest {
    QString method;   ///< "GET", "PUT", "POST" or "DELETE"; empty when there was none to send
    QString url;      ///< scheme, host, port, path and query
    Headers headers;  ///< in the order in which they went; empty when nothing was sent
    QByteArray body;  ///< UTF-8, empty for none
};

/// A call that could be made, and the request that it would send.
struct RequestDraft {
    const catalogue::Call* call = nullptr;
    QJsonObject arguments;
    SentRequest request;         ///< without a method when the call cannot be packed
    QStringList apicallOptions;  ///< that lead apicall to the same server
};

/// The answer of a server.
struct RawReply {
    int status = -1;
    Headers headers;
    QByteArray body;  ///< decompressed
};

/// When an exchange came how far, in milliseconds since its call was packed.
struct ExchangeTimes {
    double sent = 0;  ///< the call had its turn
    std::optional<double> firstByte;
    double finished = 0;
};

/// How a call is run.
enum class Way {
    WaitDialog,      ///< waits behind the wait dialog
    EventLoop,       ///< waits in the event loop, input goes on
    WithoutWaiting,  ///< begins it; others may be under way at the same time
};

/// What one run of a call left behind, all but the record.
struct RunSummary {
    const catalogue::Call* call = nullptr;
    QJsonObject arguments;
    QString server;  ///< the name of the server that was asked
    QDateTime started;
    double elapsedMilliseconds = 0;      ///< until the end of the exchange, or of the run when there was none
    std::optional<ExchangeTimes> times;  ///< nothing without an exchange

    int result = -1;  ///< APIModule::OutcomeBase::Code()
    bool succeeded = false;
    QString resultText;  ///< the result in the user's words
    Way way = Way::EventLoop;
    int timeoutSeconds = 0;  ///< longest wait

    SentRequest request;
    std::optional<RawReply> reply;  ///< when a complete answer came
    QString connectionError;        ///< why none came
};

/// What one run of a call left behind.
struct CallOutcome : RunSummary {
    nlohmann::json record;  ///< as far as the Parse filled it; null when it did not run
};

/// Whether the reply brings a token, which goes into no file.
inline bool BringsToken(const catalogue::Call& call)
{
    return call.name == "BRMS.GetDeriveToken" || call.name == "BRMS.GetChannelWebAuthorization";
}

}  // namespace explorer
