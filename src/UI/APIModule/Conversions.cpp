#include "Conversions_p.h"

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <limits>

namespace APIModule::detail {

namespace {

using Integers = std::numeric_limits<qint64>;

/// Truncates the fraction; values out of range become the lowest integer, as on the processor.
qint64 Cut(double number)
{
    constexpr double kBeyondIntegers = 9223372036854775808.0;
    return number >= -kBeyondIntegers && number < kBeyondIntegers ? qint64(number) : Integers::min();
}

/// Rounds to the nearest integer, halves up. A number beyond 64 bits gives the same result as in Qt 5.
qint64 Rounded(double number)
{
    constexpr double kHalf = 0.5;
    if (number >= 0) {
        return Cut(number + kHalf);
    }
    const qint64 below = Cut(number - 1);
    return qint64(quint64(Cut(number - double(below) + kHalf)) + quint64(below));
}

/// Between 0.0001 and 0.001 the versions of Qt choose differently between exponent and decimal notation.
QString TextOf(double number)
{
    if (const std::optional<long long> integer = IntegerIn(number)) {
        return QString::number(*integer);
    }
    constexpr double kLowest = 0.0001;
    constexpr double kBehind = 0.001;
    const double size = std::abs(number);
    return QString::number(number, size >= kLowest && size < kBehind ? 'f' : 'g', QLocale::FloatingPointShortest);
}

/// The minus sign of Unicode reads as a hyphen in numbers, whatever the version of Qt.
QString WithAsciiMinus(QString number)
{
    return number.replace(QChar(0x2212), QLatin1Char('-'));
}

}  // namespace

std::optional<long long> IntegerIn(double number)
{
    const qint64 integer = Cut(number);
    const bool bSame = double(integer) == number && (integer != 0 || !std::signbit(number));
    return bSame ? std::optional<long long>(integer) : std::nullopt;
}

long long IntegerOf(const QString& text)
{
    constexpr char16_t kLastAscii = 0x7F;
    const QString number = WithAsciiMinus(text.trimmed());
    // Other characters beyond ASCII, and zero bytes, are handled differently by each version of Qt.
    const bool bPlain = std::all_of(number.cbegin(), number.cend(), [](QChar character) {
        return !character.isNull() && character.unicode() <= kLastAscii;
    });
    return bPlain ? number.toLongLong() : 0;
}

int IntOf(const QString& text)
{
    constexpr int kBase = 10;
    constexpr int kMostDigits = std::numeric_limits<int>::digits10;
    int digits = 0;  // most texts contain only digits; QString takes ten times as long
    for (const QChar character : text) {
        const int digit = character.unicode() - '0';
        if (digit < 0 || digit >= kBase || text.size() > kMostDigits) {
            const long long number = IntegerOf(text);
            return number == int(number) ? int(number) : 0;
        }
        digits = digits * kBase + digit;
    }
    return digits;
}

long long IntegerOf(const QCborValue& value)
{
    switch (value.type()) {
    case QCborValue::Integer:
        return value.toInteger();
    case QCborValue::Double:
        return Rounded(value.toDouble());
    case QCborValue::True:
        return 1;
    case QCborValue::String:
        return IntegerOf(value.toString());
    default:
        return 0;
    }
}

double DoubleOf(const QCborValue& value)
{
    switch (value.type()) {
    case QCborValue::Integer:
    case QCborValue::Double:
        return value.toDouble();
    case QCborValue::True:
        return 1;
    case QCborValue::String:
        return WithAsciiMinus(value.toString()).toDouble();
    default:
        return 0;
    }
}

bool FlagOf(const QCborValue& value)
{
    if (value.isString()) {
        const QString text = value.toString();
        return !text.isEmpty() && text != QLatin1String("0") &&
               text.compare(QLatin1String("false"), Qt::CaseInsensitive) != 0;
    }
    return IntegerOf(value) != 0;
}

QString TextOf(const QCborValue& value)
{
    switch (value.type()) {
    case QCborValue::Integer:
        return QString::number(value.toInteger());
    case QCborValue::Double:
        return TextOf(value.toDouble());
    case QCborValue::False:
        return QStringLiteral("false");
    case QCborValue::True:
        return QStringLiteral("true");
    case QCborValue::String:
        return value.toString();
    default:
        return {};
    }
}

}  // namespace APIModule::detail
