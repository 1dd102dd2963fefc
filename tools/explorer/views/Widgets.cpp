#include "Widgets.h"

namespace explorer {
namespace {

void Fill(QBoxLayout& layout, LayoutParts parts)
{
    for (const LayoutPart& part : parts) {
        if (part.pWidget != nullptr) {
            layout.addWidget(part.pWidget, part.stretch, part.alignment);
        } else if (part.pLayout != nullptr) {
            layout.addLayout(part.pLayout, part.stretch);
        } else if (part.space > 0) {
            layout.addSpacing(part.space);
        } else {
            layout.addStretch(part.stretch);
        }
    }
}

}  // namespace

LayoutPart Stretch(int share)
{
    return {static_cast<QLayout*>(nullptr), share};
}

LayoutPart Space(int pixels)
{
    LayoutPart space = Stretch();
    space.space = pixels;
    return space;
}

QHBoxLayout* Row(LayoutParts parts, QWidget* pParent)
{
    auto* const pRow = new QHBoxLayout(pParent);
    Fill(*pRow, parts);
    return pRow;
}

QVBoxLayout* Column(LayoutParts parts, QWidget* pParent)
{
    auto* const pColumn = new QVBoxLayout(pParent);
    Fill(*pColumn, parts);
    return pColumn;
}

QLabel* LabelFor(QWidget* pField, const QString& text)
{
    auto* const pLabel = new QLabel(text);
    pLabel->setBuddy(pField);
    return pLabel;
}

}  // namespace explorer
