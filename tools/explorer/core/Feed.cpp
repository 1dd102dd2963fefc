#include "Feed.h"

#include <libornl/TalPrintLog.h>
#include <OrnGui/OrnMessageNotify.h>

#include <utility>

namespace explorer {

void Feed::Append(const Line& line)
{
    if (m_lines.size() >= kMostLines) {
        constexpr int kAtOnce = kMostLines / 10;
        beginRemoveRows({}, 0, kAtOnce - 1);
        m_lines.remove(0, kAtOnce);
        endRemoveRows();
    }
    beginInsertRows({}, m_lines.size(), m_lines.size());
    m_lines.append(line);
    endInsertRows();
}

void Feed::Clear()
{
    beginResetModel();
    m_lines.clear();
    endResetModel();
}

int Feed::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_lines.size();
}

int Feed::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant Feed::data(const QModelIndex& index, int role) const
{
    const Line& line = m_lines.at(index.row());
    if (role == kLevelRole) {
        return line.level;
    }
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) {
        return {};
    }
    switch (index.column()) {
    case TimeColumn:
        return line.time.toString(QStringLiteral("HH:mm:ss.zzz"));
    case LevelColumn:
        return LevelName(line.level);
    case TextColumn:
        return line.text;
    case SourceColumn:
        return line.source;
    default:
        return {};
    }
}

QVariant Feed::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    const QStringList headers{tr("Time"), tr("Level"), tr("Text"), tr("Function")};
    return headers.value(section);
}

QString Feed::LevelName(int level)
{
    constexpr int kLowest = 2;
    const QStringList names{tr("Verbose"), tr("Debug"), tr("Information"), tr("Warning"), tr("Failure"), tr("Fatal")};
    return names.value(level - kLowest, QString::number(level));
}

LogFeed::LogFeed(QObject* parent) : Feed(parent)
{
    // Log lines come from any thread.
    ornl::TalPrintLog::instance().SetObserver([this](const ornl::LogRecord& record) {
        const Line line{QTime::currentTime(), record.nLevel, QString::fromStdString(record.strMessage),
                        QString::fromStdString(record.strFunction)};
        QMetaObject::invokeMethod(
            this, [this, line] { Append(line); }, Qt::QueuedConnection);
    });
}

LogFeed::~LogFeed()
{
    ornl::TalPrintLog::instance().SetObserver({});
}

NotificationFeed::NotificationFeed(QObject* parent) : Feed(parent)
{
    connect(&ORNGUI::OrnSingleton<ORNGUI::OrnMessageNotify>::Instance(),
            &ORNGUI::OrnMessageNotify::TextNotificationAdded, this, [this](const QString& text) {
                Append({QTime::currentTime(), std::exchange(m_nextLevel, 0), text, {}});
            });
}

void NotificationFeed::ExpectOutcome(bool succeeded)
{
    m_nextLevel = succeeded ? kInformation : kFailure;
}

QVariant NotificationFeed::data(const QModelIndex& index, int role) const
{
    const bool isName = role == Qt::DisplayRole || role == Qt::ToolTipRole;
    if (index.column() != LevelColumn || !isName) {
        return Feed::data(index, role);
    }
    switch (Feed::data(index, kLevelRole).toInt()) {
    case kInformation:
        return tr("Success");
    case kFailure:
        return tr("Failure");
    default:
        return {};
    }
}

QVariant NotificationFeed::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool isLevel = orientation == Qt::Horizontal && section == LevelColumn && role == Qt::DisplayRole;
    return isLevel ? tr("Outcome") : Feed::headerData(section, orientation, role);
}

}  // namespace explorer
