#pragma once

#include <QCborValue>
#include <QString>

#include <optional>

/// Conversions of JSON values as by Qt 5's QVariant, on which servers and hosts rely. Qt 6 converts some numbers and
/// texts differently.
namespace APIModule::detail {

/// The integer to which Qt 5 converts an integral double, except minus zero. Qt 6 keeps the double.
std::optional<long long> IntegerIn(double number);

/// @return 0 for a text that is not a number
long long IntegerOf(const QCborValue& value);
double DoubleOf(const QCborValue& value);
bool FlagOf(const QCborValue& value);
QString TextOf(const QCborValue& value);

/// @return 0 for a text that is not a decimal 64-bit number
long long IntegerOf(const QString& text);

/// @return 0 for a text that is not a decimal int
int IntOf(const QString& text);

}  // namespace APIModule::detail
