#include "ResultView.h"

#include "CodeView.h"
#include "Json.h"
#include "RecordTable.h"
#include "RecordTree.h"
#include "TintedLabel.h"
#include "Widgets.h"

#include <explorer/CallOutcome.h>

#include <QStackedWidget>
#include <QTabWidget>

#include <memory>
#include <utility>

namespace explorer {
namespace {

QString TextOf(const QString& begin, const Headers& headers, const QByteArray& body)
{
    QString text = begin + QLatin1Char('\n');
    for (const Header& header : headers) {
        text += header.name + QLatin1String(": ") + header.value + QLatin1Char('\n');
    }
    return text + QLatin1Char('\n') + QString::fromUtf8(body);
}

/// Request and reply with the line ends of this machine.
QString ExchangeText(const RunSummary& outcome)
{
    const SentRequest& sent = outcome.request;
    QString text;
    if (!sent.method.isEmpty()) {
        text = TextOf(sent.method + QLatin1Char(' ') + sent.url, sent.headers, sent.body);
        text += sent.headers.isEmpty() ? ResultView::tr("Nothing was sent.") : QString();
    }
    if (outcome.reply) {
        text +=
            QLatin1String(sent.body.isEmpty() ? "" : "\n\n") +
            TextOf(QStringLiteral("HTTP %1").arg(outcome.reply->status), outcome.reply->headers, outcome.reply->body);
    }
    return text;
}

}  // namespace

ResultView::ResultView(QWidget* pParent)
    : QWidget(pParent), m_pTree(new RecordTree), m_pJson(new CodeView(CodeView::Kind::Json, tr("There is no record."))),
      m_pTable(new RecordTable), m_pExchange(new CodeView(CodeView::Kind::Text, tr("No request was made."))),
      m_pTreeHint(MakeHint()), m_pTableHint(MakeHint()), m_pTabs(new QTabWidget)
{
    m_pTreePages = AddTab(m_pTree, m_pTreeHint, tr("&Record"));
    m_pTabs->addTab(m_pJson, tr("&JSON"));
    m_pTablePages = AddTab(m_pTable, m_pTableHint, tr("&Table"));
    m_pTabs->addTab(m_pExchange, tr("Raw e&xchange"));
    m_pTabs->setDocumentMode(true);

    Column({m_pTabs}, this)->setContentsMargins(0, 0, 0, 0);
    Clear();
}

void ResultView::Show(CallOutcome outcome)
{
    if (outcome.call == nullptr || outcome.call->result == nullptr) {
        ShowNoRecord(tr("This call returns no record."));
    } else if (outcome.record.is_null()) {
        ShowNoRecord(tr("The reply contained no data for a record."));
    } else {
        ShowRecord(*outcome.call->result, std::make_shared<const nlohmann::json>(std::move(outcome.record)),
                   outcome.missing);
    }
    m_pExchange->SetText(ExchangeText(outcome));
}

void ResultView::Clear()
{
    ShowNoRecord(tr("Run a call to see its result here."));
    m_pExchange->SetText(QString());
}

void ResultView::ShowWaiting(const catalogue::Call& call)
{
    m_pTree->Clear();
    m_pJson->SetText(QString());
    m_pExchange->SetText(QString());
    if (call.result != nullptr) {
        m_pTable->SetRecord(*call.result,
                            std::make_shared<const nlohmann::json>(catalogue::Value(*call.result).ToJson()));
    }
}

void ResultView::ShowRecord(const catalogue::Type& type, const SharedRecord& pRecord,
                            const catalogue::MissingFields& missing)
{
    const QString text = JsonText(*pRecord);
    m_pJson->SetText(text);
    m_pTree->SetRecord(type, pRecord, missing, text.size());
    m_pTreePages->setCurrentIndex(0);
    const bool hasList = m_pTable->SetRecord(type, pRecord);
    m_pTableHint->setText(tr("There is no list in this record."));
    m_pTablePages->setCurrentIndex(hasList ? 0 : 1);
}

void ResultView::ShowNoRecord(const QString& hint)
{
    m_pTree->Clear();
    m_pJson->SetText(QString());
    for (QLabel* pHint : {m_pTreeHint, m_pTableHint}) {
        pHint->setText(hint);
    }
    for (QStackedWidget* pPages : {m_pTreePages, m_pTablePages}) {
        pPages->setCurrentIndex(1);
    }
}

QStackedWidget* ResultView::AddTab(QWidget* pContent, QLabel* pHint, const QString& title)
{
    auto* pPages = new QStackedWidget;
    pPages->addWidget(pContent);
    pPages->addWidget(pHint);
    m_pTabs->addTab(pPages, title);
    return pPages;
}

}  // namespace explorer
