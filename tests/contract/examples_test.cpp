// The library reads every example reply of the document completely, and fills every field of the record.
#include "Document.h"

#include <support/Rows.h>

#include <gtest/gtest.h>

#include <map>
#include <utility>

namespace contract_tests {
namespace {

/// The paths at which values of a type can occur.
Paths PathsOf(const catalogue::Type& type, const std::string& where = {})
{
    Paths paths;
    if (type.kind == catalogue::Kind::Record) {
        for (const catalogue::Field& field : type.fields) {
            paths.merge(PathsOf(*field.type, where + "/" + std::string(field.name)));
        }
    } else if (type.kind == catalogue::Kind::List) {
        paths = PathsOf(*type.element, where + "/*");
    } else {
        paths.insert(where);
    }
    return paths;
}

/// Other values of the same JSON type; at least one of them is read as a different value.
Json OtherValues(const Json& value)
{
    if (value.is_boolean()) {
        return Json::array({!value.get<bool>()});
    }
    if (value.is_number()) {
        return Json::array({value.get<int64_t>() + 1});
    }
    return Json::array({value.get<std::string>() + "0", "0", "1"});
}

Paths Differences(const Json& left, const Json& right)
{
    Paths paths;
    const Json changes = Json::diff(left, right);
    for (const Json& change : changes) {
        paths.insert(WithoutIndices(change.at("path")));
    }
    return paths;
}

/// Values that the platform sends but the library ignores.
const std::set<std::pair<std::string, std::string>>& IgnoredValues()
{
    static const std::set<std::pair<std::string, std::string>> paths = {
        {"BRMS.GetPageSummaryAlarmPlans", "/totalCount"}};
    return paths;
}

/// Record fields that are missing in a call's reply because several calls share the record.
const std::map<std::string, Paths>& FilledByOtherCalls()
{
    static const std::map<std::string, Paths> paths = {
        {"BRMS.GetNetworkConfig", {"/deviceCode"}},
        {"BRMS.GetEncodeConfig", {"/*/channelId"}},
        {"BRMS.GetImageConfig", {"/channelId"}},
        {"BRMS.GetMultiCastConfig", {"/channelId"}},
        {"BRMS.GetQuickCommands",
         {"/*/executeMode", "/*/httpUrls/*/body", "/*/httpUrls/*/method", "/*/httpUrls/*/seq", "/*/httpUrls/*/url"}},
        {"BRMS.GetAlarmPlanQuickCommands",
         {"/*/enableShortcutKeys", "/*/executeMode", "/*/httpUrls/*/body", "/*/id", "/*/remark", "/*/shortcutKeys"}},
        {"BRMS.GetChannelWebTunnel", {"/token", "/username"}},
        {"BRMS.GetChannelWebAuthorization", {"/https", "/ip", "/port"}}};
    return paths;
}

std::vector<const catalogue::Call*> ReadingCalls()
{
    std::vector<const catalogue::Call*> calls;
    for (const catalogue::Call& call : catalogue::Calls()) {
        if (call.parse != nullptr) {
            calls.push_back(&call);
        }
    }
    return calls;
}

class Example : public testing::TestWithParam<const catalogue::Call*> {
protected:
    static const std::vector<Json>& Examples() { return Document().operation(GetParam()->name).replyExamples; }
};

TEST_P(Example, IsReadCompletely)
{
    const catalogue::Call& call = *GetParam();
    Paths filled;
    for (const Json& example : Examples()) {
        ASSERT_TRUE(example.contains("data")) << example;
        const Json& data = example.at("data");
        const Reading reading = Read(call, data);
        EXPECT_EQ(reading.result, 0) << data;
        const Json values = data.flatten();
        for (const auto& [path, value] : values.items()) {
            if (value.is_null() || IgnoredValues().count({call.name, path}) != 0) {
                continue;  // null stands for an empty list or object
            }
            Paths changed;
            const Json others = OtherValues(value);
            for (const Json& other : others) {
                Json changedData = data;
                changedData[Json::json_pointer(path)] = other;
                changed.merge(Differences(reading.record, Read(call, changedData).record));
            }
            EXPECT_FALSE(changed.empty()) << "the library does not read " << path;
            filled.merge(changed);
        }
    }
    const auto elsewhere = FilledByOtherCalls().find(call.name);
    if (elsewhere != FilledByOtherCalls().end()) {
        for (const std::string& path : elsewhere->second) {
            EXPECT_TRUE(filled.insert(path).second) << path << " is filled";
        }
    }
    EXPECT_EQ(filled, PathsOf(*call.result)) << "the examples lack fields that the library reads";
}

std::string NameOf(const testing::TestParamInfo<const catalogue::Call*>& call)
{
    return std::regex_replace(call.param->name, std::regex("\\."), "_");
}

INSTANTIATE_TEST_SUITE_P(Replies, Example, testing::ValuesIn(ReadingCalls()), NameOf);

TEST(Document, HasAnOperationForEveryCall)
{
    Paths calls;
    for (const catalogue::Call& call : catalogue::Calls()) {
        calls.insert(call.name);
    }
    Paths operations;
    for (const emulator::Operation& operation : Document().operations()) {
        operations.insert(operation.id);
    }
    EXPECT_EQ(operations, calls);
}

TEST(Document, HasDataExactlyForCallsThatReadIt)
{
    for (const catalogue::Call& call : catalogue::Calls()) {
        const Json schema = Document().operation(call.name).dataSchema;
        EXPECT_EQ(schema.value("properties", Json::object()).empty(), call.parse == nullptr) << call.name;
    }
}

}  // namespace
}  // namespace contract_tests
