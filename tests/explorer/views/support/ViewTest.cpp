#include "ViewTest.h"

#include <QApplication>
#include <QDir>
#include <QStyle>

namespace view_test {

QPalette LightPalette()
{
    QPalette palette(QColor(0xEF, 0xEF, 0xEF), QColor(0xEF, 0xEF, 0xEF));
    palette.setColor(QPalette::Highlight, QColor(0x30, 0x6F, 0xB5));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

QPalette DarkPalette()
{
    QPalette palette(QColor(0x3D, 0x3D, 0x3D), QColor(0x35, 0x35, 0x35));
    palette.setColor(QPalette::Base, QColor(0x1E, 0x1E, 0x1E));
    palette.setColor(QPalette::AlternateBase, QColor(0x26, 0x26, 0x26));
    palette.setColor(QPalette::Highlight, QColor(0x3A, 0x7A, 0xC0));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

void TakeScreenshots(QWidget& widget, const QString& name, QSize size)
{
    const QDir folder(QStringLiteral(SCREENSHOT_FOLDER));
    ASSERT_TRUE(folder.mkpath(QStringLiteral(".")));
    widget.resize(size);
    widget.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&widget));
    const QString density = widget.devicePixelRatio() > 1 ? QStringLiteral("@2x") : QString();
    for (const bool dark : {true, false}) {
        QApplication::setPalette(dark ? DarkPalette() : LightPalette());
        QCoreApplication::processEvents();
        const QPixmap picture = widget.grab();
        EXPECT_EQ(picture.size(), size * widget.devicePixelRatio());
        ASSERT_TRUE(picture.save(
            folder.filePath(name + QLatin1String(dark ? "-dark" : "-light") + density + QLatin1String(".png"))));
    }
}

}  // namespace view_test
