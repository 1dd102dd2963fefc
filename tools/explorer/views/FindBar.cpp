#include "FindBar.h"

#include "Theme.h"
#include "TintedLabel.h"
#include "Widgets.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>

namespace explorer {
namespace {

QToolButton* MakeStep(Qt::ArrowType arrow, const char* objectName, const QString& tip)
{
    auto* pButton = new QToolButton;
    pButton->setArrowType(arrow);
    pButton->setAutoRaise(true);
    pButton->setFocusPolicy(Qt::StrongFocus);
    pButton->setObjectName(QLatin1String(objectName));
    pButton->setToolTip(tip);
    pButton->setAccessibleName(tip);
    return pButton;
}

}  // namespace

FindBar::FindBar(QWidget* pParent)
    : QWidget(pParent), m_pField(Named(new QLineEdit, "find")),
      m_pCount(Named(new TintedLabel(theme::Hint), "findCount")),
      m_pPrevious(MakeStep(Qt::UpArrow, "findPrevious", tr("Previous match (Shift+F3)"))),
      m_pNext(MakeStep(Qt::DownArrow, "findNext", tr("Next match (F3)")))
{
    m_pField->setAccessibleName(tr("Find in the text"));
    m_pField->setPlaceholderText(tr("Find (Ctrl+F)"));
    m_pField->setClearButtonEnabled(true);
    m_pField->installEventFilter(this);
    m_pCount->setWordWrap(false);

    Row({{m_pField, 1}, m_pPrevious, m_pNext, m_pCount}, this)->setContentsMargins(0, 0, 0, 0);
    setFocusProxy(m_pField);

    connect(m_pField, &QLineEdit::textChanged, this, [this] {
        Search();
        Step(0);
    });
    connect(m_pPrevious, &QToolButton::clicked, this, [this] { Step(-1); });
    connect(m_pNext, &QToolButton::clicked, this, [this] { Step(1); });
    Search();
}

void FindBar::SetText(const QString& text)
{
    m_text = text;
    Search();
}

void FindBar::FocusField()
{
    m_pField->setFocus(Qt::ShortcutFocusReason);
    m_pField->selectAll();
}

bool FindBar::IsFindKey(const QKeyEvent& event)
{
    const QKeySequence key(int(event.modifiers()) | event.key());
    for (const auto known : {QKeySequence::Find, QKeySequence::FindNext, QKeySequence::FindPrevious}) {
        if (QKeySequence::keyBindings(known).contains(key)) {
            return true;
        }
    }
    return false;
}

bool FindBar::Press(const QKeyEvent& event)
{
    const QKeySequence key(int(event.modifiers()) | event.key());
    if (QKeySequence::keyBindings(QKeySequence::Find).contains(key)) {
        FocusField();
    } else if (QKeySequence::keyBindings(QKeySequence::FindNext).contains(key)) {
        Step(1);
    } else if (QKeySequence::keyBindings(QKeySequence::FindPrevious).contains(key)) {
        Step(-1);
    } else {
        return false;
    }
    return true;
}

/// Enter moves to the next match, Shift+Enter to the previous one.
bool FindBar::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::KeyPress) {
        const auto& key = *static_cast<QKeyEvent*>(pEvent);
        const bool isEnter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
        if (isEnter && (key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier) {
            Step((key.modifiers() & Qt::ShiftModifier) != 0 ? -1 : 1);
            return true;
        }
    }
    return QWidget::eventFilter(pWatched, pEvent);
}

void FindBar::Search()
{
    m_matches.clear();
    m_current = 0;
    m_bShown = false;
    const QString wanted = m_pField->text();
    for (int at = wanted.isEmpty() ? -1 : m_text.indexOf(wanted, 0, Qt::CaseInsensitive); at >= 0;
         at = m_text.indexOf(wanted, at + wanted.size(), Qt::CaseInsensitive)) {
        m_matches.append(at);
    }
    m_pPrevious->setEnabled(!m_matches.isEmpty());
    m_pNext->setEnabled(!m_matches.isEmpty());
    ShowCount();
}

void FindBar::Step(int steps)
{
    if (m_matches.isEmpty()) {
        return;
    }
    const int count = m_matches.size();
    m_current = m_bShown ? (m_current + steps + count) % count : (steps < 0 ? count - 1 : 0);
    m_bShown = true;
    ShowCount();
    emit Found(m_matches.at(m_current), m_pField->text().size());
}

void FindBar::ShowCount()
{
    const QString wanted = m_pField->text();
    m_pCount->setVisible(!wanted.isEmpty());
    //: %1 is the number of the current match, %2 that of all
    m_pCount->setText(m_matches.isEmpty() ? tr("No match")
                                          : tr("%1 of %2").arg(m_bShown ? m_current + 1 : 0).arg(m_matches.size()));
}

}  // namespace explorer
