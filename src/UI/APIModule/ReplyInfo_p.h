#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QPair>
#include <QString>

namespace APIModule {

/// What came back for one request.
struct ReplyInfo {
    int nHttpStatus = -1;                             ///< HTTP status, -1 without one
    QByteArray byteBody;                              ///< raw body of a reply with status 200
    QList<QPair<QByteArray, QByteArray>> rawHeaders;  ///< its headers
    int nCode = -1;                                   ///< "code" of the envelope, -1 without an envelope
    QString strDesc;                                  ///< "desc" of the envelope
    QJsonObject jsonData;                             ///< "data" of the envelope
};

}  // namespace APIModule
