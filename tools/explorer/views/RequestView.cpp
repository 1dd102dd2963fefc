#include "RequestView.h"

#include "CodeView.h"
#include "CppLines.h"
#include "Json.h"
#include "RoomyDelegate.h"
#include "ShellLines.h"
#include "Theme.h"
#include "TintedLabel.h"
#include "Widgets.h"

#include <explorer/CallOutcome.h>

#include <QHeaderView>
#include <QPlainTextEdit>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace explorer {
namespace {

constexpr int kMargin = 9;

}  // namespace

RequestView::RequestView(QWidget* pParent)
    : QWidget(pParent), m_pPages(new QStackedWidget), m_pHint(MakeHint()),
      m_pTarget(Named(new QPlainTextEdit, "target")), m_pHeaders(Named(new QTreeWidget, "headers")),
      m_pBody(Named(new CodeView(CodeView::Kind::Json, tr("The request has no body.")), "body")),
      m_pCurl(Named(new CodeView(CodeView::Kind::Text, tr("The request cannot be built.")), "curl")),
      m_pCpp(Named(new CodeView(CodeView::Kind::Code, QString()), "cpp")),
      m_pApicall(Named(new CodeView(CodeView::Kind::Text, QString()), "apicall"))
{
    m_pTarget->setReadOnly(true);
    m_pTarget->setFont(theme::FixedFont());
    m_pTarget->setWordWrapMode(QTextOption::WrapAnywhere);
    m_pTarget->setTabChangesFocus(true);
    m_pTarget->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    constexpr int kLines = 2;  // longer texts scroll
    const double around = 2 * (m_pTarget->document()->documentMargin() + m_pTarget->frameWidth() + 1);
    m_pTarget->setFixedHeight(kLines * QFontMetrics(m_pTarget->font()).lineSpacing() + int(around));
    m_pTarget->setPlaceholderText(tr("The request cannot be built."));
    m_pHeaders->setHeaderLabels({tr("Header"), tr("Value")});
    m_pHeaders->setRootIsDecorated(false);
    m_pHeaders->setAlternatingRowColors(true);
    m_pHeaders->setAllColumnsShowFocus(true);
    m_pHeaders->setFrameShape(QFrame::NoFrame);
    m_pHeaders->setItemDelegate(new RoomyDelegate(m_pHeaders));

    auto* pTabs = new QTabWidget;
    pTabs->setDocumentMode(true);
    pTabs->addTab(m_pHeaders, tr("Hea&ders"));
    pTabs->addTab(m_pBody, tr("&Body"));
    pTabs->addTab(m_pCurl, tr("c&url"));
    pTabs->addTab(m_pCpp, tr("C&++"));
    pTabs->addTab(m_pApicall, tr("a&picall"));

    auto* const pTargetLabel = LabelFor(m_pTarget, tr("Re&quest:"));
    constexpr int kToTheFirstLine = 4;
    pTargetLabel->setContentsMargins(0, kToTheFirstLine, 0, 0);
    auto* const pTargetRow = Row({{pTargetLabel, 0, Qt::AlignTop}, {m_pTarget, 1}});
    pTargetRow->setContentsMargins(kMargin, kMargin, kMargin, 0);
    auto* pPage = new QWidget;
    Column({pTargetRow, {pTabs, 1}}, pPage)->setContentsMargins(0, 0, 0, 0);

    m_pPages->addWidget(m_pHint);
    m_pPages->addWidget(pPage);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(m_pPages);
}

void RequestView::ShowHint(const QString& text)
{
    m_pHint->setText(text);
    m_pPages->setCurrentIndex(0);
}

void RequestView::Show(const RequestDraft& draft)
{
    ShowRequest(draft.request);
    // The current server, whatever its number in the client.
    constexpr int kCurrentServer = -1;
    m_pCpp->SetText(CppLines(*draft.call, FromQt(draft.arguments), kCurrentServer));
    m_pApicall->SetText(ApicallLine(draft));
    m_pPages->setCurrentIndex(1);
}

void RequestView::ShowRequest(const SentRequest& request)
{
    const bool canBeMade = !request.method.isEmpty();
    m_pTarget->setPlainText(canBeMade ? request.method + QLatin1Char(' ') + request.url : QString());
    m_pTarget->setToolTip(m_pTarget->toPlainText());
    m_pHeaders->clear();
    for (const Header& header : request.headers) {
        auto* pItem = new QTreeWidgetItem(m_pHeaders, {header.name, header.value});
        pItem->setToolTip(1, header.value);
    }
    constexpr int kRoom = 24;
    m_pHeaders->resizeColumnToContents(0);
    m_pHeaders->setColumnWidth(0, m_pHeaders->columnWidth(0) + kRoom);
    m_pBody->SetText(PrettyJson(request.body));
    m_pCurl->SetText(canBeMade ? CurlLine(request) : QString());
}

}  // namespace explorer
