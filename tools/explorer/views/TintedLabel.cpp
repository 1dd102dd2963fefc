#include "TintedLabel.h"

#include "Theme.h"

#include <QApplication>
#include <QEvent>

namespace explorer {

TintedLabel::TintedLabel(theme::Tint tint, QWidget* pParent) : QLabel(pParent), m_tint(tint)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    Colour();
}

void TintedLabel::changeEvent(QEvent* pEvent)
{
    QLabel::changeEvent(pEvent);
    if (pEvent->type() == QEvent::PaletteChange || pEvent->type() == QEvent::ParentChange) {
        Colour();
    }
}

void TintedLabel::Colour()
{
    const QPalette around = parentWidget() != nullptr ? parentWidget()->palette() : QApplication::palette(this);
    const QColor colour = m_tint(around);
    if (palette().color(foregroundRole()) != colour) {
        QPalette own;
        own.setColor(foregroundRole(), colour);
        setPalette(own);
    }
}

TintedLabel* MakeHint(const QString& text)
{
    auto* pHint = new TintedLabel(theme::Hint);
    pHint->setText(text);
    pHint->setAlignment(Qt::AlignCenter);
    return pHint;
}

}  // namespace explorer
