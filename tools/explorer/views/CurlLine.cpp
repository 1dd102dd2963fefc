#include "CurlLine.h"

#include <QStringList>

namespace explorer {
namespace {

/// A text as one word of the shell.
QString Quoted(QString text)
{
    text.replace(QLatin1Char('\''), QLatin1String("'\\''"));
    return QLatin1Char('\'') + text + QLatin1Char('\'');
}

/// The same, with the shell's variable in the place of the mask.
QString QuotedWithToken(const QString& text)
{
    QStringList words;
    const QStringList parts = text.split(QLatin1String(kTokenMask));
    for (const QString& part : parts) {
        words.append(part.isEmpty() ? QString() : Quoted(part));
    }
    return words.join(QLatin1String("\"$TOKEN\""));
}

/// Whether curl finds the value of the header itself, and better.
bool IsOfTheConnection(const Header& header)
{
    static const QStringList names{QStringLiteral("host"), QStringLiteral("connection"), QStringLiteral("user-agent"),
                                   QStringLiteral("accept-encoding"), QStringLiteral("content-length")};
    return names.contains(header.name, Qt::CaseInsensitive);
}

QString HeaderOption(const Header& header)
{
    // curl takes a name with a colon and nothing behind it for one that it shall not send.
    const QString text =
        header.value.isEmpty() ? header.name + QLatin1Char(';') : header.name + QLatin1String(": ") + header.value;
    return QLatin1String("-H ") + QuotedWithToken(text);
}

}  // namespace

QString CurlLine(const SentRequest& request)
{
    // As the library, it accepts the certificates that the servers make themselves and changes nothing in the URL.
    QStringList parts{QLatin1String("curl --insecure --globoff --path-as-is --request ") + request.method,
                      QuotedWithToken(request.url)};
    for (const Header& header : request.headers) {
        if (!IsOfTheConnection(header)) {
            parts.append(HeaderOption(header));
        }
    }
    if (request.method != QLatin1String("GET")) {
        parts.append(QLatin1String("--data-raw ") + Quoted(QString::fromUtf8(request.body)));
    }
    return parts.join(QLatin1String(" \\\n    "));
}

}  // namespace explorer
