#pragma once

#include "Theme.h"

#include <QLabel>

namespace explorer {

/// A plain text in a colour of the theme that follows the palette.
class TintedLabel : public QLabel {
    Q_OBJECT

public:
    explicit TintedLabel(theme::Tint tint, QWidget* pParent = nullptr);

protected:
    void changeEvent(QEvent* pEvent) override;

private:
    void Colour();

    const theme::Tint m_tint;
};

/// A hint in the middle of an empty view.
TintedLabel* MakeHint(const QString& text = {});

}  // namespace explorer
