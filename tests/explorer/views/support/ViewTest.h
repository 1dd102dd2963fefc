#pragma once

#include <QPalette>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

/// Lets an assertion that fails print the text.
inline void PrintTo(const QString& text, std::ostream* pStream)
{
    *pStream << '"' << text.toStdString() << '"';
}

namespace view_test {

/// The child with that name; of several, the one at that place.
template <typename Widget>
Widget& Child(const QWidget& parent, const char* name, int place = 0)
{
    return *parent.findChildren<Widget*>(QLatin1String(name)).at(place);
}

QPalette LightPalette();
QPalette DarkPalette();

/// Shows the widget in the dark palette, then in the light one, and saves a screenshot of each in the build folder.
/// The application keeps the light palette.
void TakeScreenshots(QWidget& widget, const QString& name, QSize size);

}  // namespace view_test
