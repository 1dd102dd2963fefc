#include "Theme.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QPalette>

namespace explorer::theme {
namespace {

QColor Chosen(const QPalette& palette, QRgb onLight, QRgb onDark)
{
    constexpr int kMiddle = 128;
    return palette.color(QPalette::Base).lightness() < kMiddle ? QColor(onDark) : QColor(onLight);
}

QColor Mixed(const QColor& first, const QColor& second, double share)
{
    const auto mix = [share](double from, double to) { return from + (to - from) * share; };
    return QColor::fromRgbF(mix(first.redF(), second.redF()), mix(first.greenF(), second.greenF()),
                            mix(first.blueF(), second.blueF()));
}

}  // namespace

QColor Blue(const QPalette& palette)
{
    return Chosen(palette, 0xFF0B57A4, 0xFF8AB4F8);
}

QColor Green(const QPalette& palette)
{
    return Chosen(palette, 0xFF1B6E34, 0xFF9CCC8C);
}

QColor Orange(const QPalette& palette)
{
    return Chosen(palette, 0xFF9A4A00, 0xFFFFB870);
}

QColor Error(const QPalette& palette)
{
    return Chosen(palette, 0xFFB3261E, 0xFFFF8A80);
}

QColor Hint(const QPalette& palette)
{
    constexpr double kShare = 0.35;
    return Mixed(palette.color(QPalette::WindowText), palette.color(QPalette::Window), kShare);
}

QColor JsonWord(const QPalette& palette)
{
    return Chosen(palette, 0xFF7B1FA2, 0xFFD7A6E8);
}

QColor Grid(const QPalette& palette)
{
    constexpr double kShare = 0.85;
    return Mixed(palette.color(QPalette::Text), palette.color(QPalette::Base), kShare);
}

QFont FixedFont()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (!QFontInfo(font).fixedPitch()) {  // the desktop defines no monospaced font
        font.setFamily(QStringLiteral("monospace"));
        font.setStyleHint(QFont::TypeWriter);
    }
    return font;
}

}  // namespace explorer::theme
