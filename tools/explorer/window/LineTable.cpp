#include "LineTable.h"

#include "../views/Widgets.h"
#include "Icons.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QScrollBar>
#include <QTableView>

#include <memory>
#include <utility>

namespace explorer {
namespace {

/// Copies the selected lines; shows a hint while it is empty.
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

/// Scrolls to the last line unless the user has scrolled back.
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

QTableView* NewLineTable(const QString& objectName, QAbstractItemModel& lines, const QString& hint)
{
    auto* const pTable = new LineTable(hint);
    pTable->setObjectName(objectName);
    pTable->setModel(&lines);
    pTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    pTable->setShowGrid(false);
    pTable->setAlternatingRowColors(true);
    pTable->setWordWrap(false);
    pTable->setTabKeyNavigation(false);
    pTable->setFrameShape(QFrame::NoFrame);
    pTable->verticalHeader()->hide();
    constexpr int kAir = 6;
    pTable->verticalHeader()->setDefaultSectionSize(pTable->fontMetrics().height() + kAir);
    pTable->horizontalHeader()->setHighlightSections(false);
    pTable->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    FollowEnd(pTable);
    return pTable;
}

QLineEdit* NewSearch()
{
    auto* const pSearch = Named(new QLineEdit, "search");
    pSearch->setPlaceholderText(QCoreApplication::translate("explorer::FeedPanel", "Search"));
    pSearch->setClearButtonEnabled(true);
    pSearch->addAction(Icon("search"), QLineEdit::LeadingPosition);
    return pSearch;
}

}  // namespace explorer
