// The readers of JSON values, held against the slow conversion through variants on a million random values.
#include "families/support/SlowReading.h"
#include "support/RandomJson.h"
#include "support/Recorders.h"

#include <public/CommonFunc.h>

#include <QCborValue>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <type_traits>

namespace {

using APIModule::CCommonFunc;
using family_testing::ReadSlowly;
using testing_support::LogLines;
using testing_support::LogRecorder;
using testing_support::RandomJson;

/// Bit by bit, so that no number equals another one and every not-a-number itself.
template <typename T>
bool AreSame(const T& left, const T& right)
{
    if constexpr (std::is_same_v<T, double>) {
        return std::memcmp(&left, &right, sizeof(left)) == 0;
    } else {
        return left == right;
    }
}

/// JSON with all digits of its integers, which the texts that Qt makes of it do not have.
template <typename T>
std::string Shown(const T& value)
{
    if constexpr (std::is_class_v<T> && std::is_convertible_v<T, QJsonValue>) {
        return QCborValue::fromJsonValue(value).toDiagnosticNotation().toStdString();
    } else {
        return testing::PrintToString(value);
    }
}

/// Reads one value in both ways into outputs that start alike.
template <typename T>
void ExpectSameReading(const QJsonObject& object, const QString& key, const T& before, LogRecorder& logs)
{
    T expected = before;
    LogLines lines;
    const int nExpected = ReadSlowly(object, key, expected, lines);
    T value = before;
    const int nResult = CCommonFunc::GetJsonValue(object, key, value);
    const LogLines logged = logs.Take();
    EXPECT_TRUE(nResult == nExpected && AreSame(value, expected) && logged == lines)
        << key.toStdString() << ' ' << Shown(object.value(key)) << " gives " << nResult << ' ' << Shown(value)
        << testing::PrintToString(logged) << " instead of " << nExpected << ' ' << Shown(expected)
        << testing::PrintToString(lines);
}

void ExpectSameReadings(const QJsonObject& object, const QString& key, LogRecorder& logs)
{
    ExpectSameReading(object, key, 99, logs);
    ExpectSameReading(object, key, 99.5, logs);
    ExpectSameReading(object, key, APIModule::int64(99), logs);
    ExpectSameReading(object, key, true, logs);
    ExpectSameReading(object, key, false, logs);
    ExpectSameReading(object, key, std::string("before"), logs);
    ExpectSameReading(object, key, QJsonObject{{QStringLiteral("before"), 1}}, logs);
    ExpectSameReading(object, key, QJsonArray{1}, logs);
}

TEST(ConversionDifferential, AMillionRandomValuesOfEveryType)
{
    constexpr int kValues = 1'000'000;
    constexpr int kValuesOfAnObject = 20;
    constexpr quint64 kWithout = 1000;
    RandomJson random(testing_support::SeededChoice(20));
    LogRecorder logs;

    const QStringList keys = [] {
        QStringList names{QStringLiteral("%1%s"), QStringLiteral("schlüssel"), QStringLiteral("键")};
        while (names.size() < kValuesOfAnObject) {
            names.append(QStringLiteral("key%1").arg(names.size()));
        }
        return names;
    }();
    for (int nRead = 0; nRead < kValues && !testing::Test::HasFailure(); nRead += kValuesOfAnObject) {
        const QJsonObject object = random.Document([&] {
            QJsonObject made;
            for (const QString& key : keys) {
                if (!random.OneIn(kWithout)) {
                    made.insert(key, random.Value());
                }
            }
            return random.OneIn(kWithout) ? QJsonObject() : made;
        });
        for (const QString& key : keys) {
            ExpectSameReadings(object, key, logs);
        }
    }
}

}  // namespace
