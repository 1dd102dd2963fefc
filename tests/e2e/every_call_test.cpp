// Every call of the library against the emulator, over HTTP and over HTTPS.
#include "rows/Rows.h"
#include "support/EndToEnd.h"

#include <catalogue/Call.h>

#include <gtest/gtest.h>

#include <set>
#include <tuple>

namespace e2e {
namespace {

class EveryCall : public EndToEnd, public testing::WithParamInterface<std::tuple<Scheme, Row>> {
protected:
    EveryCall()
    {
        Use(std::get<Scheme>(GetParam()));
        Json state = Platform().state();
        for (const auto& [pointer, value] : ParamRow().state.items()) {
            state[Json::json_pointer(pointer)] = value;
        }
        Platform().setState(state);
    }

    static const Row& ParamRow() { return std::get<Row>(GetParam()); }

    /// The value that the effect changes, as it is now.
    static Json ValueOf(const Effect& effect)
    {
        if (effect.call.empty()) {
            const Json state = Platform().state();
            const Json::json_pointer pointer(effect.pointer);
            return state.contains(pointer) ? state.at(pointer) : Json();
        }
        const catalogue::Outcome outcome = Run(effect.call, effect.arguments);
        return outcome ? outcome.record : Json{{"failed", outcome.Code()}};
    }

    static std::string Described(const Effect& effect)
    {
        return effect.call.empty() ? effect.pointer : effect.call + " " + effect.arguments.dump();
    }
};

TEST_P(EveryCall, ReadsAndChangesTheStateOfThePlatform)
{
    const Row& row = ParamRow();
    for (const Effect& effect : row.effects) {
        EXPECT_NE(ValueOf(effect), effect.expected)
            << Described(effect) << ": already has the expected value before the call";
    }

    Platform().clearRequests();
    const catalogue::Outcome outcome = Run(row.call, row.arguments);
    const std::vector<emulator::RecordedRequest> requests = Platform().requests();
    ASSERT_EQ(requests.size(), 1U);
    EXPECT_TRUE(outcome) << outcome.Text().toStdString() << "\n" << requests.front().toJson().dump(4);
    EXPECT_EQ(outcome.Code(), 0);
    EXPECT_EQ(notifications.Take(), QStringList());
    if (row.record) {
        EXPECT_EQ(outcome.record, row.record(Platform().state()));
        EXPECT_NE(outcome.record, DefaultRecord(row.call)) << "the row checks nothing: the record equals the default";
    } else {
        EXPECT_EQ(outcome.record, Json()) << "the row expects no record";
    }
    for (const Effect& effect : row.effects) {
        EXPECT_EQ(ValueOf(effect), effect.expected) << Described(effect);
    }

    static const std::set<std::string> onlyRead = {"BRMS.FunctionChannelCheck", "OBMS.GetPageAccessAuthorizePersons"};
    if (requests.front().method != "GET" && onlyRead.count(row.call) == 0) {
        EXPECT_FALSE(row.effects.empty()) << "the row does not check what the call wrote";
    }
}

std::string NameOf(const testing::TestParamInfo<std::tuple<Scheme, Row>>& info)
{
    return std::get<Row>(info.param).Name();
}

INSTANTIATE_TEST_SUITE_P(Http, EveryCall, testing::Combine(testing::Values(Scheme::Http), testing::ValuesIn(Rows())),
                         NameOf);
INSTANTIATE_TEST_SUITE_P(Https, EveryCall, testing::Combine(testing::Values(Scheme::Https), testing::ValuesIn(Rows())),
                         NameOf);

std::set<std::string> RegisteredTests(const std::string& suite)
{
    std::set<std::string> names;
    const testing::UnitTest& program = *testing::UnitTest::GetInstance();
    for (int index = 0; index < program.total_test_suite_count(); ++index) {
        const testing::TestSuite& found = *program.GetTestSuite(index);
        for (int test = 0; suite == found.name() && test < found.total_test_count(); ++test) {
            names.insert(found.GetTestInfo(test)->name());
        }
    }
    return names;
}

TEST(Completeness, EveryCallOfTheCatalogueHasARowInBothSchemes)
{
    for (const char* suite : {"Http/EveryCall", "Https/EveryCall"}) {
        const std::set<std::string> tests = RegisteredTests(suite);
        for (const catalogue::Call& call : catalogue::Calls()) {
            const std::string test = "ReadsAndChangesTheStateOfThePlatform/" + Row{call.name, {}}.Name();
            EXPECT_EQ(tests.count(test), 1U) << call.name << " has no row in " << suite;
        }
    }
}

}  // namespace
}  // namespace e2e
