#pragma once

#include <catalogue/Call.h>

#include <QByteArray>
#include <QDateTime>
#include <QJsonObject>
#include <QString>
#include <QVector>

#include <nlohmann/json.hpp>

#include <optional>

/// A desktop host of the library: every call from a window.
namespace explorer {

/// What stands where the session token stood.
constexpr const char* kTokenMask = "**********";

struct Header {
    QString name;
    QString value;
};
using Headers = QVector<Header>;

/// The request of a call. No session token is in it: the mask stands in its place.
struct SentRequest {
    QString method;         ///< "GET", "PUT", "POST" or "DELETE"; empty when the Pack failed
    QString url;            ///< scheme, host, port, path and query
    Headers headers;        ///< in the order in which they went
    QByteArray body;        ///< UTF-8, empty for none
    bool recorded = false;  ///< the headers were seen on the wire, else they are what the library sets
};

/// The answer as it came over the wire.
struct RawReply {
    QByteArray statusLine;  ///< "HTTP/1.1 200 OK"
    int status = -1;
    Headers headers;
    QByteArray body;        ///< without the encodings of the transfer
    bool complete = false;  ///< else the connection ended or the time was over before
};

/// What one run of a call left behind.
struct CallOutcome {
    const catalogue::Call* call = nullptr;
    QJsonObject arguments;
    QString server;  ///< the name of the server that was asked
    QDateTime started;
    double elapsedMilliseconds = 0;

    int result = -1;  ///< of CAPIModule::ExecuteFuncs
    bool succeeded = false;
    QString resultText;       ///< the result in the user's words
    bool waitDialog = false;  ///< waited behind the wait dialog, else in the event loop
    int timeoutSeconds = 0;   ///< longest wait

    SentRequest request;
    std::optional<RawReply> reply;  ///< when traffic was recorded and an answer came
    QJsonObject data;               ///< what the library handed to the Parse; empty when it handed nothing
    nlohmann::json record;          ///< as far as the Parse filled it; null when it did not run
};

}  // namespace explorer
