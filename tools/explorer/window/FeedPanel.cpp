#include "FeedPanel.h"

#include "Icons.h"

#include "../core/Feed.h"
#include "../views/Theme.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QToolButton>

#include <memory>

namespace explorer {
namespace {

/// Lines of a level, or a worse one, that hold a text anywhere.
class LineFilter : public QSortFilterProxyModel {
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

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
        constexpr int kFailure = 6;
        if (role == Qt::ForegroundRole && QSortFilterProxyModel::data(index, Feed::kLevelRole).toInt() >= kFailure) {
            return theme::Error(QApplication::palette());
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
    QString m_text;
    int m_lowestLevel = 0;
};

/// Copies the chosen lines; says what it is for while it is empty.
class LineTable : public QTableView {
public:
    explicit LineTable(QString hint) : m_hint(std::move(hint)) {}

protected:
    void keyPressEvent(QKeyEvent* pEvent) override
    {
        if (!pEvent->matches(QKeySequence::Copy)) {
            QTableView::keyPressEvent(pEvent);
            return;
        }
        QStringList lines;
        const QModelIndexList rows = selectionModel()->selectedRows();
        for (const QModelIndex& row : rows) {
            QStringList cells;
            for (int column = 0; column < model()->columnCount(); ++column) {
                if (!isColumnHidden(column)) {
                    cells.append(row.sibling(row.row(), column).data().toString());
                }
            }
            lines.append(cells.join(QLatin1Char('\t')));
        }
        QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
    }

    void paintEvent(QPaintEvent* pEvent) override
    {
        QTableView::paintEvent(pEvent);
        if (model()->rowCount() == 0) {
            QPainter painter(viewport());
            painter.setPen(palette().color(QPalette::PlaceholderText));
            painter.drawText(viewport()->rect(), Qt::AlignCenter, m_hint);
        }
    }

private:
    const QString m_hint;
};

/// Keeps the end in sight until the user scrolls back to read undisturbed.
void FollowEnd(QTableView* pTable)
{
    pTable->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    auto* const pBar = pTable->verticalScrollBar();
    const auto follows = std::make_shared<bool>(true);
    QObject::connect(pBar, &QScrollBar::valueChanged, pBar,
                     [pBar, follows](int value) { *follows = value == pBar->maximum(); });
    QObject::connect(pBar, &QScrollBar::rangeChanged, pBar, [pBar, follows](int /*first*/, int last) {
        if (*follows) {
            pBar->setValue(last);
        }
    });
}

}  // namespace

FeedPanel::FeedPanel(Feed& feed, Kind kind, QWidget* pParent) : QWidget(pParent)
{
    auto* const pLines = new LineFilter(this);
    pLines->setSourceModel(&feed);

    auto* const pTable = new LineTable(kind == Log ? tr("No log lines") : tr("No notifications"));
    pTable->setObjectName(kind == Log ? QStringLiteral("logTable") : QStringLiteral("notificationTable"));
    pTable->setModel(pLines);
    pTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    pTable->setShowGrid(false);
    pTable->setAlternatingRowColors(true);
    pTable->setWordWrap(false);
    pTable->setTabKeyNavigation(false);
    pTable->setFrameShape(QFrame::NoFrame);
    pTable->verticalHeader()->hide();
    constexpr int kAir = 6;
    pTable->verticalHeader()->setDefaultSectionSize(pTable->fontMetrics().height() + kAir);
    auto* const pHeader = pTable->horizontalHeader();
    pHeader->setHighlightSections(false);
    pHeader->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    pHeader->setSectionResizeMode(Feed::TextColumn, QHeaderView::Stretch);
    const auto widthOf = [pTable](const QString& text) { return pTable->fontMetrics().horizontalAdvance(text) + 24; };
    pTable->setColumnWidth(Feed::TimeColumn, widthOf(QStringLiteral("00:00:00.000")));
    pTable->setColumnWidth(Feed::LevelColumn, widthOf(Feed::LevelName(4)));
    pTable->setColumnWidth(Feed::SourceColumn, widthOf(QString(44, QLatin1Char('n'))));
    pTable->setColumnHidden(Feed::LevelColumn, kind != Log);
    pTable->setColumnHidden(Feed::SourceColumn, kind != Log);
    FollowEnd(pTable);

    auto* const pSearch = new QLineEdit;
    pSearch->setObjectName(QStringLiteral("search"));
    pSearch->setPlaceholderText(tr("Search"));
    pSearch->setClearButtonEnabled(true);
    pSearch->addAction(Icon("search"), QLineEdit::LeadingPosition);
    connect(pSearch, &QLineEdit::textChanged, pLines, &LineFilter::SetText);

    auto* const pLevel = new QComboBox;
    pLevel->setObjectName(QStringLiteral("level"));
    pLevel->setAccessibleName(tr("Level"));
    pLevel->addItem(tr("All levels"), 0);
    for (const int level : {4, 5, 6}) {
        pLevel->addItem(tr("%1 and worse").arg(Feed::LevelName(level)), level);
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

    auto* const pBar = new QHBoxLayout;
    pBar->setContentsMargins(12, 6, 12, 6);
    pBar->setSpacing(8);
    pBar->addWidget(pSearch, 1);
    pBar->addWidget(pLevel);
    pBar->addStretch(1);
    pBar->addWidget(pClear);
    auto* const pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->setSpacing(0);
    pLayout->addLayout(pBar);
    pLayout->addWidget(pTable);
    setFocusProxy(pSearch);
}

}  // namespace explorer
