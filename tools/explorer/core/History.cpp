#include "History.h"

#include <QJsonDocument>
#include <QLocale>
#include <QSettings>

#include <algorithm>
#include <utility>

namespace explorer {
namespace {

constexpr const char* kLimitKey = "history/megabytes";
constexpr int kUsualLimit = 64;
constexpr qint64 kMegabyte = 1 << 20;

QString ArgumentsText(const CallOutcome& run)
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

qint64 BytesOf(const CallOutcome& run)
{
    constexpr qint64 kEachRun = 1024;
    qint64 bytes = kEachRun + ArgumentsText(run).size() + run.request.body.size() + BytesOf(run.request.headers);
    if (run.reply) {
        bytes += run.reply->body.size() + BytesOf(run.reply->headers);
    }
    return bytes;
}

}  // namespace

PastRun::PastRun(CallOutcome outcome) : m_summary(std::move(outcome))
{
    if (!m_summary.record.is_null()) {
        nlohmann::json::to_cbor(m_summary.record, m_record);
        m_record.shrink_to_fit();
        m_summary.record = nullptr;
    }
    m_bytes = BytesOf(m_summary) + qint64(m_record.size());
}

CallOutcome PastRun::Outcome() const
{
    CallOutcome outcome = m_summary;
    if (!m_record.empty()) {
        outcome.record = nlohmann::json::from_cbor(m_record);
    }
    return outcome;
}

History::History(QSettings& settings, QObject* parent)
    : QAbstractTableModel(parent), m_settings(settings),
      m_limit(std::max(1, settings.value(QLatin1String(kLimitKey), kUsualLimit).toInt()))
{}

void History::Add(const CallOutcome& outcome)
{
    const auto run = std::make_shared<const PastRun>(outcome);
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
    const CallOutcome& run = At(index.row())->Summary();
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
    const QString headers[] = {tr("Time"), tr("Call"), tr("Arguments"), tr("Server"), tr("End"), tr("Duration")};
    return headers[section];
}

}  // namespace explorer
