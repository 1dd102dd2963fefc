#pragma once

#include <QColor>
#include <QLabel>

namespace explorer {

/// A plain text in a colour of the theme that follows the palette.
class TintedLabel : public QLabel {
    Q_OBJECT

public:
    using Tint = QColor (*)(const QPalette& palette);

    explicit TintedLabel(Tint tint, QWidget* pParent = nullptr);

protected:
    void changeEvent(QEvent* pEvent) override;

private:
    void Colour();

    const Tint m_tint;
};

/// A hint in the middle of an empty view.
TintedLabel* MakeHint(const QString& text = {});

}  // namespace explorer
