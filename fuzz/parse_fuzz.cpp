// Every Parse with random replies, compared with the reference implementation of the same reading steps.
#include "Fuzz.h"

#include "families/support/RandomReplies.h"

#include <QJsonObject>

#include <gtest/gtest.h>

using family_testing::KnownParses;

// The family tests are linked in. Their rows list all Parses and what each of them reads.
extern "C" int LLVMFuzzerInitialize(int* pCount, char*** pArguments)
{
    int nOwn = 1;
    testing::InitGoogleTest(&nOwn, *pArguments);
    fuzz::Require(*pCount > 0 && KnownParses().size() > 50, "the tests of the families have reported no Parses");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    FuzzedDataProvider data(bytes, size);
    const auto& known = KnownParses()[data.ConsumeIntegralInRange<std::size_t>(0, KnownParses().size() - 1)];
    const family_testing::Json& start = data.ConsumeBool() ? known.parse.fresh : known.parse.filled;
    QJsonObject reply;
    if (data.ConsumeBool()) {
        testing_support::RandomJson random(fuzz::ChoiceOf(data));
        reply = RandomReply(known.readings, random);
    } else {
        reply = fuzz::Parsed(QByteArray::fromStdString(data.ConsumeRemainingBytesAsString())).object();
    }
    const std::string difference = Difference(known, reply, start);
    fuzz::Require(difference.empty(), difference);
    return 0;
}
