#pragma once

#include <QPalette>
#include <QSize>
#include <QString>

class QWidget;

namespace view_test {

QPalette LightPalette();
QPalette DarkPalette();

/// Shows the widget in the dark palette, then in the light one, and saves a screenshot of each in the build folder.
/// The application keeps the light palette.
void TakeScreenshots(QWidget& widget, const QString& name, QSize size);

}  // namespace view_test
