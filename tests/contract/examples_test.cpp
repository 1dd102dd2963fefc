// The library reads every example reply of the document completely, and fills every field of the record.
#include "Document.h"

#include <support/Rows.h>

#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <set>
#include <utility>

namespace contract_tests {
namespace {

using Places = std::set<std::string>;

/// "/lots/*/name" for "/lots/0/name".
std::string WithoutIndices(const std::string& pointer)
{
    static const std::regex index("/[0-9]+(?=/|$)");
    return std::regex_replace(pointer, index, "/*");
}

/// Where values of a type can occur.
Places PlacesOf(const catalogue::Type& type, const std::string& where = {})
{
    Places places;
    if (type.kind == catalogue::Kind::Record) {
        for (const catalogue::Field& field : type.fields) {
            places.merge(PlacesOf(*field.type, where + "/" + std::string(field.name)));
        }
    } else if (type.kind == catalogue::Kind::List) {
        places = PlacesOf(*type.element, where + "/*");
    } else {
        places.insert(where);
    }
    return places;
}

/// Other values of the same JSON type; one of them at least means something else than the value.
Json Others(const Json& value)
{
    if (value.is_boolean()) {
        return Json::array({!value.get<bool>()});
    }
    if (value.is_number()) {
        return Json::array({value.get<int64_t>() + 1});
    }
    return Json::array({value.get<std::string>() + "0", "0", "1"});
}

Places Differences(const Json& left, const Json& right)
{
    Places places;
    const Json changes = Json::diff(left, right);
    for (const Json& change : changes) {
        places.insert(WithoutIndices(change.at("path")));
    }
    return places;
}

/// Values that the platform sends and the library ignores.
const std::set<std::pair<std::string, std::string>>& NotRead()
{
    static const std::set<std::pair<std::string, std::string>> places = {
        {"BRMS.GetPageSummaryAlarmPlans", "/totalCount"}};
    return places;
}

/// Fields of records that several calls share, which the reply of this one has not.
const std::map<std::string, Places>& FilledByOtherCalls()
{
    static const std::map<std::string, Places> places = {
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
    return places;
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
    Places filled;
    for (const Json& example : Examples()) {
        ASSERT_TRUE(example.contains("data")) << example;
        const Json& data = example.at("data");
        const Reading reading = Read(call, data);
        EXPECT_EQ(reading.result, 0) << data;
        const Json values = data.flatten();
        for (const auto& [place, value] : values.items()) {
            if (value.is_null() || NotRead().count({call.name, place}) != 0) {
                continue;  // null stands for an empty list or object
            }
            Places changed;
            const Json others = Others(value);
            for (const Json& other : others) {
                Json changedData = data;
                changedData[Json::json_pointer(place)] = other;
                changed.merge(Differences(reading.record, Read(call, changedData).record));
            }
            EXPECT_FALSE(changed.empty()) << "nobody reads " << place;
            filled.merge(changed);
        }
    }
    const auto elsewhere = FilledByOtherCalls().find(call.name);
    if (elsewhere != FilledByOtherCalls().end()) {
        for (const std::string& place : elsewhere->second) {
            EXPECT_TRUE(filled.insert(place).second) << place << " is filled";
        }
    }
    EXPECT_EQ(filled, PlacesOf(*call.result)) << "the examples do not show all that is read";
}

std::string NameOf(const testing::TestParamInfo<const catalogue::Call*>& call)
{
    return std::regex_replace(call.param->name, std::regex("\\."), "_");
}

INSTANTIATE_TEST_SUITE_P(Replies, Example, testing::ValuesIn(ReadingCalls()), NameOf);

TEST(Document, HasTheCallsOfTheLibrary)
{
    Places calls;
    for (const catalogue::Call& call : catalogue::Calls()) {
        calls.insert(call.name);
    }
    Places operations;
    for (const emulator::Operation& operation : Document().operations()) {
        operations.insert(operation.id);
    }
    EXPECT_EQ(operations, calls);
}

TEST(Document, HasDataForTheCallsThatReadThem)
{
    for (const catalogue::Call& call : catalogue::Calls()) {
        const Json schema = Document().operation(call.name).dataSchema;
        EXPECT_EQ(schema.value("properties", Json::object()).empty(), call.parse == nullptr) << call.name;
    }
}

}  // namespace
}  // namespace contract_tests
