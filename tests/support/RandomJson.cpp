#include "RandomJson.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QStringList>

#include <cmath>
#include <cstring>
#include <iostream>
#include <iterator>
#include <limits>
#include <random>
#include <stdexcept>
#include <utility>

namespace testing_support {

namespace {

/// Mark a number that is written as a string until its quotes are removed. No other string contains these characters.
constexpr QChar kBeforeNumber(0xE000);
constexpr QChar kAfterNumber(0xE001);

using Doubles = std::numeric_limits<double>;

const double kDoubles[] = {-0.0,
                           0.1,
                           1e15,
                           1e16,
                           1e21,
                           1e300,
                           -1e300,
                           4503599627370497.5,
                           Doubles::min(),
                           Doubles::denorm_min(),
                           Doubles::max(),
                           Doubles::lowest(),
                           Doubles::epsilon(),
                           Doubles::infinity(),
                           -Doubles::infinity(),
                           Doubles::quiet_NaN()};

const QStringList kNumbers =
    QStringLiteral(
        "-0 0.0 -0.0 1.0 1e0 1E+2 -1e-0 100e-2 2147483647 2147483648 -2147483648 -2147483649 2147483647.5 "
        "4294967295 4294967296 9007199254740991 9007199254740992 9007199254740993 9007199254740993.0 "
        "-9007199254740993 9223372036854775807 9223372036854775808 -9223372036854775808 -9223372036854775809 "
        "18446744073709551615 18446744073709551616 1.7976931348623157e308 2.2250738585072014e-308 5e-324")
        .split(QLatin1Char(' '));

const char* const kTexts[] = {
    "",     "0",    "1",    "00",  "-0",      "+1",      " 1",        "1 ",      "\t1\n", "- 1",   "0x10",   "010",
    "0b1",  "1e3",  "1E3",  "1.",  ".5",      "1.5",     "-1.5",      "1,000",   "1_000", "1e400", "1e-400", "nan",
    "NaN",  "inf",  "-inf", "Inf", "true",    "false",   "TRUE",      "FALSE",   "fAlSe", "False", " false", "false ",
    "fals", "no",   "null", "{}",  "[1]",     "abc",     "{\"a\":1}", "%1",      "%s%n",  "١٢",    "１２",   "−1",
    "é",    "中文", "ﬁ",    "𝟙",   "\u00a01", "1\u00a0", "İ",         "\uFEFF1", "1a",    "\"",    "\\"};

}  // namespace

Choose SeededChoice(quint64 seed)
{
    std::cout << "random numbers with the seed " << seed << '\n';
    return [numbers = std::mt19937_64(seed)](quint64 most) mutable {
        const quint64 number = numbers();
        return most == std::numeric_limits<quint64>::max() ? number : number % (most + 1);
    };
}

RandomJson::RandomJson(Choose choose) : m_choose(std::move(choose)) {}

quint64 RandomJson::UpTo(quint64 most)
{
    return m_choose(most);
}

bool RandomJson::OneIn(quint64 number)
{
    return UpTo(number - 1) == 0;
}

template <typename List>
const auto& RandomJson::OneOf(const List& list)
{
    return list[UpTo(std::size(list) - 1)];
}

QJsonObject RandomJson::Document(const std::function<QJsonObject()>& make)
{
    m_bParsed = OneIn(2);
    QJsonObject built = make();
    if (!m_bParsed) {
        return built;
    }
    QString text = QString::fromUtf8(QJsonDocument(built).toJson(QJsonDocument::Compact));
    text.remove(QLatin1Char('"') + QString(kBeforeNumber));
    text.remove(QString(kAfterNumber) + QLatin1Char('"'));
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8(), &error);
    if (error.error != QJsonParseError::NoError) {
        throw std::logic_error((error.errorString() + QStringLiteral(": ") + text).toStdString());
    }
    return document.object();
}

