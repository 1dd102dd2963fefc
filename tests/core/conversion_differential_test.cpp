// Compares the readers of JSON values with the slow reference conversion, using a million random values.
#include "families/support/ReadingDifference.h"
#include "support/RandomJson.h"
#include "support/Recorders.h"

#include <QJsonObject>
#include <QStringList>

#include <gtest/gtest.h>

namespace {

using testing_support::RandomJson;

constexpr int kValuesOfAnObject = 20;

QStringList Keys()
{
    QStringList keys{QStringLiteral("%1%s"), QStringLiteral("schlüssel"), QStringLiteral("键")};
    while (keys.size() < kValuesOfAnObject) {
        keys.append(QStringLiteral("key%1").arg(keys.size()));
    }
    return keys;
}

/// An object that sometimes lacks one of the keys or all of them.
QJsonObject RandomObject(const QStringList& keys, RandomJson& random)
{
    constexpr quint64 kWithout = 1000;
    return random.Document([&] {
        QJsonObject object;
        for (const QString& key : keys) {
            if (!random.OneIn(kWithout)) {
                object.insert(key, random.Value());
            }
        }
        return random.OneIn(kWithout) ? QJsonObject() : object;
    });
}

TEST(ConversionDifferential, ConvertsAMillionRandomValuesLikeTheReference)
{
    constexpr int kValues = 1'000'000;
    const QStringList keys = Keys();
    RandomJson random(testing_support::SeededChoice(20));
    testing_support::LogRecorder logs;
    for (int nRead = 0; nRead < kValues && !HasFailure(); nRead += kValuesOfAnObject) {
        const QJsonObject object = RandomObject(keys, random);
        for (const QString& key : keys) {
            const std::string difference = family_testing::ReadingDifference(object, key, logs);
            EXPECT_TRUE(difference.empty()) << difference;
        }
    }
}

}  // namespace
