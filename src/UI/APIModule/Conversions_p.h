#pragma once

#include <QCborValue>
#include <QString>

#include <optional>

/// What the variant of a JSON value converts to with Qt 5. Servers and hosts rely on it; the variants of Qt 6 convert
/// some numbers and texts differently.
namespace APIModule::detail {

/// The integer that Qt 5 makes of a double where it is one: not of minus zero. Qt 6 leaves a double.
std::optional<long long> IntegerIn(double number);

/// @return 0 for what is no number
long long IntegerOf(const QCborValue& value);
double DoubleOf(const QCborValue& value);
bool FlagOf(const QCborValue& value);
QString TextOf(const QCborValue& value);

/// @return 0 for what is no decimal number of 64 bits
long long IntegerOf(const QString& text);

/// @return 0 for what is no decimal number of an int
int IntOf(const QString& text);

}  // namespace APIModule::detail
