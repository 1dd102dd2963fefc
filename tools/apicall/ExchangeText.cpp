#include "ExchangeText.h"

#include "Texts.h"

#include <algorithm>

namespace apicall {
namespace {

using APIModule::ObservedExchange;

/// The bytes with control characters escaped and the token masked.
std::string Visible(QByteArray bytes, const std::string& token)
{
    if (!token.empty()) {
        bytes.replace(QByteArray::fromStdString(token), "******");
    }
    std::string visible;
    for (const char byte : bytes) {
        constexpr char kDelete = 0x7F;
        const bool isControl = (byte >= 0 && byte < ' ' && byte != '\n' && byte != '\t') || byte == kDelete;
        visible += isControl ? "\\x" + QByteArray(1, byte).toHex().toStdString() : std::string(1, byte);
    }
    return visible;
}

std::string MessageText(const QByteArray& firstLine, const ObservedExchange::Headers& headers, const QByteArray& body,
                        const std::string& token)
{
    QByteArray text = firstLine + '\n';
    for (const auto& [name, value] : headers) {
        text += name + ": " + value + '\n';
    }
    if (!body.isEmpty()) {
        text += '\n' + body + '\n';
    }
    return Visible(text, token);
}

/// Puts the prefix before each line.
std::string Prefixed(const std::string& text, const std::string& prefix)
{
    std::string prefixed;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        prefixed += end == begin ? prefix + "\n" : prefix + " " + text.substr(begin, end - begin) + "\n";
        begin = end + 1;
    }
    return prefixed;
}

std::string Milliseconds(std::chrono::nanoseconds time)
{
    constexpr double kNanosecondsPerMillisecond = 1e6;
    constexpr int kDigits = 1;
    return QString::number(double(time.count()) / kNanosecondsPerMillisecond, 'f', kDigits).toStdString();
}

}  // namespace

std::string RequestText(const ObservedExchange& exchange, const std::string& token)
{
    return MessageText(exchange.method + ' ' + exchange.url.toUtf8(), exchange.requestHeaders, exchange.requestBody,
                       token);
}

std::string ExchangeText(const ObservedExchange& exchange, const std::string& token)
{
    std::string text = Prefixed(RequestText(exchange, token), ">");
    if (exchange.nStatus != -1) {
        text += Prefixed(
            MessageText(QByteArray::number(exchange.nStatus), exchange.responseHeaders, exchange.responseBody, token),
            "<");
    }
    if (!exchange.error.isEmpty()) {
        text += Prefixed(Visible(exchange.error.toUtf8(), token), "*");
    }
    if (exchange.firstByte) {
        //: Times in milliseconds
        text += Prefixed(Filled(Texts::tr("first byte after %1 ms, complete after %2 ms"),
                                Milliseconds(*exchange.firstByte), Milliseconds(exchange.finishedAfter)),
                         "*");
    }
    return text;
}

}  // namespace apicall
