#include "History.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>
#include <QSettings>

#include <algorithm>
#include <utility>

namespace explorer {
namespace {

constexpr const char* kLimitKey = "history/megabytes";
constexpr const char* kKeptKey = "history/kept";
constexpr int kUsualLimit = 64;
constexpr qint64 kMegabyte = 1 << 20;

QString ArgumentsText(const RunSummary& run)
{
    return QString::fromUtf8(QJsonDocument(run.arguments).toJson(QJsonDocument::Compact));
}

qint64 BytesOf(const Headers& headers)
{
    qint64 characters = 0;
    for (const Header& header : headers) {
        characters += header.name.size() + header.value.size();
    }
    return characters * qint64(sizeof(QChar));
}

qint64 BytesOf(const RunSummary& run)
{
    constexpr qint64 kEachRun = 1024;
    qint64 bytes = kEachRun + ArgumentsText(run).size() + run.request.body.size() + BytesOf(run.request.headers);
    if (run.reply) {
        bytes += run.reply->body.size() + BytesOf(run.reply->headers);
    }
    return bytes;
}

// Format of a run in the file

QJsonArray ToJson(const Headers& headers)
{
    QJsonArray list;
    for (const Header& header : headers) {
        list.append(QJsonArray{header.name, header.value});
    }
    return list;
}

Headers HeadersOf(const QJsonValue& list)
{
    Headers headers;
    const QJsonArray array = list.toArray();
    for (const QJsonValue& header : array) {
        headers.append({header[0].toString(), header[1].toString()});
    }
    return headers;
}

QString Packed(const QByteArray& bytes)
{
    return QString::fromLatin1(qCompress(bytes).toBase64());
}

QByteArray Unpacked(const QJsonValue& text)
{
    return qUncompress(QByteArray::fromBase64(text.toString().toLatin1()));
}

QByteArray Line(const CallOutcome& run)
{
    const bool isWhole = !BringsToken(*run.call);
    QJsonObject line{{QStringLiteral("call"), QString::fromStdString(run.call->name)},
                     {QStringLiteral("arguments"), run.arguments},
                     {QStringLiteral("server"), run.server},
                     {QStringLiteral("started"), run.started.toString(Qt::ISODateWithMs)},
                     {QStringLiteral("elapsed"), run.elapsedMilliseconds},
                     {QStringLiteral("result"), run.result},
                     {QStringLiteral("succeeded"), run.succeeded},
                     {QStringLiteral("text"), run.resultText},
                     {QStringLiteral("way"), int(run.waitMode)},
                     {QStringLiteral("timeout"), run.timeoutSeconds},
                     {QStringLiteral("method"), run.request.method},
                     {QStringLiteral("url"), run.request.url},
                     {QStringLiteral("headers"), ToJson(run.request.headers)},
                     {QStringLiteral("body"), Packed(run.request.body)},
                     {QStringLiteral("error"), run.connectionError}};
    if (run.times) {
        const QJsonValue firstByte = run.times->firstByte ? QJsonValue(*run.times->firstByte) : QJsonValue();
        line.insert(QStringLiteral("times"), QJsonArray{run.times->sent, firstByte, run.times->finished});
    }
    if (run.reply && isWhole) {
        line.insert(QStringLiteral("reply"),
                    QJsonArray{run.reply->status, ToJson(run.reply->headers), Packed(run.reply->body)});
    }
    if (!run.record.is_null() && isWhole) {
        QJsonArray missing;
        for (const std::string& path : run.missing) {
            missing.append(QString::fromStdString(path));
        }
        line.insert(QStringLiteral("missing"), missing);
        const std::vector<std::uint8_t> record = nlohmann::json::to_cbor(run.record);
        line.insert(QStringLiteral("record"),
                    Packed(QByteArray(reinterpret_cast<const char*>(record.data()), int(record.size()))));
    }
    return QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n';
}

/// A run without a call if the line is from an incompatible version of the program.
CallOutcome FromLine(const QByteArray& text)
{
    const QJsonObject line = QJsonDocument::fromJson(text).object();
    const auto value = [&line](const char* key) { return line.value(QLatin1String(key)); };
    CallOutcome run;
    run.call = catalogue::FindCall(value("call").toString().toStdString());
    run.arguments = value("arguments").toObject();
    run.server = value("server").toString();
    run.started = QDateTime::fromString(value("started").toString(), Qt::ISODateWithMs);
    run.elapsedMilliseconds = value("elapsed").toDouble();
    run.result = value("result").toInt();
    run.succeeded = value("succeeded").toBool();
    run.resultText = value("text").toString();
    run.waitMode = WaitMode(value("way").toInt());
    run.timeoutSeconds = value("timeout").toInt();
    run.request = {value("method").toString(), value("url").toString(), HeadersOf(value("headers")),
                   Unpacked(value("body"))};
    run.connectionError = value("error").toString();
    if (const QJsonArray times = value("times").toArray(); !times.isEmpty()) {
        run.times = ExchangeTimes{times.at(0).toDouble(), std::nullopt, times.at(2).toDouble()};
        if (times.at(1).isDouble()) {
            run.times->firstByte = times.at(1).toDouble();
        }
    }
    if (const QJsonArray reply = value("reply").toArray(); !reply.isEmpty()) {
        run.reply = RawReply{reply.at(0).toInt(), HeadersOf(reply.at(1)), Unpacked(reply.at(2))};
    }
    if (value("record").isString()) {
        const QByteArray record = Unpacked(value("record"));
        run.record = nlohmann::json::from_cbor(record.begin(), record.end(), true, false);
        const QJsonArray missing = value("missing").toArray();
        for (const QJsonValue& path : missing) {
            run.missing.insert(path.toString().toStdString());
        }
    }
    return run;
}

}  // namespace

PastRun::PastRun(const CallOutcome& outcome) : m_summary(outcome)
{
    if (!outcome.record.is_null()) {
        nlohmann::json::to_cbor(outcome.record, m_record);
        m_record.shrink_to_fit();
    }
    m_bytes = BytesOf(m_summary) + qint64(m_record.size());
}

CallOutcome PastRun::Outcome() const
{
    CallOutcome outcome{m_summary, nullptr};
    if (!m_record.empty()) {
        outcome.record = nlohmann::json::from_cbor(m_record);
    }
    return outcome;
}

History::History(QSettings& settings, QObject* parent)
    : QAbstractTableModel(parent), m_settings(settings),
      m_limit(std::max(1, settings.value(QLatin1String(kLimitKey), kUsualLimit).toInt())),
      m_bKept(settings.value(QLatin1String(kKeptKey)).toBool())
{
    if (m_bKept) {
        Load();
    }
}

void History::Add(const CallOutcome& outcome)
{
    const auto run = std::make_shared<const PastRun>(outcome);
    Append(run);
    if (m_bKept) {
        Write(false, {run});
    }
}

void History::Append(const PastRunPtr& run)
{
    beginInsertRows({}, rowCount(), rowCount());
    m_runs.push_back(run);
    m_bytes += run->Bytes();
    endInsertRows();
    DropOldest();
}

void History::DropOldest()
{
    int count = 0;
    qint64 bytes = m_bytes;
    while (count + 1 < rowCount() && bytes > m_limit * kMegabyte) {
        bytes -= At(count)->Bytes();
        ++count;
    }
    if (count > 0) {
        beginRemoveRows({}, 0, count - 1);
        m_runs.erase(m_runs.begin(), m_runs.begin() + count);
        m_bytes = bytes;
        endRemoveRows();
    }
}

void History::Clear()
{
    beginResetModel();
    m_runs.clear();
    m_bytes = 0;
    endResetModel();
    if (m_bKept) {
        Write(true, {});
    }
}

void History::SetKept(bool kept)
{
    m_bKept = kept;
    m_settings.setValue(QLatin1String(kKeptKey), kept);
    if (kept) {
        Write(true, PastRuns(m_runs.begin(), m_runs.end()));
    } else {
        QFile::remove(FileName());
    }
}

QString History::FileName() const
{
    return QFileInfo(m_settings.fileName()).dir().filePath(QStringLiteral("explorer-history.jsonl"));
}

void History::Load()
{
    QFile file(FileName());
    if (!file.open(QIODevice::ReadOnly)) {
        return;
    }
    while (!file.atEnd()) {
        const CallOutcome run = FromLine(file.readLine());
        if (run.call != nullptr) {
            Append(std::make_shared<const PastRun>(run));
        }
    }
    file.close();
    Write(true, PastRuns(m_runs.begin(), m_runs.end()));  // without those above the limit
}

void History::Write(bool anew, const PastRuns& runs) const
{
    QFile file(FileName());
    if (!file.open(QIODevice::WriteOnly | (anew ? QIODevice::Truncate : QIODevice::Append))) {
        return;  // the runs are kept in memory
    }
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    for (const PastRunPtr& run : runs) {
        file.write(Line(run->Outcome()));
    }
}

void History::SetLimitInMegabytes(int limit)
{
    m_limit = limit;
    m_settings.setValue(QLatin1String(kLimitKey), limit);
    DropOldest();
}

PastRuns History::RunsOf(const catalogue::Call& call, std::size_t most) const
{
    PastRuns runs;
    for (auto run = m_runs.crbegin(); run != m_runs.crend() && runs.size() < most; ++run) {
        if ((*run)->Summary().call == &call) {
            runs.push_back(*run);
        }
    }
    std::reverse(runs.begin(), runs.end());
    return runs;
}

PastRunPtr History::LastOf(const catalogue::Call& call) const
{
    const PastRuns runs = RunsOf(call, 1);
    return runs.empty() ? nullptr : runs.front();
}

int History::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_runs.size());
}

int History::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant History::data(const QModelIndex& index, int role) const
{
    const RunSummary& run = At(index.row())->Summary();
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) {
        return {};
    }
    switch (index.column()) {
    case TimeColumn:
        return run.started.toString(QStringLiteral("HH:mm:ss.zzz"));
    case CallColumn:
        return QString::fromStdString(run.call->name);
    case ArgumentsColumn:
        return ArgumentsText(run);
    case ServerColumn:
        return run.server;
    case EndColumn:
        //: How a run ended: %1 is its text, %2 the number of its result
        return run.succeeded ? run.resultText : tr("%1 (%2)").arg(run.resultText).arg(run.result);
    case DurationColumn:
        return tr("%1 ms").arg(QLocale().toString(run.elapsedMilliseconds, 'f', 1));
    default:
        return {};
    }
}

QVariant History::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    const QStringList headers{tr("Time"), tr("Call"), tr("Arguments"), tr("Server"), tr("End"), tr("Duration")};
    return headers.value(section);
}

}  // namespace explorer
