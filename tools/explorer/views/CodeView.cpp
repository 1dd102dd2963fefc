#include "CodeView.h"

#include "JsonHighlighter.h"
#include "Theme.h"
#include "TintedLabel.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace explorer {
namespace {

constexpr int kLongestShown = 200000;

}  // namespace

CodeView::CodeView(Kind kind, const QString& hint, QWidget* pParent)
    : QWidget(pParent), m_pEdit(new QPlainTextEdit), m_pShortened(new TintedLabel(theme::Hint)),
      m_pCopy(new QPushButton(tr("C&opy")))
{
    m_pEdit->setReadOnly(true);
    m_pEdit->setPlaceholderText(hint);
    m_pEdit->setFont(theme::FixedFont());
    m_pEdit->setLineWrapMode(kind == Kind::Text ? QPlainTextEdit::WidgetWidth : QPlainTextEdit::NoWrap);
    m_pEdit->setTabChangesFocus(true);
    m_pEdit->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_pCopy->setAutoDefault(false);
    m_pCopy->setEnabled(false);
    m_pShortened->hide();
    if (kind == Kind::Json) {
        new JsonHighlighter(*m_pEdit);
    }

    auto* pFooter = new QHBoxLayout;
    pFooter->addWidget(m_pShortened, 1);
    pFooter->addStretch();
    pFooter->addWidget(m_pCopy);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(m_pEdit, 1);
    pLayout->addLayout(pFooter);

    connect(m_pCopy, &QPushButton::clicked, this, [this] { QGuiApplication::clipboard()->setText(m_text); });
}

void CodeView::SetText(const QString& text)
{
    m_text = text;
    m_pEdit->setPlainText(text.left(kLongestShown));
    m_pShortened->setText(
        tr("The first %1 of %2 characters; a copy has them all.").arg(kLongestShown).arg(text.size()));
    m_pShortened->setVisible(text.size() > kLongestShown);
    m_pCopy->setEnabled(!text.isEmpty());
}

}  // namespace explorer
