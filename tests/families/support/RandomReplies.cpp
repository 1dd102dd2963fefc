#include "RandomReplies.h"

#include <QCborValue>
#include <QJsonArray>

#include <sstream>

namespace family_testing {

namespace {

using testing_support::LogLines;
using testing_support::LogRecorder;
using testing_support::RandomJson;

QJsonObject Part(const Readings& readings, RandomJson& random);

QJsonArray Elements(const Reading& reading, RandomJson& random)
{
    constexpr quint64 kMost = 4;
    QJsonArray array;
    for (quint64 left = random.UpTo(kMost); left > 0; --left) {
        array.append(reading.inner.empty() ? random.Value() : QJsonValue(Part(reading.inner, random)));
    }
    return array;
}

QJsonValue ValueFor(const Reading& reading, RandomJson& random)
{
    constexpr quint64 kOtherType = 40;
    if (random.OneIn(kOtherType)) {
        return random.Value();
    }
    switch (reading.type) {
    case Reading::Object:
        return Part(reading.inner, random);
    case Reading::Records:
    case Reading::Texts:
    case Reading::NumbersOfTexts:
        return Elements(reading, random);
    default:
        return random.Value();
    }
}

QJsonObject Part(const Readings& readings, RandomJson& random)
{
    constexpr quint64 kWithout = 80;
    QJsonObject object;
    for (const Reading& reading : readings) {
        if (!random.OneIn(kWithout)) {
            object.insert(QString::fromStdString(reading.key), ValueFor(reading, random));
        }
    }
    return object;
}

/// The outcome of a reading, compared bit by bit: NaN equals itself, and 1 differs from 1.0.
struct Outcome {
    int result = 0;
    Json record;
    LogLines lines;

    bool operator==(const Outcome& other) const
    {
        return result == other.result && Json::to_cbor(record) == Json::to_cbor(other.record) && lines == other.lines;
    }
};

std::ostream& operator<<(std::ostream& stream, const Outcome& outcome)
{
    return stream << outcome.result << ' ' << outcome.record << ' ' << testing::PrintToString(outcome.lines);
}

}  // namespace

std::vector<KnownParse>& KnownParses()
{
    static std::vector<KnownParse> parses;
    return parses;
}

QJsonObject RandomReply(const Readings& readings, RandomJson& random)
{
    return random.Document([&] { return Part(readings, random); });
}

std::string Difference(const KnownParse& known, const QJsonObject& reply, const Json& start)
{
    Outcome expected{0, start, {}};
    expected.result = ReadReference(reply, known.readings, expected.record, expected.lines);
    Outcome outcome{0, start, {}};
    LogRecorder logs;
    outcome.result = known.parse.run(reply, outcome.record);
    outcome.lines = logs.Take();
    if (outcome == expected) {
        return {};
    }
    std::ostringstream text;
    text << known.parse.call << " of " << QCborValue::fromJsonValue(reply).toDiagnosticNotation().toStdString()
         << "\ngives\n"
         << outcome << "\ninstead of\n"
         << expected;
    return text.str();
}

TEST(RandomReplies, AreReadLikeTheReference)
{
    if (KnownParses().empty()) {
        GTEST_SKIP() << "the calls of this subject have no Parse";
    }
    constexpr int kReplies = 1000;
    RandomJson random(testing_support::SeededChoice(5));
    for (const KnownParse& known : KnownParses()) {
        std::string difference;
        for (int i = 0; i < kReplies && difference.empty(); ++i) {
            const Json& start = random.OneIn(2) ? known.parse.fresh : known.parse.filled;
            difference = Difference(known, RandomReply(known.readings, random), start);
        }
        EXPECT_TRUE(difference.empty()) << difference;
    }
}

}  // namespace family_testing
