#include "Schema.h"
#include "Text.h"

#include <support/Rows.h>

#include <gtest/gtest.h>

using emulator::Json;

namespace {

struct Conversion {
    const char* name;
    const char* schema;
    const char* value;
    const char* converted;
};

}  // namespace

class ConversionTest : public testing::TestWithParam<Conversion> {};

TEST_P(ConversionTest, ValueTakesTheTypeOfTheSchema)
{
    EXPECT_EQ(emulator::ConvertTo(Json::parse(GetParam().schema), Json::parse(GetParam().value)),
              Json::parse(GetParam().converted));
}

INSTANTIATE_TEST_SUITE_P(
    Values, ConversionTest,
    testing::Values(
        Conversion{"TextToInteger", R"({"type":"integer"})", R"("-30")", "-30"},
        Conversion{"TextToLargeInteger", R"({"type":"integer"})", R"("9007199254740993")", "9007199254740993"},
        Conversion{"TextNotInteger", R"({"type":"integer"})", R"("3x")", R"("3x")"},
        Conversion{"EmptyTextNotInteger", R"({"type":"integer"})", R"("")", R"("")"},
        Conversion{"TextToNumber", R"({"type":"number"})", R"("5")", "5"},
        Conversion{"OneToTrue", R"({"type":"boolean"})", R"("1")", "true"},
        Conversion{"ZeroToFalse", R"({"type":"boolean"})", R"("0")", "false"},
        Conversion{"NumberToTrue", R"({"type":"boolean"})", "1", "true"},
        Conversion{"TwoNotBoolean", R"({"type":"boolean"})", R"("2")", R"("2")"},
        Conversion{"FlagToInteger", R"({"type":"integer"})", "true", "1"},
        Conversion{"NumberToText", R"({"type":"string"})", "7", R"("7")"},
        Conversion{"TextStaysText", R"({"type":"string"})", R"("1")", R"("1")"},
        Conversion{"UnchangedWithoutSchema", "{}", R"({"a":"1"})", R"({"a":"1"})"},
        Conversion{"DeepInside", R"({"properties":{"l":{"items":{"properties":{"n":{"type":"integer"}}}}}})",
                   R"({"l":[{"n":"1","t":"1"},{"n":"2"}],"x":"1"})", R"({"l":[{"n":1,"t":"1"},{"n":2}],"x":"1"})"}),
    testing_support::RowName());

class ProjectionTest : public testing::TestWithParam<Conversion> {};

TEST_P(ProjectionTest, ClosedObjectsDropUnknownKeys)
{
    EXPECT_EQ(emulator::ProjectOn(Json::parse(GetParam().schema), Json::parse(GetParam().value)),
              Json::parse(GetParam().converted));
}

INSTANTIATE_TEST_SUITE_P(
    Values, ProjectionTest,
    testing::Values(Conversion{"Closed", R"({"properties":{"a":{}},"additionalProperties":false})", R"({"a":1,"b":2})",
                               R"({"a":1})"},
                    Conversion{"ClosedAndEmpty", R"({"additionalProperties":false})", R"({"a":1})", "{}"},
                    Conversion{"Open", R"({"properties":{"a":{}}})", R"({"a":1,"b":2})", R"({"a":1,"b":2})"},
                    Conversion{"ElementsOfAList", R"({"items":{"additionalProperties":false}})", R"([{"a":1},2])",
                               "[{},2]"},
                    Conversion{"TypesAreKept", R"({"type":"integer"})", R"("1")", R"("1")"}),
    testing_support::RowName());

TEST(TextTest, DecodesPercentEscapes)
{
    EXPECT_EQ(emulator::PercentDecode("a%20b%c3%BC", false), "a b\xc3\xbc");
    EXPECT_EQ(emulator::PercentDecode("a+b", false), "a+b");
    EXPECT_EQ(emulator::PercentDecode("a+b%2B", true), "a b+");
    EXPECT_EQ(emulator::PercentDecode("%", false), "%");
    EXPECT_EQ(emulator::PercentDecode("%4", false), "%4");
    EXPECT_EQ(emulator::PercentDecode("%zz%-1%1", false), "%zz%-1%1");
    EXPECT_EQ(emulator::PercentDecode("%41", false), "A");
    EXPECT_EQ(emulator::PercentDecode("%2541", false), "%41");
    EXPECT_EQ(emulator::PercentDecode("%00", false), std::string(1, '\0'));
}

TEST(TextTest, SplitsAtSeparator)
{
    EXPECT_EQ(emulator::Split("a,,b", ','), (std::vector<std::string>{"a", "", "b"}));
    EXPECT_EQ(emulator::Split("", ','), std::vector<std::string>{""});
    EXPECT_EQ(emulator::Split("a,", ','), (std::vector<std::string>{"a", ""}));
}
