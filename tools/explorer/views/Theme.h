#pragma once

#include <QColor>
#include <QFont>

class QPalette;

/// Colours that the palette has no role for, legible on the light and on the dark ones, and fonts.
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

/// The font of the desktop in which all letters are of one width.
QFont FixedFont();

}  // namespace explorer::theme
