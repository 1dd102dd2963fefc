// Texts and figures that the views produce without a window: C++ literals, CSV, JSON, statistics.
#include "support/Rows.h"

#include <explorer/views/CppLines.h>
#include <explorer/views/Csv.h>
#include <explorer/views/Json.h>
#include <explorer/views/ShellLines.h>
#include <explorer/views/Statistics.h>

#include <catalogue/Call.h>

#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

using nlohmann::json;
using testing_support::RowName;

namespace explorer {
namespace {

// C++

struct LiteralRow {
    const char* name;
    std::string text;
    const char* literal;
};

class CppTexts : public testing::TestWithParam<LiteralRow> {};

TEST_P(CppTexts, AreWrittenAsLiterals)
{
    EXPECT_EQ(CppText(GetParam().text).toStdString(), GetParam().literal);
}

INSTANTIATE_TEST_SUITE_P(Texts, CppTexts,
                         testing::Values(LiteralRow{"Empty", "", R"("")"},
                                         LiteralRow{"Plain", "1000021$1$0$0", R"("1000021$1$0$0")"},
                                         LiteralRow{"Quotes", R"(say "a")", R"("say \"a\"")"},
                                         LiteralRow{"Backslash", R"(C:\n)", R"("C:\\n")"},
                                         LiteralRow{"Lines", "a\r\n\tb", R"("a\r\n\tb")"},
                                         LiteralRow{"Trigraph",
                                                    "a?"
                                                    "?=b",
                                                    R"("a\?\?=b")"},
                                         LiteralRow{"ControlBeforeDigit",
                                                    "\x01"
                                                    "7",
                                                    R"("\0017")"},
                                         LiteralRow{"Umlaut", "T\xC3\xBCr", "\"T\xC3\xBCr\""},
                                         LiteralRow{"BeyondTheFirstPlane", "\xF0\x9F\x9A\xA6", "\"\xF0\x9F\x9A\xA6\""},
                                         LiteralRow{"NoUtf8",
                                                    "\xFC"
                                                    "1",
                                                    R"("\374\061")"},
                                         LiteralRow{"ZeroByte", std::string("a\0b", 3), R"(std::string("a\000b", 3))"}),
                         RowName());

TEST(CppLines, FillTheArgumentsAndRunTheCall)
{
    const json arguments = {{"channelId", "1000021$1$0$0"},
                            {"configs", json::array({{{"channelId", ""},
                                                      {"streamType", 1},
                                                      {"bitRate", 2048},
                                                      {"bitRateControl", 0},
                                                      {"compression", 7},
                                                      {"enable", 1},
                                                      {"frameRate", 25},
                                                      {"iFrameInterval", 50},
                                                      {"height", 1080},
                                                      {"width", 1920}}})}};
    EXPECT_EQ(CppLines(*catalogue::FindCall("BRMS.UpdateEncodeConfig"), arguments, -1).toStdString(),
              R"(#include <BRMS/BRMSCalls.h>

APIModule::Outcome<APIModule::NoRecord> UpdateEncodeConfig(QWidget* pParent)
{
    std::string channelId = "1000021$1$0$0";
    std::vector<APIModule::EncodeConfig> configs;
    configs.resize(1);
    configs[0].channelId = "";
    configs[0].streamType = 1;
    configs[0].bitRate = 2048;
    configs[0].bitRateControl = 0;
    configs[0].compression = 7;
    configs[0].enable = 1;
    configs[0].frameRate = 25;
    configs[0].iFrameInterval = 50;
    configs[0].height = 1080;
    configs[0].width = 1920;

    return APIModule::Run(APIModule::BRMS::UpdateEncodeConfig(channelId, configs), pParent);
}
)");
}

TEST(CppLines, NameTheRecordType)
{
    const QString lines = CppLines(*catalogue::FindCall("DMS.BatchWashOpen"), {{"channelIds", {"a", "b"}}}, 7);
    EXPECT_EQ(lines.toStdString(), R"(#include <DMS/DMSCalls.h>

APIModule::Outcome<APIModule::PtzBatchWashStatus> BatchWashOpen(QWidget* pParent)
{
    std::vector<std::string> channelIds = {"a", "b"};

    return APIModule::Run(APIModule::DMS::BatchWashOpen(channelIds), pParent);
}
)");
}

TEST(CppLines, NameTheServer)
{
    const QString lines = CppLines(*catalogue::FindCall("BRMS.GetTimeSyncConfig"), json::object(), 3);
    EXPECT_TRUE(lines.contains(QStringLiteral("BRMS::GetTimeSyncConfig().OnServer(3), pParent)")))
        << lines.toStdString();
}

// curl

TEST(CurlLines, SendTheRequestWithTheTokenFromTheEnvironment)
{
    const SentRequest request{QStringLiteral("PUT"),
                              QStringLiteral("https://127.0.0.1:8443/a?token=**********&b='1'"),
                              {{QStringLiteral("Host"), QStringLiteral("127.0.0.1:8443")},
                               {QStringLiteral("X-Subject-Token"), QStringLiteral("**********")},
                               {QStringLiteral("X-Empty"), QString()},
                               {QStringLiteral("CONTENT-LENGTH"), QStringLiteral("7")}},
                              R"({"a":'$1'})"};
    EXPECT_EQ(CurlLine(request).toStdString(), R"(curl --insecure --globoff --path-as-is --request PUT \
    'https://127.0.0.1:8443/a?token='"$TOKEN"'&b='\''1'\''' \
    -H 'X-Subject-Token: '"$TOKEN" \
    -H 'X-Empty;' \
    --data-raw '{"a":'\''$1'\''}')");
}

TEST(CurlLines, HaveNoBodyForAGet)
{
    const SentRequest request{QStringLiteral("GET"), QStringLiteral("http://h:1/"), {}, "body"};
    EXPECT_EQ(CurlLine(request).toStdString(),
              "curl --insecure --globoff --path-as-is --request GET \\\n    'http://h:1/'");
}

TEST(CurlLines, HaveAnEmptyBodyForAPostWithoutABody)
{
    const SentRequest request{QStringLiteral("POST"), QStringLiteral("http://h:1/"), {}, {}};
    EXPECT_EQ(CurlLine(request).toStdString(),
              "curl --insecure --globoff --path-as-is --request POST \\\n    'http://h:1/' \\\n    --data-raw ''");
}

// CSV

struct CsvRow {
    const char* name;
    QList<QStringList> rows;
    const char* text;
};

class CsvTexts : public testing::TestWithParam<CsvRow> {};

TEST_P(CsvTexts, AreQuotedOnlyWhereNecessary)
{
    EXPECT_EQ(Csv(GetParam().rows).toStdString(), GetParam().text);
}

QStringList Fields(std::initializer_list<const char*> fields)
{
    QStringList list;
    for (const char* field : fields) {
        list.append(QString::fromUtf8(field));
    }
    return list;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CsvTexts,
    testing::Values(CsvRow{"None", {}, ""},
                    CsvRow{"Plain", {Fields({"id", "name"}), Fields({"1", "Gate"})}, "id,name\r\n1,Gate\r\n"},
                    CsvRow{"Comma", {Fields({"a,b", "c"})}, "\"a,b\",c\r\n"},
                    CsvRow{"Quote", {Fields({"2\" pipe"})}, "\"2\"\" pipe\"\r\n"},
                    CsvRow{"LineFeed", {Fields({"a\nb"})}, "\"a\nb\"\r\n"},
                    CsvRow{"CarriageReturn", {Fields({"a\rb"})}, "\"a\rb\"\r\n"},
                    CsvRow{"EmptyFields", {Fields({"", "", ""})}, ",,\r\n"},
                    CsvRow{"SpacesStay", {Fields({" a "})}, " a \r\n"},
                    CsvRow{"Utf8", {Fields({"T\xC3\xBCr"})}, "T\xC3\xBCr\r\n"}),
    RowName());

// JSON

TEST(Json, IntegersKeepAllTheirBits)
{
    const json numbers = {{"a", std::numeric_limits<long long>::max()},
                          {"b", {std::numeric_limits<long long>::min(), 9007199254740993LL, 0, -1}}};
    EXPECT_EQ(FromQt(ToQt(numbers)), numbers);
    EXPECT_EQ(CompactJsonText(FromQt(ToQt(numbers))).toStdString(), numbers.dump());
}

TEST(Json, EveryKindOfValueSurvivesARoundTrip)
{
    const json value = {{"text", "a \xC3\xBC \" b"}, {"flag", true},
                        {"null", nullptr},           {"number", 0.25},
                        {"list", {1, "a", false}},   {"object", {{"a", json::object()}, {"b", json::array()}}}};
    EXPECT_EQ(FromQt(ToQt(value)), value);
}

TEST(Json, InvalidUtf8IsReplaced)
{
    EXPECT_EQ(CompactJsonText(json("\xFC")).toStdString(), "\"\xEF\xBF\xBD\"");
    EXPECT_EQ(JsonText({{"a", 1}}).toStdString(), "{\n    \"a\": 1\n}");
}

// Figures

struct FigureRow {
    const char* name;
    std::vector<double> values;
    double median;
    double percentile95;
};

class Figures : public testing::TestWithParam<FigureRow> {};

TEST_P(Figures, AreMedianAnd95thPercentileOfTheValues)
{
    EXPECT_DOUBLE_EQ(Median(GetParam().values), GetParam().median);
    EXPECT_DOUBLE_EQ(Percentile(GetParam().values, 0.95), GetParam().percentile95);
}

std::vector<double> From1To(int last)
{
    std::vector<double> values;
    for (int value = last; value >= 1; --value) {
        values.push_back(value);
    }
    return values;
}

INSTANTIATE_TEST_SUITE_P(Values, Figures,
                         testing::Values(FigureRow{"None", {}, 0, 0}, FigureRow{"One", {7}, 7, 7},
                                         FigureRow{"Two", {3, 1}, 2, 3}, FigureRow{"Three", {9, 1, 5}, 5, 9},
                                         FigureRow{"Nineteen", From1To(19), 10, 19},
                                         FigureRow{"Twenty", From1To(20), 10.5, 19},
                                         FigureRow{"Hundred", From1To(100), 50.5, 95}),
                         RowName());

TEST(Percentile, ReturnsMinimumAndMaximumForSharesOf0And1)
{
    EXPECT_DOUBLE_EQ(Percentile({3, 1, 2}, 0), 1);
    EXPECT_DOUBLE_EQ(Percentile({3, 1, 2}, 1), 3);
}

}  // namespace
}  // namespace explorer