QJsonValue RandomJson::Value(int nDepth)
{
    constexpr quint64 kMostInside = 3;
    enum Kind {
        Null,
        Flag,
        Array,
        Object,
        SomeNumber,
        OtherNumber,
        SomeText,
        OtherText,
        Kinds
    };
    switch (UpTo(Kinds - 1)) {
    case Null:
        return {};
    case Flag:
        return OneIn(2);
    case Array: {
        QJsonArray array;
        for (quint64 left = nDepth > 0 ? UpTo(kMostInside) : 0; left > 0; --left) {
            array.append(Value(nDepth - 1));
        }
        return array;
    }
    case Object: {
        QJsonObject object;
        for (quint64 left = nDepth > 0 ? UpTo(kMostInside) : 0; left > 0; --left) {
            object.insert(QString(QChar('a' + int(left))), Value(nDepth - 1));
        }
        return object;
    }
    case SomeNumber:
    case OtherNumber:
        return Number();
    default:
        return Text();
    }
}

QJsonValue RandomJson::Number()
{
    return m_bParsed ? QJsonValue(kBeforeNumber + WrittenNumber() + kAfterNumber) : BuiltNumber();
}

QJsonValue RandomJson::BuiltNumber()
{
    constexpr int kBits = 64;
    const auto bits = UpTo(std::numeric_limits<quint64>::max());
    const auto exponent = UpTo(kBits);
    enum Kind {
        Small,
        Integer,
        NearPower,
        DoubleNearPower,
        Fraction,
        AnyDouble,
        Listed,
        Kinds
    };
    switch (UpTo(Kinds - 1)) {
    case Small:
        return int(bits % 512) - 256;
    case Integer:
        return qint64(bits >> (exponent % kBits));
    case NearPower: {
        const quint64 number = (quint64(1) << (exponent % kBits)) + bits % 5 - 2;
        return qint64(OneIn(2) ? number : 0 - number);
    }
    case DoubleNearPower:
        return (std::ldexp(1.0, int(exponent)) + (double(bits % 9) - 4) / 2) * (OneIn(2) ? 1 : -1);
    case Fraction:
        return std::ldexp(double(bits % 2048) - 1024, -int(exponent % 12));
    case AnyDouble: {
        double number = 0;
        static_assert(sizeof(number) == sizeof(bits));
        std::memcpy(&number, &bits, sizeof(number));
        return number;
    }
    default:
        return OneOf(kDoubles);
    }
}

QString RandomJson::WrittenNumber()
{
    if (OneIn(2)) {
        return OneOf(kNumbers);
    }
    QString text = OneIn(3) ? QStringLiteral("-") : QString();
    text += OneIn(5) ? QStringLiteral("0") : QString::number(1 + UpTo(8)) + (OneIn(2) ? QString() : Digits());
    if (OneIn(3)) {
        text += QLatin1Char('.') + Digits();
    }
    if (OneIn(4)) {
        constexpr quint64 kMostExponent = 280;  // keeps the number and its digits within the range of double
        text += OneIn(2) ? QStringLiteral("e") : QStringLiteral("E-");
        text += QString::number(OneIn(2) ? UpTo(20) : UpTo(kMostExponent));
    }
    return text;
}

QString RandomJson::Digits()
{
    constexpr quint64 kTenDigits = 10000000000;
    const QString digits = QString::number(UpTo(kTenDigits - 1));
    return OneIn(2) ? digits : digits + QString::number(UpTo(kTenDigits - 1));
}

QString RandomJson::Text()
{
    enum Kind {
        Listed,
        OfNumber,
        InSpaces,
        Other,
        Kinds
    };
    switch (UpTo(Kinds - 1)) {
    case Listed:
        return QString::fromUtf8(OneOf(kTexts));
    case OfNumber:
        return WrittenNumber();
    case InSpaces:
        return QChar(int(UpTo(0x30))) + WrittenNumber() + QChar(int(UpTo(0x7F)));
    default: {
        const quint64 last = OneIn(3) ? 0xDFFF : OneIn(2) ? 0xFF : 0x7F;
        QString text;
        for (quint64 left = UpTo(20); left > 0; --left) {
            text += QChar(ushort(UpTo(last)));
        }
        return text;
    }
    }
}

}  // namespace testing_support
