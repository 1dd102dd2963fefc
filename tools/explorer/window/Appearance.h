#pragma once

#include <QString>

class QSettings;

namespace explorer {

/// How the program looks and in which language it speaks.
enum class Appearance {
    System,
    Light,
    Dark
};

Appearance StoredAppearance(const QSettings& settings);
void StoreAppearance(QSettings& settings, Appearance appearance);
/// Style and palette of the application.
void ApplyAppearance(Appearance appearance);

/// "en", "de" or "zh": as stored, else the system's, else English.
QString StoredLanguage(const QSettings& settings);
void StoreLanguage(QSettings& settings, const QString& language);
/// Translations of program and toolkit, and the language of the error texts. Windows made from now on speak it.
void ApplyLanguage(const QString& language);

}  // namespace explorer
