#include "RecordTable.h"

#include "Csv.h"
#include "Theme.h"
#include "TintedLabel.h"
#include "TotalsRow.h"
#include "Widgets.h"

#include <QComboBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSaveFile>
#include <QTableView>

namespace explorer {
namespace {

void LimitColumns(QTableView& table)
{
    constexpr int kWidest = 280;
    table.resizeColumnsToContents();
    for (int column = 0; column < table.model()->columnCount(); ++column) {
        table.setColumnWidth(column, qMin(table.columnWidth(column), kWidest));
    }
}

}  // namespace

RecordTable::RecordTable(QWidget* pParent)
    : QWidget(pParent), m_pListLabel(new QLabel(tr("&List:"))), m_pList(Named(new QComboBox, "list")),
      m_pFilter(Named(new QLineEdit, "filter")), m_pExport(Named(new QPushButton(tr("&Export CSV\u2026")), "export")),
      m_pTable(Named(new QTableView, "table")), m_pTotals(new TotalsRow(*m_pTable)),
      m_pRows(Named(new TintedLabel(theme::Hint), "rows"))
{
    m_shown.setSourceModel(&m_model);
    m_shown.setSortRole(RecordTableModel::kSortRole);
    m_shown.setFilterKeyColumn(-1);
    m_shown.setFilterCaseSensitivity(Qt::CaseInsensitive);

    m_pListLabel->setBuddy(m_pList);
    m_pFilter->setPlaceholderText(tr("Text in any column"));
    m_pFilter->setClearButtonEnabled(true);
    m_pTable->setModel(&m_shown);
    m_pTable->setSortingEnabled(true);
    m_pTable->setAlternatingRowColors(true);
    m_pTable->setWordWrap(false);
    m_pTable->setTabKeyNavigation(false);
    constexpr int kRoom = 8;
    m_pTable->verticalHeader()->setDefaultAlignment(Qt::AlignCenter);
    m_pTable->verticalHeader()->setDefaultSectionSize(m_pTable->fontMetrics().height() + kRoom);
    m_pTable->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_pTable->horizontalHeader()->setHighlightSections(false);

    auto* const pRows = Column({{m_pTable, 1}, m_pTotals});
    pRows->setSpacing(0);
    Column({Row({m_pListLabel, m_pList, LabelFor(m_pFilter, tr("&Filter:")), {m_pFilter, 1}, m_pExport}),
            {pRows, 1},
            m_pRows},
           this);

    connect(m_pList, qOverload<int>(&QComboBox::currentIndexChanged), this, &RecordTable::ShowList);
    connect(m_pFilter, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_shown.setFilterFixedString(text);
        Update();
    });
    connect(m_pExport, &QPushButton::clicked, this, &RecordTable::Export);
}

bool RecordTable::SetRecord(const catalogue::Type& type, const SharedRecord& pRecord)
{
    m_model.Clear();  // it refers to the record
    m_pRecord = pRecord;
    m_lists = ListsIn(type, *m_pRecord);
    {
        const QSignalBlocker quiet(m_pList);
        m_pList->clear();
        for (const ListInRecord& list : m_lists) {
            m_pList->addItem(list.path);
        }
    }
    m_pListLabel->setVisible(m_lists.size() > 1);
    m_pList->setVisible(m_lists.size() > 1);
    m_pFilter->clear();
    ShowList(0);
    return !m_lists.empty();
}

QByteArray RecordTable::ToCsv() const
{
    QList<QStringList> rows;
    QStringList titles;
    for (int column = 0; column < m_model.columnCount(); ++column) {
        titles.append(m_model.headerData(column, Qt::Horizontal).toString());
    }
    rows.append(titles);
    for (int row = 0; row < m_shown.rowCount(); ++row) {
        const int source = m_shown.mapToSource(m_shown.index(row, 0)).row();
        QStringList fields;
        for (int column = 0; column < m_model.columnCount(); ++column) {
            fields.append(m_model.Exported(source, column));
        }
        rows.append(fields);
    }
    return Csv(rows);
}

bool RecordTable::ExportTo(const QString& fileName) const
{
    QSaveFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(ToCsv()) >= 0 && file.commit();
}

void RecordTable::ShowList(int choice)
{
    if (m_lists.empty()) {
        m_model.Clear();
    } else {
        const ListInRecord& list = m_lists[std::size_t(qMax(choice, 0))];
        m_model.SetList(*list.type, *list.list);
    }
    m_pTable->sortByColumn(-1, Qt::AscendingOrder);
    LimitColumns(*m_pTable);
    Update();
}

void RecordTable::Update()
{
    QStringList totals;
    bool hasTotals = false;
    for (int column = 0; column < m_model.columnCount(); ++column) {
        if (!m_model.IsCount(column)) {
            totals.append(QString());
            continue;
        }
        qint64 total = 0;
        for (int row = 0; row < m_shown.rowCount(); ++row) {
            total += m_model.Count(m_shown.mapToSource(m_shown.index(row, 0)).row(), column);
        }
        totals.append(QString::number(total));
        hasTotals = true;
    }
    m_pTotals->SetTotals(totals);
    m_pTotals->setVisible(hasTotals);
    m_pRows->setText(m_shown.rowCount() == m_model.rowCount()
                         ? tr("Rows: %1").arg(m_model.rowCount())
                         : tr("Rows: %1 of %2").arg(m_shown.rowCount()).arg(m_model.rowCount()));
    m_pExport->setEnabled(m_shown.rowCount() > 0);
}

void RecordTable::Export()
{
    const QString fileName = QFileDialog::getSaveFileName(this, tr("Export the table"), QStringLiteral("table.csv"),
                                                          tr("Comma-separated values (*.csv)"));
    if (!fileName.isEmpty() && !ExportTo(fileName)) {
        QMessageBox::warning(this, tr("Export the table"), tr("%1 cannot be written.").arg(fileName));
    }
}

}  // namespace explorer
