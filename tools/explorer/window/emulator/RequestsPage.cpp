#include "RequestsPage.h"

#include "../LineTable.h"

#include "../../core/EmulatorControl.h"
#include "../../views/CodeView.h"
#include "../../views/Json.h"
#include "../../views/Widgets.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QSplitter>
#include <QTableView>

namespace explorer {
namespace {

QString TextOf(const EmulatorRequests::Entry& entry)
{
    QString text = entry.method + QLatin1Char(' ') + entry.target + QLatin1Char('\n');
    for (const Header& header : entry.headers) {
        text += header.name + QLatin1String(": ") + header.value + QLatin1Char('\n');
    }
    return entry.body.isEmpty() ? text : text + QLatin1Char('\n') + PrettyJson(entry.body);
}

}  // namespace

RequestsPage::RequestsPage(EmulatorControl& control, QWidget* pParent)
    : QWidget(pParent), m_control(control), m_pShown(new QSortFilterProxyModel(this)),
      m_pTable(NewLineTable(QStringLiteral("emulatorRequests"), *m_pShown, tr("No requests"))),
      m_pDetails(Named(new CodeView(CodeView::Kind::Text, tr("Choose a request to see its headers and its body.")),
                       "emulatorRequest"))
{
    m_pShown->setSourceModel(&m_requests);
    m_pShown->setFilterKeyColumn(-1);
    m_pShown->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_pTable->setSelectionMode(QAbstractItemView::SingleSelection);
    m_pTable->setAccessibleName(tr("Requests"));
    m_pTable->setTextElideMode(Qt::ElideMiddle);  // paths have common beginnings
    const auto widthOf = [this](const QString& text) {
        constexpr int kRoom = 24;
        return m_pTable->fontMetrics().horizontalAdvance(text) + kRoom;
    };
    m_pTable->setColumnWidth(EmulatorRequests::TimeColumn, widthOf(QStringLiteral("00:00:00.000")));
    m_pTable->setColumnWidth(EmulatorRequests::MethodColumn, widthOf(QStringLiteral("DELETE")));
    m_pTable->setColumnWidth(EmulatorRequests::StatusColumn, widthOf(EmulatorRequests::tr("No reply")));
    m_pTable->setColumnWidth(EmulatorRequests::CodeColumn, widthOf(QStringLiteral("00000")));
    m_pTable->horizontalHeader()->setSectionResizeMode(EmulatorRequests::TargetColumn, QHeaderView::Stretch);

    QLineEdit* const pSearch = NewSearch();
    connect(pSearch, &QLineEdit::textChanged, m_pShown, &QSortFilterProxyModel::setFilterFixedString);
    auto* const pClear = Named(new QPushButton(tr("C&lear")), "clearRequests");
    connect(pClear, &QPushButton::clicked, this, &RequestsPage::ClearAll);
    connect(m_pTable->selectionModel(), &QItemSelectionModel::selectionChanged, this, &RequestsPage::ShowChosen);
    connect(&m_requests, &EmulatorRequests::modelReset, this, &RequestsPage::ShowChosen);

    auto* const pParts = new QSplitter(Qt::Vertical);
    pParts->setChildrenCollapsible(false);
    pParts->addWidget(m_pTable);
    pParts->addWidget(m_pDetails);
    constexpr int kMinimum = 60;
    for (QWidget* pPart : {static_cast<QWidget*>(m_pTable), static_cast<QWidget*>(m_pDetails)}) {
        pPart->setMinimumHeight(kMinimum);
    }
    Column({Row({{pSearch, 1}, pClear}), {pParts, 1}}, this);
    setFocusProxy(pSearch);
}

void RequestsPage::Refresh()
{
    if (m_bAsking) {
        return;
    }
    m_bAsking = true;
    m_control.Ask("GET", QStringLiteral("requests?after=%1").arg(m_requests.CompleteTo()), nullptr, this,
                  [this, age = m_age](const ControlReply& reply) {
                      m_bAsking = false;
                      if (reply.error.isEmpty() && age == m_age) {
                          m_requests.Take(reply.body);
                      }
                  });
}

void RequestsPage::Clear()
{
    ++m_age;
    m_requests.Clear();
}

void RequestsPage::ClearAll()
{
    Clear();
    m_control.Ask("DELETE", QStringLiteral("requests"), nullptr, this, [this](const ControlReply&) { Clear(); });
}

void RequestsPage::ShowChosen()
{
    const QModelIndexList chosen = m_pTable->selectionModel()->selectedRows();
    m_pDetails->SetText(chosen.isEmpty() ? QString()
                                         : TextOf(m_requests.At(m_pShown->mapToSource(chosen.first()).row())));
}

}  // namespace explorer
