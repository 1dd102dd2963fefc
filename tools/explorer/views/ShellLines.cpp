#include "ShellLines.h"

#include "Json.h"
#include "Plain.h"

#include <catalogue/Call.h>

#include <QStringList>

#include <algorithm>

namespace explorer {
namespace {

/// Quotes a text as one word of the shell.
QString Quoted(QString text)
{
    text.replace(QLatin1Char('\''), QLatin1String("'\\''"));
    return QLatin1Char('\'') + text + QLatin1Char('\'');
}

/// The same, with the variable of the shell instead of the mask.
QString QuotedWithToken(const QString& text)
{
    QStringList words;
    const QStringList parts = text.split(QLatin1String(kTokenMask));
    for (const QString& part : parts) {
        words.append(part.isEmpty() ? QString() : Quoted(part));
    }
    return words.join(QLatin1String("\"$TOKEN\""));
}

/// An address as one word, with the variable of the shell instead of an unknown port.
QString QuotedAddress(const QString& text)
{
    const QString port = QLatin1Char(':') + QLatin1String(kUnknownPort);
    const int place = text.indexOf(port);
    if (place < 0) {
        return QuotedWithToken(text);
    }
    const QString behind = text.mid(place + port.size());
    return Quoted(text.left(place + 1)) + QLatin1String("\"$PORT\"") +
           (behind.isEmpty() ? QString() : QuotedWithToken(behind));
}

/// Whether curl determines the value of the header itself.
bool IsOfTheConnection(const Header& header)
{
    static const QStringList names{QStringLiteral("host"), QStringLiteral("connection"), QStringLiteral("user-agent"),
                                   QStringLiteral("accept-encoding"), QStringLiteral("content-length")};
    return names.contains(header.name, Qt::CaseInsensitive);
}

QString HeaderOption(const Header& header)
{
    // curl does not send a header that is given as a name and a colon.
    const QString text =
        header.value.isEmpty() ? header.name + QLatin1Char(';') : header.name + QLatin1String(": ") + header.value;
    return QLatin1String("-H ") + QuotedWithToken(text);
}

/// A command with one part per line.
QString OnLines(const QStringList& parts)
{
    return parts.join(QLatin1String(" \\\n    "));
}

/// name=value for each if all are plain, otherwise one JSON object.
QStringList ApicallArguments(const RequestDraft& draft)
{
    const auto& arguments = draft.call->arguments;
    if (!std::all_of(arguments.begin(), arguments.end(),
                     [](const auto& argument) { return IsPlain(*argument.type); })) {
        return {Quoted(CompactJsonText(FromQt(draft.arguments)))};
    }
    QStringList words;
    for (const catalogue::Argument& argument : arguments) {
        const QString name = QString::fromUtf8(argument.name.data(), int(argument.name.size()));
        const QJsonValue value = draft.arguments.value(name);
        words.append(
            Quoted(name + QLatin1Char('=') + (value.isString() ? value.toString() : CompactJsonText(FromQt(value)))));
    }
    return words;
}

}  // namespace

QString CurlLine(const SentRequest& request)
{
    // Like the library, it accepts self-signed certificates and does not change the URL.
    QStringList parts{QLatin1String("curl --insecure --globoff --path-as-is --request ") + request.method,
                      QuotedAddress(request.url)};
    for (const Header& header : request.headers) {
        if (!IsOfTheConnection(header)) {
            parts.append(HeaderOption(header));
        }
    }
    if (request.method != QLatin1String("GET")) {
        parts.append(QLatin1String("--data-raw ") + Quoted(QString::fromUtf8(request.body)));
    }
    return OnLines(parts);
}

QString ApicallLine(const RequestDraft& draft)
{
    QStringList options{QStringLiteral("APICALL_TOKEN=\"$TOKEN\" apicall")};
    for (const QString& option : draft.apicallOptions) {
        options.append(QuotedAddress(option));
    }
    options.append(QString::fromStdString(draft.call->name));
    return OnLines(QStringList{options.join(QLatin1Char(' '))} + ApicallArguments(draft));
}

}  // namespace explorer
