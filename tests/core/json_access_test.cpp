// Typed reading of JSON values.
#include "support/Recorders.h"
#include "support/Rows.h"

#include <public/CommonFunc.h>

#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

using APIModule::CCommonFunc;
using testing_support::LogLines;
using testing_support::LogRecorder;
using testing_support::RowName;

namespace {

constexpr const char* kFile = "src/UI/APIModule/public/CommonFunc";

QJsonObject Json(const char* text)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << text;
    return document.object();
}

/// A JSON value and the result of each overload for it.
struct Conversion {
    const char* name;
    const char* json;  ///< value of the key "k"
    int asInt;
    double asDouble;
    APIModule::int64 asInt64;
    bool asBool;
    const char* asText;
    int objectKeys;
    int arraySize;
};

const Conversion kConversions[] = {
    {"number", "12", 12, 12.0, 12, true, "12", 0, 0},
    {"zero", "0", 0, 0.0, 0, false, "0", 0, 0},
    {"negative", "-7", -7, -7.0, -7, true, "-7", 0, 0},
    {"fraction_rounds", "2.5", 3, 2.5, 3, true, "2.5", 0, 0},
    {"beyond_32_bits", "5000000000", 705032704, 5e9, 5000000000LL, true, "5000000000", 0, 0},
    {"text_of_digits", "\"12\"", 12, 12.0, 12, true, "12", 0, 0},
    {"text_of_letters", "\"abc\"", 0, 0.0, 0, true, "abc", 0, 0},
    {"text_of_fraction", "\"1.5\"", 0, 1.5, 0, true, "1.5", 0, 0},
    {"empty_text", "\"\"", 0, 0.0, 0, false, "", 0, 0},
    {"text_1", "\"1\"", 1, 1.0, 1, true, "1", 0, 0},
    {"text_0", "\"0\"", 0, 0.0, 0, false, "0", 0, 0},
    {"text_false", "\"false\"", 0, 0.0, 0, false, "false", 0, 0},
    {"text_true", "\"true\"", 0, 0.0, 0, true, "true", 0, 0},
    {"text_utf8", "\"\xC3\xBC\xE4\xB8\xAD\"", 0, 0.0, 0, true, "\xC3\xBC\xE4\xB8\xAD", 0, 0},
    {"true", "true", 1, 1.0, 1, true, "true", 0, 0},
    {"false", "false", 0, 0.0, 0, false, "false", 0, 0},
    {"null", "null", 0, 0.0, 0, false, "", 0, 0},
    {"object", R"({"a": 1, "b": 2})", 0, 0.0, 0, false, "", 2, 0},
    {"array", "[1, 2, 3]", 0, 0.0, 0, false, "", 0, 3},
    {"text_of_object", R"("{\"a\": 1}")", 0, 0.0, 0, true, R"({"a": 1})", 0, 0},
};

class ConversionTest : public testing::TestWithParam<Conversion> {};

TEST_P(ConversionTest, EveryOverloadConverts)
{
    const Conversion& row = GetParam();
    const QJsonObject object = Json((std::string("{\"k\": ") + row.json + "}").c_str());
    const QString key = QStringLiteral("k");
    LogRecorder logs;

    int nValue = 99;
    double dValue = 99;
    APIModule::int64 llValue = 99;
    bool bValue = !row.asBool;
    std::string strValue = "untouched";
    QJsonObject objectValue{{QStringLiteral("old"), 1}};
    QJsonArray arrayValue{1};
    EXPECT_EQ(CCommonFunc::GetJsonValue(object, key, nValue), 0);
    EXPECT_EQ(CCommonFunc::GetJsonValue(object, key, dValue), 0);
    EXPECT_EQ(CCommonFunc::GetJsonValue(object, key, llValue), 0);
    EXPECT_EQ(CCommonFunc::GetJsonValue(object, key, bValue), 0);
    EXPECT_EQ(CCommonFunc::GetJsonValue(object, key, strValue), 0);
    EXPECT_EQ(CCommonFunc::GetJsonValue(object, key, objectValue), 0);
    EXPECT_EQ(CCommonFunc::GetJsonValue(object, key, arrayValue), 0);

    EXPECT_EQ(nValue, row.asInt);
    EXPECT_EQ(dValue, row.asDouble);
    EXPECT_EQ(llValue, row.asInt64);
    EXPECT_EQ(bValue, row.asBool);
    EXPECT_EQ(strValue, row.asText);
    EXPECT_EQ(objectValue.size(), row.objectKeys);
    EXPECT_EQ(arrayValue.size(), row.arraySize);
    EXPECT_EQ(logs.Take(), LogLines());
}

INSTANTIATE_TEST_SUITE_P(Values, ConversionTest, testing::ValuesIn(kConversions), RowName());

/// Reads with each overload. Expects failure, one log line and unchanged output.
void ExpectFailure(const QJsonObject& object, const QString& key, const testing_support::LogLine& line)
{
    LogRecorder logs;
    const auto expect = [&](auto value) {
        const auto before = value;
        EXPECT_EQ(CCommonFunc::GetJsonValue(object, key, value), -1);
        EXPECT_EQ(value, before);
        EXPECT_EQ(logs.Take(), LogLines{line});
    };
    expect(99);
    expect(9.5);
    expect(APIModule::int64(99));
    expect(true);
    expect(std::string("untouched"));
    expect(QJsonObject{{QStringLiteral("old"), 1}});
    expect(QJsonArray{1});
}

TEST(JsonAccess, EmptyObjectLogsThatItIsEmptyNotTheMissingKey)
{
    ExpectFailure(QJsonObject(), QStringLiteral("k"),
                  {kFile, "APIModule::CCommonFunc::IsEmpty", 6, "Invalid parameter, jsonObject is empty."});
}

TEST(JsonAccess, MissingKeyFails)
{
    ExpectFailure(
        Json(R"({"other": 1})"), QStringLiteral("k"),
        {kFile, "APIModule::CCommonFunc::IsKeyValid", 6, "Invalid key: [k], jsonObject does not contain the key."});
}

TEST(JsonAccess, KeyIsNotUsedAsAFormatString)
{
    ExpectFailure(Json(R"({"other": 1})"), QStringLiteral("%s%n%1"),
                  {kFile, "APIModule::CCommonFunc::IsKeyValid", 6,
                   "Invalid key: [%s%n%1], jsonObject does not contain the key."});
}

TEST(JsonAccess, TextWithZeroByteIsReadCompletely)
{
    std::string text;
    EXPECT_EQ(CCommonFunc::GetJsonValue(Json(R"({"k": "a\u0000b"})"), QStringLiteral("k"), text), 0);
    EXPECT_EQ(text, std::string("a\0b", 3));
}

TEST(JsonAccess, IntegersBeyond53BitsLoseDigitsOnlyInsideContainers)
{
    const QJsonObject object =
        Json(R"({"k": 9007199254740993, "inner": {"k": 9007199254740993, "s": 9007199254740991}})");
    APIModule::int64 value = 0;
    EXPECT_EQ(CCommonFunc::GetJsonValue(object, QStringLiteral("k"), value), 0);
    EXPECT_EQ(value, 9007199254740993);
    QJsonObject inner;
    EXPECT_EQ(CCommonFunc::GetJsonValue(object, QStringLiteral("inner"), inner), 0);
    EXPECT_EQ(CCommonFunc::GetJsonValue(inner, QStringLiteral("k"), value), 0);
    EXPECT_EQ(value, 9007199254740992);
    EXPECT_EQ(CCommonFunc::GetJsonValue(inner, QStringLiteral("s"), value), 0);
    EXPECT_EQ(value, 9007199254740991);
}

TEST(JsonAccess, IsEmptyLogsAnEmptyObject)
{
    LogRecorder logs;
    EXPECT_FALSE(CCommonFunc::IsEmpty(Json(R"({"k": null})")));
    EXPECT_EQ(logs.Take(), LogLines());
    EXPECT_TRUE(CCommonFunc::IsEmpty(QJsonObject()));
    EXPECT_EQ(logs.Take(),
              (LogLines{{kFile, "APIModule::CCommonFunc::IsEmpty", 6, "Invalid parameter, jsonObject is empty."}}));
}

TEST(JsonAccess, IsKeyValidLogsAMissingKey)
{
    LogRecorder logs;
    EXPECT_TRUE(CCommonFunc::IsKeyValid(Json(R"({"k": null})"), QStringLiteral("k")));
    EXPECT_EQ(logs.Take(), LogLines());
    EXPECT_FALSE(CCommonFunc::IsKeyValid(QJsonObject(), QStringLiteral("k")));
    EXPECT_EQ(logs.Take(), (LogLines{{kFile, "APIModule::CCommonFunc::IsKeyValid", 6,
                                      "Invalid key: [k], jsonObject does not contain the key."}}));
}

TEST(TransformToEscaped, EscapesOnlyQuotes)
{
    EXPECT_EQ(CCommonFunc::TransformToEscaped("say \"yes\""), "say \\\"yes\\\"");
    EXPECT_EQ(CCommonFunc::TransformToEscaped("C:\\path"), "C:\\path");
    EXPECT_EQ(CCommonFunc::TransformToEscaped("\\\""), "\\\\\"");
    EXPECT_EQ(CCommonFunc::TransformToEscaped(""), "");
    EXPECT_EQ(CCommonFunc::TransformToEscaped(std::string("\0\"", 2)), std::string("\0\\\"", 3));
    EXPECT_EQ(CCommonFunc::TransformToEscaped("\xC3\xBC"), "\xC3\xBC");
}

}  // namespace
