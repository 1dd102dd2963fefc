#include "ReadingDifference.h"

#include "SlowReading.h"

#include <public/CommonFunc.h>

#include <QCborValue>
#include <QJsonArray>

#include <gtest/gtest.h>

#include <cstring>
#include <type_traits>

namespace family_testing {

namespace {

using APIModule::CCommonFunc;
using testing_support::LogLines;
using testing_support::LogRecorder;

quint64 Bits(double number)
{
    quint64 bits = 0;
    static_assert(sizeof(bits) == sizeof(number));
    std::memcpy(&bits, &number, sizeof(bits));
    return bits;
}

/// Compares bit by bit, so that 0.0 differs from -0.0 and NaN equals itself.
template <typename T>
bool AreSame(const T& left, const T& right)
{
    if constexpr (std::is_same_v<T, double>) {
        return Bits(left) == Bits(right);
    } else {
        return left == right;
    }
}

/// JSON with all digits of its integers, some of which Qt's JSON output would lose.
template <typename T>
std::string Shown(const T& value)
{
    if constexpr (std::is_class_v<T> && std::is_convertible_v<T, QJsonValue>) {
        return QCborValue::fromJsonValue(value).toDiagnosticNotation().toStdString();
    } else {
        return testing::PrintToString(value);
    }
}

/// Both readers start with the same output.
template <typename T>
std::string DifferenceFor(const T& before, const QJsonObject& object, const QString& key, LogRecorder& logs)
{
    T expected = before;
    LogLines lines;
    const int nExpected = ReadSlowly(object, key, expected, lines);
    T value = before;
    const int nResult = CCommonFunc::GetJsonValue(object, key, value);
    const LogLines logged = logs.Take();
    if (nResult == nExpected && AreSame(value, expected) && logged == lines) {
        return {};
    }
    return key.toStdString() + " of " + Shown(object) + "\ngives " + std::to_string(nResult) + ' ' + Shown(value) +
           ' ' + testing::PrintToString(logged) + "\ninstead of " + std::to_string(nExpected) + ' ' + Shown(expected) +
           ' ' + testing::PrintToString(lines) + '\n';
}

}  // namespace

std::string ReadingDifference(const QJsonObject& object, const QString& key, LogRecorder& logs)
{
    return DifferenceFor(99, object, key, logs) + DifferenceFor(99.5, object, key, logs) +
           DifferenceFor(APIModule::int64(99), object, key, logs) + DifferenceFor(true, object, key, logs) +
           DifferenceFor(false, object, key, logs) + DifferenceFor(std::string("before"), object, key, logs) +
           DifferenceFor(QJsonObject{{QStringLiteral("before"), 1}}, object, key, logs) +
           DifferenceFor(QJsonArray{1}, object, key, logs);
}

}  // namespace family_testing
