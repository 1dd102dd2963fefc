#include "Csv.h"

#include <algorithm>

namespace explorer {
namespace {

QString CsvField(QString field)
{
    const auto needsQuotes = [](QChar letter) {
        return letter == QLatin1Char(',') || letter == QLatin1Char('"') || letter == QLatin1Char('\r') ||
               letter == QLatin1Char('\n');
    };
    if (std::none_of(field.cbegin(), field.cend(), needsQuotes)) {
        return field;
    }
    field.replace(QLatin1Char('"'), QLatin1String("\"\""));
    return QLatin1Char('"') + field + QLatin1Char('"');
}

}  // namespace

QByteArray Csv(const QList<QStringList>& rows)
{
    QString text;
    for (const QStringList& row : rows) {
        QStringList fields;
        fields.reserve(row.size());
        std::transform(row.cbegin(), row.cend(), std::back_inserter(fields), CsvField);
        text += fields.join(QLatin1Char(',')) + QLatin1String("\r\n");
    }
    return text.toUtf8();
}

}  // namespace explorer
