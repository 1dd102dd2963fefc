#include "FeedPanel.h"

#include "Icons.h"
#include "LineTable.h"

#include "../core/Feed.h"
#include "../views/Theme.h"
#include "../views/Widgets.h"

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QStyle>
#include <QTableView>
#include <QToolButton>

namespace explorer {
namespace {

/// The lines of at least a given level that contain a text. Outcomes have icons.
class LineFilter : public QSortFilterProxyModel {
public:
    LineFilter(bool withIcons, QObject* pParent) : QSortFilterProxyModel(pParent), m_withIcons(withIcons) {}

    void SetText(const QString& text)
    {
        m_text = text;
        invalidateFilter();
    }

    void SetLowestLevel(int level)
    {
        m_lowestLevel = level;
        invalidateFilter();
    }

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override
    {
        const int level = QSortFilterProxyModel::data(index, Feed::kLevelRole).toInt();
        if (role == Qt::ForegroundRole && level >= Feed::kFailure) {
            return theme::Error(QApplication::palette());
        }
        if (role == Qt::DecorationRole && m_withIcons && index.column() == Feed::LevelColumn && level > 0) {
            return level >= Feed::kFailure ? m_failure : m_success;
        }
        return QSortFilterProxyModel::data(index, role);
    }

protected:
    [[nodiscard]] bool filterAcceptsRow(int row, const QModelIndex& parent) const override
    {
        const auto text = [this, row, &parent](int column) {
            return sourceModel()->index(row, column, parent).data().toString();
        };
        const bool holds = text(Feed::TextColumn).contains(m_text, Qt::CaseInsensitive) ||
                           text(Feed::SourceColumn).contains(m_text, Qt::CaseInsensitive);
        return holds && sourceModel()->index(row, 0, parent).data(Feed::kLevelRole).toInt() >= m_lowestLevel;
    }

private:
    const bool m_withIcons;
    const QIcon m_success = Icon("success");
    const QIcon m_failure = Icon("failure");
    QString m_text;
    int m_lowestLevel = 0;
};

}  // namespace

FeedPanel::FeedPanel(Feed& feed, Kind kind, QWidget* pParent) : QWidget(pParent)
{
    auto* const pLines = new LineFilter(kind == Notifications, this);
    pLines->setSourceModel(&feed);

    QTableView* const pTable =
        NewLineTable(kind == Log ? QStringLiteral("logTable") : QStringLiteral("notificationTable"), *pLines,
                     kind == Log ? tr("No log lines") : tr("No notifications"));
    pTable->horizontalHeader()->setSectionResizeMode(Feed::TextColumn, QHeaderView::Stretch);
    const auto widthOf = [pTable](const QString& text) { return pTable->fontMetrics().horizontalAdvance(text) + 24; };
    pTable->setColumnWidth(Feed::TimeColumn, widthOf(QStringLiteral("00:00:00.000")));
    const int iconWidth = kind == Notifications ? pTable->style()->pixelMetric(QStyle::PM_SmallIconSize) : 0;
    pTable->setColumnWidth(Feed::LevelColumn, widthOf(Feed::LevelName(Feed::kInformation)) + iconWidth);
    pTable->setColumnWidth(Feed::SourceColumn, widthOf(QString(44, QLatin1Char('n'))));
    pTable->setColumnHidden(Feed::SourceColumn, kind != Log);

    QLineEdit* const pSearch = NewSearch();
    connect(pSearch, &QLineEdit::textChanged, pLines, &LineFilter::SetText);

    auto* const pLevel = Named(new QComboBox, "level");
    pLevel->setAccessibleName(tr("Level"));
    pLevel->addItem(tr("All levels"), 0);
    for (const int level : {Feed::kInformation, 5, Feed::kFailure}) {
        pLevel->addItem(tr("%1 and above").arg(Feed::LevelName(level)), level);
    }
    pLevel->setVisible(kind == Log);
    connect(pLevel, qOverload<int>(&QComboBox::currentIndexChanged), pLines,
            [pLines, pLevel] { pLines->SetLowestLevel(pLevel->currentData().toInt()); });

    auto* const pClear = new QToolButton;
    pClear->setIcon(Icon("clear"));
    pClear->setAutoRaise(true);
    pClear->setToolTip(tr("Clear"));
    pClear->setAccessibleName(tr("Clear"));
    connect(pClear, &QToolButton::clicked, &feed, &Feed::Clear);

    auto* const pBar = Row({{pSearch, 1}, pLevel, Stretch(1), pClear});
    pBar->setContentsMargins(12, 6, 12, 6);
    pBar->setSpacing(8);
    auto* const pLayout = Column({pBar, pTable}, this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->setSpacing(0);
    setFocusProxy(pSearch);
}

}  // namespace explorer
