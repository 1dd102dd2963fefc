#pragma once

#include "Outcome.h"

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QPair>
#include <QString>

#include <optional>

namespace APIModule {

struct CallSteps;

/// The only HTTP status whose reply is read.
inline constexpr int kStatusOk = 200;

/// The reply to one request.
struct ReplyInfo {
    int nHttpStatus = -1;                             ///< HTTP status, -1 without one
    QByteArray byteBody;                              ///< raw body of a reply with status 200
    QList<QPair<QByteArray, QByteArray>> rawHeaders;  ///< its headers
    int nCode = -1;                                   ///< "code" of the envelope, -1 without an envelope
    QString strDesc;                                  ///< "desc" of the envelope
    QJsonObject jsonData;                             ///< "data" of the envelope
    bool bJson = false;                               ///< whether the body is JSON
    CallEnd eEnd = CallEnd::ApplicationEnding;        ///< Success for a reply with any status and code
    std::optional<int> parsed;                        ///< result of the Parse, where it ran
    QString strUnreadableKey;                         ///< the key at which the Parse stopped
    bool bLarge = false;                              ///< whether releasing it takes noticeable time
    const CallSteps* pSteps = nullptr;                ///< of the call, while it is performed
};

}  // namespace APIModule
