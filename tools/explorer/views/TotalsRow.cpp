#include "TotalsRow.h"
#include "Widgets.h"

#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QTableView>

namespace explorer {

// A header is the only view that scrolls to any offset, whatever the width of the view.
TotalsRow::TotalsRow(QTableView& table, QWidget* pParent)
    : QWidget(pParent), m_table(table), m_pTitle(new QLabel(tr("Total"))), m_pCells(new QHeaderView(Qt::Horizontal))
{
    constexpr int kRoom = 12;
    m_pTitle->setAlignment(Qt::AlignCenter);
    table.verticalHeader()->setMinimumWidth(m_pTitle->sizeHint().width() + kRoom);
    m_pCells->setModel(&m_model);
    m_pCells->setSectionResizeMode(QHeaderView::Fixed);
    m_pCells->setHighlightSections(false);
    m_pCells->setFocusPolicy(Qt::NoFocus);

    auto* const pLayout = Row({m_pTitle, {m_pCells, 1}}, this);
    pLayout->setContentsMargins(table.frameWidth(), 0, 0, 0);
    pLayout->setSpacing(0);

    connect(table.horizontalHeader(), &QHeaderView::sectionResized, this, &TotalsRow::Align);
    connect(table.horizontalScrollBar(), &QScrollBar::valueChanged, this, &TotalsRow::Align);
    table.verticalHeader()->installEventFilter(this);
}

void TotalsRow::SetTotals(const QStringList& totals)
{
    m_model.setColumnCount(totals.size());
    for (int column = 0; column < totals.size(); ++column) {
        auto* pItem = new QStandardItem(totals[column]);
        pItem->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        m_model.setHorizontalHeaderItem(column, pItem);
    }
    if (!totals.isEmpty()) {
        setFixedHeight(m_pCells->sizeHint().height());
    }
    Align();
}

QString TotalsRow::Total(int column) const
{
    return m_model.headerData(column, Qt::Horizontal).toString();
}

bool TotalsRow::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::Resize) {
        Align();
    }
    return QWidget::eventFilter(pWatched, pEvent);
}

void TotalsRow::Align()
{
    m_pTitle->setFixedWidth(m_table.verticalHeader()->width());
    for (int column = 0; column < m_pCells->count(); ++column) {
        m_pCells->resizeSection(column, m_table.columnWidth(column));
    }
    m_pCells->setOffset(m_table.horizontalHeader()->offset());
}

}  // namespace explorer
