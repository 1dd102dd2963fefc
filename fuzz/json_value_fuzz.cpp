// The readers of JSON values, compared with the slow reference conversion.
#include "Fuzz.h"

#include "families/support/ReadingDifference.h"

#include <QJsonObject>
#include <QStringList>

namespace {

QJsonObject RandomObject(FuzzedDataProvider& data)
{
    testing_support::RandomJson random(fuzz::ChoiceOf(data));
    return random.Document([&] {
        QJsonObject object;
        for (quint64 left = random.UpTo(4); left > 0; --left) {
            object.insert(QString::number(left), random.Value());
        }
        return object;
    });
}

QJsonObject ParsedObject(FuzzedDataProvider& data)
{
    return fuzz::Parsed(QByteArray::fromStdString(data.ConsumeRemainingBytesAsString())).object();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    FuzzedDataProvider data(bytes, size);
    const QJsonObject object = data.ConsumeBool() ? RandomObject(data) : ParsedObject(data);
    testing_support::LogRecorder logs;
    QStringList keys = object.keys();
    keys.append(QStringLiteral("missing"));
    for (const QString& key : keys) {
        const std::string difference = family_testing::ReadingDifference(object, key, logs);
        fuzz::Require(difference.empty(), difference);
    }
    return 0;
}
