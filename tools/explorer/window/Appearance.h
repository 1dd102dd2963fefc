#pragma once

#include <QString>

class QSettings;

namespace explorer {

/// Style, palette and language of the program.
enum class Appearance {
    System,
    Light,
    Dark
};

Appearance StoredAppearance(const QSettings& settings);
void StoreAppearance(QSettings& settings, Appearance appearance);
/// Style and palette of the application.
void ApplyAppearance(Appearance appearance);

/// "en", "de" or "zh": the stored language, else that of the system, else English.
QString StoredLanguage(const QSettings& settings);
void StoreLanguage(QSettings& settings, const QString& language);
/// Installs the translations of program and toolkit, and sets the language of the error texts, for windows created
/// later.
void ApplyLanguage(const QString& language);

}  // namespace explorer
