#include "Har.h"

#include <QCoreApplication>
#include <QUrl>
#include <QUrlQuery>

#include <algorithm>

namespace explorer {
namespace {

using nlohmann::json;

json Pair(const QString& name, const QString& value)
{
    return {{"name", name.toStdString()}, {"value", value.toStdString()}};
}

json HarHeaders(const Headers& headers)
{
    json list = json::array();
    for (const Header& header : headers) {
        list.push_back(Pair(header.name, header.value));
    }
    return list;
}

json QueryOf(const QString& url)
{
    json list = json::array();
    const auto items = QUrlQuery(QUrl(url)).queryItems(QUrl::FullyDecoded);
    for (const auto& [name, value] : items) {
        list.push_back(Pair(name, value));
    }
    return list;
}

std::string TypeOf(const Headers& headers)
{
    const auto found = std::find_if(headers.cbegin(), headers.cend(), [](const Header& header) {
        return header.name.compare(QLatin1String("Content-Type"), Qt::CaseInsensitive) == 0;
    });
    return found == headers.cend() ? std::string() : found->value.toStdString();
}

json RequestOf(const SentRequest& sent)
{
    json request{{"method", sent.method.toStdString()},
                 {"url", sent.url.toStdString()},
                 {"httpVersion", "HTTP/1.1"},
                 {"cookies", json::array()},
                 {"headers", HarHeaders(sent.headers)},
                 {"queryString", QueryOf(sent.url)},
                 {"headersSize", -1},
                 {"bodySize", sent.body.size()}};
    if (!sent.body.isEmpty()) {
        request["postData"] = {{"mimeType", TypeOf(sent.headers)}, {"text", sent.body.toStdString()}};
    }
    return request;
}

/// Status 0 means no reply.
json ResponseOf(const RunSummary& run)
{
    const RawReply reply = run.reply.value_or(RawReply{0, {}, {}});
    json content{{"size", reply.body.size()}, {"mimeType", TypeOf(reply.headers)}};
    if (BringsToken(*run.call)) {
        content["comment"] = "left out";
    } else {
        content["text"] = QString::fromUtf8(reply.body).toStdString();
    }
    return {{"status", reply.status},
            {"statusText", run.connectionError.toStdString()},
            {"httpVersion", "HTTP/1.1"},
            {"cookies", json::array()},
            {"headers", HarHeaders(reply.headers)},
            {"content", content},
            {"redirectURL", ""},
            {"headersSize", -1},
            {"bodySize", -1}};
}

json EntryOf(const RunSummary& run)
{
    const ExchangeTimes times = run.times.value_or(ExchangeTimes{0, std::nullopt, run.elapsedMilliseconds});
    const double firstByte = times.firstByte.value_or(times.finished);
    return {{"startedDateTime", run.started.toUTC().toString(Qt::ISODateWithMs).toStdString()},
            {"time", times.finished},
            {"request", RequestOf(run.request)},
            {"response", ResponseOf(run)},
            {"cache", json::object()},
            {"timings",
             {{"blocked", times.sent},
              {"send", 0},
              {"wait", firstByte - times.sent},
              {"receive", times.finished - firstByte}}},
            {"comment", run.call->name}};
}

}  // namespace

json Har(const std::vector<const RunSummary*>& runs)
{
    json entries = json::array();
    for (const RunSummary* run : runs) {
        if (!run->request.method.isEmpty()) {
            entries.push_back(EntryOf(*run));
        }
    }
    const json creator{{"name", "APIModule Explorer"},
                       {"version", QCoreApplication::applicationVersion().toStdString()}};
    return {{"log", {{"version", "1.2"}, {"creator", creator}, {"entries", entries}}}};
}

}  // namespace explorer
