#include "SlowReading.h"

#if QT_VERSION_MAJOR > 5
#include <QRegularExpression>

#include <cmath>
#include <limits>
#include <optional>
#endif

namespace family_testing {

namespace {

#if QT_VERSION_MAJOR > 5
/// Rounds halves up. As in Qt 5 on this processor, a number that is too large becomes the lowest integer, and one that
/// is too small becomes zero or the result of the overflow.
qint64 RoundedAsInQt5(double number)
{
    constexpr double kRange = 9223372036854775808.0;
    constexpr qint64 kLowest = std::numeric_limits<qint64>::min();
    if (number >= -kRange) {
        const double rounded = std::floor(number + 0.5);
        return rounded < kRange ? qint64(rounded) : kLowest;
    }
    return number >= -2 * kRange ? qint64(quint64(qint64(number + kRange)) + quint64(kLowest)) : 0;
}

/// Reads an integer with optional surrounding whitespace. U+2212 is accepted as a minus sign.
qint64 IntegerAsInQt5(const QString& text)
{
    static const QRegularExpression kInteger(QStringLiteral("\\A[+\u2212-]?[0-9]+\\z"));
    QString number = text.trimmed();
    return kInteger.match(number).hasMatch() ? number.replace(QChar(0x2212), QLatin1Char('-')).toLongLong() : 0;
}

/// Qt 5 stores a double without a fraction as an integer, except minus zero.
std::optional<qint64> KeptAsInteger(double number)
{
    constexpr double kRange = 9223372036854775808.0;
    const bool bInteger = number >= -kRange && number < kRange && std::floor(number) == number;
    return bInteger && (number != 0 || !std::signbit(number)) ? std::optional<qint64>(number) : std::nullopt;
}

/// The text of a double, without an exponent for values down to 0.0001.
QString TextAsInQt5(double number)
{
    if (const auto integer = KeptAsInteger(number)) {
        return QString::number(*integer);
    }
    static const QRegularExpression kShortened(QStringLiteral("\\A(-?)([0-9])e-04\\z"));
    const QString text = QVariant(number).toString();
    const QRegularExpressionMatch match = kShortened.match(text);
    return match.hasMatch() ? match.captured(1) + QStringLiteral("0.000") + match.captured(2) : text;
}

/// Converts every number inside to a double, or to an integer if it has no fraction.
QJsonValue ContainerAsInQt5(const QJsonValue& value)
{
    if (value.isArray()) {
        QJsonArray array;
        for (const QJsonValue element : value.toArray()) {
            array.append(ContainerAsInQt5(element));
        }
        return array;
    }
    if (value.isObject()) {
        QJsonObject object = value.toObject();
        for (auto member = object.begin(); member != object.end(); ++member) {
            member.value() = ContainerAsInQt5(member.value());
        }
        return object;
    }
    if (!value.isDouble()) {
        return value;
    }
    const auto integer = KeptAsInteger(value.toDouble());
    return integer ? QJsonValue(*integer) : QJsonValue(value.toDouble());
}
#endif

testing_support::LogLine FailedRead(const std::string& function, const std::string& message)
{
    return {"src/UI/APIModule/public/CommonFunc", "APIModule::CCommonFunc::" + function, 6, message};
}

}  // namespace

#if QT_VERSION_MAJOR == 5

QVariant VariantFor(Target /*target*/, const QJsonValue& value)
{
    return value.toVariant();
}

int NumberOfText(const QString& text)
{
    return text.toInt(nullptr, 10);
}

#else

QVariant VariantFor(Target target, const QJsonValue& value)
{
    const QVariant variant = value.toVariant();
    const bool bDouble = variant.typeId() == QMetaType::Double;
    if (bDouble && (target == Target::Integer || target == Target::Flag)) {
        return RoundedAsInQt5(variant.toDouble());
    }
    if (bDouble && target == Target::Text) {
        return TextAsInQt5(variant.toDouble());
    }
    if (value.isString() && target == Target::Integer) {
        return IntegerAsInQt5(value.toString());
    }
    if (value.isString() && target == Target::Number) {
        return value.toString().replace(QChar(0x2212), QLatin1Char('-')).toDouble();
    }
    return target == Target::Container ? ContainerAsInQt5(value).toVariant() : variant;
}

int NumberOfText(const QString& text)
{
    const qint64 number = IntegerAsInQt5(text);
    return number == int(number) ? int(number) : 0;
}

#endif

testing_support::LogLine EmptyObject()
{
    return FailedRead("IsEmpty", "Invalid parameter, jsonObject is empty.");
}

testing_support::LogLine MissingKey(const std::string& key)
{
    return FailedRead("IsKeyValid", "Invalid key: [" + key + "], jsonObject does not contain the key.");
}

bool FindSlowly(const QJsonObject& object, const QString& key, QJsonValue& value, testing_support::LogLines& lines)
{
    if (object.isEmpty()) {
        lines.push_back(EmptyObject());
        return false;
    }
    if (!object.contains(key)) {
        lines.push_back(MissingKey(key.toStdString()));
        return false;
    }
    value = object.value(key);
    return true;
}

}  // namespace family_testing
