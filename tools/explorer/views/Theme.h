#pragma once

#include <QColor>
#include <QFont>

class QPalette;

/// Fonts, and colours without a role in the palette, legible in light and dark palettes.
namespace explorer::theme {

using Tint = QColor (*)(const QPalette& palette);

QColor Blue(const QPalette& palette);
QColor Green(const QPalette& palette);
QColor Orange(const QPalette& palette);
QColor Error(const QPalette& palette);
QColor Hint(const QPalette& palette);

QColor JsonWord(const QPalette& palette);

QColor Grid(const QPalette& palette);

inline constexpr Tint JsonKey = Blue;
inline constexpr Tint JsonText = Green;
inline constexpr Tint JsonNumber = Orange;
inline constexpr Tint Succeeded = Blue;
inline constexpr Tint Median = Green;
inline constexpr Tint Percentile = Orange;

/// The monospaced font of the desktop.
QFont FixedFont();

}  // namespace explorer::theme
