#pragma once

#include <QColor>
#include <QFont>

class QPalette;

/// Fonts, and colours without a role in the palette, legible in light and dark palettes.
namespace explorer::theme {

QColor Error(const QPalette& palette);
QColor Hint(const QPalette& palette);

QColor JsonKey(const QPalette& palette);
QColor JsonText(const QPalette& palette);
QColor JsonNumber(const QPalette& palette);
QColor JsonWord(const QPalette& palette);

QColor Succeeded(const QPalette& palette);
QColor Median(const QPalette& palette);
QColor Percentile(const QPalette& palette);
QColor Grid(const QPalette& palette);

/// The monospaced font of the desktop.
QFont FixedFont();

}  // namespace explorer::theme
