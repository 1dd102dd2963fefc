#include "CodeView.h"

#include "FindBar.h"
#include "JsonHighlighter.h"
#include "Theme.h"
#include "TintedLabel.h"
#include "Widgets.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>

namespace explorer {
namespace {

constexpr int kLongestShown = 200000;

}  // namespace

CodeView::CodeView(Kind kind, const QString& hint, QWidget* pParent)
    : QWidget(pParent), m_pEdit(new QPlainTextEdit), m_pShortened(Named(new TintedLabel(theme::Hint), "shortened")),
      m_pAll(Named(new QPushButton(tr("Show all")), "showAll")), m_pFind(new FindBar),
      m_pCopy(Named(new QPushButton(tr("C&opy")), "copyText"))
{
    m_pEdit->setReadOnly(true);
    m_pEdit->setPlaceholderText(hint);
    m_pEdit->setFont(theme::FixedFont());
    m_pEdit->setLineWrapMode(kind == Kind::Text ? QPlainTextEdit::WidgetWidth : QPlainTextEdit::NoWrap);
    m_pEdit->setTabChangesFocus(true);
    m_pEdit->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    if (kind == Kind::Json) {
        new JsonHighlighter(*m_pEdit);
    }

    Column({{m_pEdit, 1}, Row({{m_pShortened, 1}, m_pAll}), Row({{m_pFind, 1}, m_pCopy})}, this);

    connect(m_pCopy, &QPushButton::clicked, this, [this] { QGuiApplication::clipboard()->setText(m_text); });
    connect(m_pAll, &QPushButton::clicked, this, [this] { ShowPart(0, m_text.size()); });
    connect(m_pFind, &FindBar::Found, this, &CodeView::ShowMatch);
    SetText(QString());
}

void CodeView::SetText(const QString& text)
{
    m_text = text;
    ShowPart(0, kLongestShown);
    m_pFind->SetText(text);
    m_pFind->setEnabled(!text.isEmpty());
    m_pCopy->setEnabled(!text.isEmpty());
}

void CodeView::ShowPart(int from, int length)
{
    m_from = from;
    const QString part = m_text.mid(from, length);
    m_length = part.size();
    m_pEdit->setPlainText(part);
    const bool isShortened = m_length < m_text.size();
    const QLocale locale;
    //: %1 and %2 are the first and the last character shown, %3 is the number of all
    m_pShortened->setText(
        tr("Characters %1 to %2 of %3; search and copy cover the whole text.")
            .arg(locale.toString(m_from + 1), locale.toString(m_from + m_length), locale.toString(m_text.size())));
    m_pShortened->setVisible(isShortened);
    m_pAll->setVisible(isShortened);
}

void CodeView::ShowMatch(int position, int length)
{
    if (position < m_from || position + length > m_from + m_length) {
        ShowPart(qMax(0, position - kLongestShown / 2), kLongestShown);
    }
    // The document has one character for the CR LF of the wire.
    const QString before = m_text.mid(m_from, position - m_from);
    const QString match = m_text.mid(position, length);
    const int start = before.size() - before.count(QLatin1String("\r\n"));
    QTextCursor cursor = m_pEdit->textCursor();
    cursor.setPosition(start);
    cursor.setPosition(start + length - match.count(QLatin1String("\r\n")), QTextCursor::KeepAnchor);
    m_pEdit->setTextCursor(cursor);
    m_pEdit->centerCursor();
}

/// In this view the keys that find a call in the window search the text.
bool CodeView::event(QEvent* pEvent)
{
    if (pEvent->type() == QEvent::ShortcutOverride && FindBar::IsFindKey(*static_cast<QKeyEvent*>(pEvent))) {
        pEvent->accept();
        return true;
    }
    return QWidget::event(pEvent);
}

void CodeView::keyPressEvent(QKeyEvent* pEvent)
{
    if (!m_pFind->Press(*pEvent)) {
        QWidget::keyPressEvent(pEvent);
    }
}

}  // namespace explorer
