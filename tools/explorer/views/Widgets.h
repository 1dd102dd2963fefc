#pragma once

#include <QBoxLayout>
#include <QLabel>

#include <initializer_list>

namespace explorer {

/// A part of a row or a column: a widget, a layout or room.
struct LayoutPart {
    LayoutPart(QWidget* pPart, int share = 0, Qt::Alignment place = {})
        : pWidget(pPart), stretch(share), alignment(place)
    {}
    LayoutPart(QLayout* pPart, int share = 0) : pLayout(pPart), stretch(share) {}

    QWidget* pWidget = nullptr;
    QLayout* pLayout = nullptr;
    int stretch = 0;
    Qt::Alignment alignment = {};
    int space = 0;  ///< pixels, if there is neither a widget nor a layout
};
using LayoutParts = std::initializer_list<LayoutPart>;

/// Room that takes what the other parts leave.
LayoutPart Stretch(int share = 0);
/// Room of fixed size.
LayoutPart Space(int pixels);

/// A layout with these parts, from left to right. @param pParent null for a layout inside another one
QHBoxLayout* Row(LayoutParts parts, QWidget* pParent = nullptr);
/// The same, from top to bottom.
QVBoxLayout* Column(LayoutParts parts, QWidget* pParent = nullptr);

/// The label of a field, whose mnemonic focuses the field.
QLabel* LabelFor(QWidget* pField, const QString& text);

template <typename Widget>
Widget* Named(Widget* pWidget, const char* objectName)
{
    pWidget->setObjectName(QLatin1String(objectName));
    return pWidget;
}

}  // namespace explorer
