#include "HistoryPanel.h"

#include "CompareDialog.h"
#include "LineTable.h"

#include "../core/Har.h"
#include "../views/CppLines.h"
#include "../views/Json.h"
#include "../views/Widgets.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QSaveFile>
#include <QSortFilterProxyModel>
#include <QSpinBox>
#include <QTableView>

#include <algorithm>
#include <utility>

namespace explorer {

HistoryPanel::HistoryPanel(History& history, QWidget* pParent)
    : QWidget(pParent), m_history(history), m_pShown(new QSortFilterProxyModel(this)),
      m_pTable(NewLineTable(QStringLiteral("historyTable"), *m_pShown, tr("No runs"))),
      m_pRun(Named(new QPushButton(tr("Run again")), "runAgain")),
      m_pLoad(Named(new QPushButton(tr("Load")), "loadRun")),
      m_pCompare(Named(new QPushButton(tr("Compare")), "compareRuns")),
      m_pExport(Named(new QPushButton(tr("Export…")), "exportRuns")),
      m_pClear(Named(new QPushButton(tr("Clear")), "clearHistory")), m_pBytes(new QLabel)
{
    m_pShown->setSourceModel(&history);
    m_pShown->setFilterKeyColumn(-1);
    m_pShown->setFilterCaseSensitivity(Qt::CaseInsensitive);
    const auto widthOf = [this](int letters) { return m_pTable->fontMetrics().averageCharWidth() * letters; };
    const int widths[] = {16, 34, 40, 20, 36, 12};
    for (int column = 0; column < History::ColumnCount; ++column) {
        m_pTable->setColumnWidth(column, widthOf(widths[column]));
    }
    m_pTable->horizontalHeader()->setSectionResizeMode(History::ArgumentsColumn, QHeaderView::Stretch);
    m_pLoad->setToolTip(tr("Load the arguments into the form"));
    m_pExport->setToolTip(tr("Exports the selected runs as an HTTP archive (HAR) or as a C++ test"));
    m_pBytes->setForegroundRole(QPalette::PlaceholderText);

    QLineEdit* const pSearch = NewSearch();
    connect(pSearch, &QLineEdit::textChanged, m_pShown, &QSortFilterProxyModel::setFilterFixedString);
    connect(m_pTable->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        Update();
        emit ChosenChanged();
    });
    connect(m_pTable, &QTableView::activated, m_pLoad, &QPushButton::click);
    connect(m_pRun, &QPushButton::clicked, this, [this] { emit RunRequested(Chosen().front()); });
    connect(m_pLoad, &QPushButton::clicked, this, [this] { emit LoadRequested(Chosen().front()); });
    connect(m_pCompare, &QPushButton::clicked, this, &HistoryPanel::Compare);
    connect(m_pExport, &QPushButton::clicked, this, &HistoryPanel::Export);
    connect(m_pClear, &QPushButton::clicked, &history, &History::Clear);
    for (const auto signal : {&History::rowsInserted, &History::rowsRemoved}) {
        connect(&history, signal, this, &HistoryPanel::Update);
    }
    connect(&history, &History::modelReset, this, &HistoryPanel::Update);

    auto* const pBar = new QHBoxLayout;
    pBar->setContentsMargins(12, 6, 12, 6);
    pBar->addWidget(pSearch, 1);
    for (QPushButton* const pButton : {m_pRun, m_pLoad, m_pCompare, m_pExport, m_pClear}) {
        pBar->addWidget(pButton);
    }
    pBar->addWidget(MakeKeeping());
    auto* const pLayout = Column({pBar, m_pTable}, this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->setSpacing(0);
    setFocusProxy(pSearch);
    Update();
}

QWidget* HistoryPanel::MakeKeeping()
{
    auto* const pLimit = Named(new QSpinBox, "historyLimit");
    pLimit->setAccessibleName(tr("History size limit"));
    pLimit->setToolTip(tr("Above this size, the oldest runs are dropped"));
    constexpr int kMost = 1024;
    pLimit->setRange(1, kMost);
    pLimit->setSuffix(tr(" MB"));
    pLimit->setValue(m_history.LimitInMegabytes());
    connect(pLimit, qOverload<int>(&QSpinBox::valueChanged), &m_history, &History::SetLimitInMegabytes);
    auto* const pKept = Named(new QCheckBox(tr("Save to file")), "historyKept");
    pKept->setToolTip(tr("Keeps the runs for the next start, without tokens"));
    pKept->setChecked(m_history.IsKept());
    connect(pKept, &QCheckBox::toggled, &m_history, &History::SetKept);

    auto* const pKeeping = new QWidget;
    constexpr int kApart = 12;  // from the buttons
    Row({m_pBytes, pLimit, pKept}, pKeeping)->setContentsMargins(kApart, 0, 0, 0);
    return pKeeping;
}

PastRuns HistoryPanel::Chosen() const
{
    QList<int> rows;
    const QModelIndexList chosen = m_pTable->selectionModel()->selectedRows();
    for (const QModelIndex& index : chosen) {
        rows.append(m_pShown->mapToSource(index).row());
    }
    std::sort(rows.begin(), rows.end());
    PastRuns runs;
    for (const int row : std::as_const(rows)) {
        runs.push_back(m_history.At(row));
    }
    return runs;
}

void HistoryPanel::Update()
{
    const std::size_t chosen = Chosen().size();
    m_pRun->setEnabled(chosen == 1);
    m_pLoad->setEnabled(chosen == 1);
    m_pCompare->setEnabled(chosen == 2);
    m_pExport->setEnabled(chosen > 0);
    m_pClear->setEnabled(m_history.rowCount() > 0);
    constexpr double kMegabyte = 1 << 20;
    //: %1 megabytes are taken; a field with the limit follows
    m_pBytes->setText(tr("%1 of").arg(QLocale().toString(double(m_history.Bytes()) / kMegabyte, 'f', 1)));
}

void HistoryPanel::Compare()
{
    const PastRuns runs = Chosen();
    auto* const pDialog = new CompareDialog(runs.at(0)->Outcome(), runs.at(1)->Outcome(), window());
    pDialog->setAttribute(Qt::WA_DeleteOnClose);
    pDialog->open();
}

void HistoryPanel::Export()
{
    const PastRuns runs = Chosen();
    std::vector<const RunSummary*> summaries;
    summaries.reserve(runs.size());
    for (const PastRunPtr& pRun : runs) {
        summaries.push_back(&pRun->Summary());
    }
    const QString name =
        QFileDialog::getSaveFileName(this, tr("Export the selected runs"), QStringLiteral("runs.har"),
                                     QStringLiteral("%1 (*.har);;%2 (*.cpp)").arg(tr("HTTP archive"), tr("C++ test")));
    if (name.isEmpty()) {
        return;
    }
    const QString text = name.endsWith(QLatin1String(".cpp")) ? CppTest(summaries) : JsonText(Har(summaries));
    QSaveFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0 || !file.commit()) {
        QMessageBox::warning(this, tr("Export the selected runs"), file.errorString());
    }
}

}  // namespace explorer
