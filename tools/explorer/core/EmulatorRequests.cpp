#include "EmulatorRequests.h"

#include <algorithm>

namespace explorer {
namespace {

constexpr std::size_t kMost = 10000;
constexpr qint64 kMostBodyBytes = qint64(64) << 20;

QString TextOf(const nlohmann::json& object, const char* key)
{
    return QString::fromStdString(object.at(key).get<std::string>());
}

EmulatorRequests::Entry EntryOf(const nlohmann::json& request)
{
    EmulatorRequests::Entry entry;
    entry.number = request.at("number");
    entry.time = QDateTime::fromString(TextOf(request, "time"), Qt::ISODateWithMs).toLocalTime();
    entry.method = TextOf(request, "method");
    entry.target = TextOf(request, "target");
    for (const auto& header : request.at("headers")) {
        const QString name = TextOf(header, "name");
        const bool isToken = name.compare(QLatin1String("X-Subject-Token"), Qt::CaseInsensitive) == 0;
        entry.headers.append({name, isToken ? QString::fromLatin1(kTokenMask) : TextOf(header, "value")});
    }
    entry.body = QByteArray::fromStdString(request.at("body"));
    entry.status = request.at("status");
    if (!request.at("code").is_null()) {
        entry.code = request.at("code").get<int>();
    }
    entry.ended = request.at("ended");
    return entry;
}

}  // namespace

void EmulatorRequests::Take(const nlohmann::json& list)
{
    for (const nlohmann::json& request : list) {
        Entry entry = EntryOf(request);
        const auto known =
            std::lower_bound(m_entries.begin(), m_entries.end(), entry.number,
                             [](const Entry& other, std::size_t number) { return other.number < number; });
        const int row = int(known - m_entries.begin());
        if (known == m_entries.end()) {
            beginInsertRows({}, row, row);
            m_bodyBytes += entry.body.size();
            m_entries.push_back(std::move(entry));
            endInsertRows();
        } else if (known->number == entry.number && entry.ended && !known->ended) {
            *known = std::move(entry);
            emit dataChanged(index(row, 0), index(row, ColumnCount - 1));
        }
    }
    DropOldest();
}

void EmulatorRequests::DropOldest()
{
    std::size_t count = m_entries.size() > kMost ? m_entries.size() - kMost : 0;
    qint64 bytes = m_bodyBytes;
    for (std::size_t place = 0; place < m_entries.size() && (place < count || bytes > kMostBodyBytes); ++place) {
        bytes -= m_entries[place].body.size();
        count = std::max(count, place + 1);
    }
    if (count > 0) {
        beginRemoveRows({}, 0, int(count) - 1);
        m_entries.erase(m_entries.begin(), m_entries.begin() + std::ptrdiff_t(count));
        m_bodyBytes = bytes;
        endRemoveRows();
    }
}

void EmulatorRequests::Clear()
{
    beginResetModel();
    m_entries.clear();
    m_bodyBytes = 0;
    endResetModel();
}

std::size_t EmulatorRequests::CompleteTo() const
{
    const auto incomplete =
        std::find_if(m_entries.begin(), m_entries.end(), [](const Entry& entry) { return !entry.ended; });
    if (incomplete != m_entries.end()) {
        return incomplete->number - 1;
    }
    return m_entries.empty() ? 0 : m_entries.back().number;
}

int EmulatorRequests::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_entries.size());
}

int EmulatorRequests::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant EmulatorRequests::data(const QModelIndex& index, int role) const
{
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) {
        return {};
    }
    const Entry& entry = At(index.row());
    switch (index.column()) {
    case TimeColumn:
        return entry.time.toString(QStringLiteral("HH:mm:ss.zzz"));
    case MethodColumn:
        return entry.method;
    case TargetColumn:
        return entry.target;
    case StatusColumn:
        if (entry.status > 0) {
            return entry.status;
        }
        return entry.ended ? tr("No reply") : tr("Waiting");
    case CodeColumn:
        return entry.code ? QVariant(*entry.code) : QVariant();
    default:
        return {};
    }
}

QVariant EmulatorRequests::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    const QStringList headers{tr("Time"), tr("Method"), tr("Path"), tr("Status"), tr("Code")};
    return headers.value(section);
}

}  // namespace explorer
