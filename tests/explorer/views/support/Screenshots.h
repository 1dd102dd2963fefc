#pragma once

#include <QPalette>
#include <QSize>
#include <QString>

class QWidget;

namespace view_test {

QPalette LightPalette();
QPalette DarkPalette();

/// Shows the widget in the light, then in the dark palette, and writes a picture of each to the build folder. The
/// application has the light palette afterwards.
void TakeScreenshots(QWidget& widget, const QString& name, QSize size);

}  // namespace view_test
