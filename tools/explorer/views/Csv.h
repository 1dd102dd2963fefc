#pragma once

#include <QByteArray>
#include <QList>
#include <QStringList>

namespace explorer {

/// Comma-separated values as in RFC 4180: lines end in CR LF, fields with commas, quotes or line ends are in quotes.
/// UTF-8.
QByteArray Csv(const QList<QStringList>& rows);

}  // namespace explorer
