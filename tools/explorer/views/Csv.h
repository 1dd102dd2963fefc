#pragma once

#include <QByteArray>
#include <QList>
#include <QStringList>

namespace explorer {

/// Comma-separated values as RFC 4180 tells them: lines end in CR LF, fields with commas, quotes or line ends stand in
/// quotes. UTF-8.
QByteArray Csv(const QList<QStringList>& rows);

}  // namespace explorer
