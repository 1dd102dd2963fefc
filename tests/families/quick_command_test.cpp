// Named lists of HTTP requests that the server stores.
#include "support/Bind.h"
#include "support/Family.h"

#include <BRMS/BRMSModule.h>
#include <BRMS/QuickCommandFields.h>

#include <limits>

namespace {

using namespace family_testing;
using namespace std::string_literals;
using namespace APIModule;

const BodyPack<const QuickCommand&> kAdd(NAMED(CBRMSModule::PacketAddQuickCommand), Method_Post,
                                         "/brms/api/v1.1/config/quick/command");
const UrlPack<const QuickCommand&> kUpdate(NAMED(CBRMSModule::PacketUpdateQuickCommand), Method_Put);
const UrlPack<std::vector<std::string>> kDelete(NAMED(CBRMSModule::PacketDelQuickCommand), Method_Delete,
                                                "/brms/api/v1.1/config/quick/command?ids=");
const UrlPack<const std::string&> kGetPack(NAMED(CBRMSModule::PacketGetQuickCommand), Method_Get,
                                           "/brms/api/v1.1/config/quick/command/");
const UrlPack<const std::string&> kListPack(NAMED(CBRMSModule::PacketGetQuickCommands), Method_Get,
                                            "/brms/api/v1.1/config/quick/command/list?keyword=");
const UrlPack<const std::string&> kOfPlanPack(NAMED(CBRMSModule::PacketGetAlarmPlanQuickCommands), Method_Get,
                                              "/brms/api/v1.1/alarm/plan/");

/// The expected body for both adding and updating a command.
struct BodyRow {
    std::string name;
    QuickCommand command;
    std::string body;
};

const BodyRow kBodies[] = {
    {"complete",
     {"q1",
      "Open gate",
      true,
      "Ctrl+G",
      2,
      "at night",
      {{2, "http://gate.example/open", "{\"door\": 1}", "1"}, {0, "http://gate.example/state", "", "2"}}},
     R"({"quickCommandName": "Open gate", "enableShortcutKeys": "1", "shortcutKeys": "Ctrl+G", "executeMode": "2",
         "remark": "at night",
         "httpUrls": [
             {"method": "2", "url": "http://gate.example/open", "body": "{\"door\": 1}", "seq": "1"},
             {"method": "0", "url": "http://gate.example/state", "body": "", "seq": "2"}]})"},
    {"fresh",
     {},
     R"({"quickCommandName": "", "enableShortcutKeys": "0", "shortcutKeys": "", "executeMode": "0", "remark": "",
         "httpUrls": []})"},
    {"enabled_and_mode_1_are_both_the_text_1",
     {"q1", "n", true, "", 1, "", {}},
     R"({"quickCommandName": "n", "enableShortcutKeys": "1", "shortcutKeys": "", "executeMode": "1", "remark": "",
         "httpUrls": []})"},
    {"disabled_and_negative_mode",
     {"q1", "n", false, "F5", -3, "", {}},
     R"({"quickCommandName": "n", "enableShortcutKeys": "0", "shortcutKeys": "F5", "executeMode": "-3", "remark": "",
         "httpUrls": []})"},
    {"request_with_method_minus_1_is_the_text_minus_1",
     {"q1", "n", false, "", 0, "", {{-1, "u", "b", "s"}}},
     R"({"quickCommandName": "n", "enableShortcutKeys": "0", "shortcutKeys": "", "executeMode": "0", "remark": "",
         "httpUrls": [{"method": "-1", "url": "u", "body": "b", "seq": "s"}]})"},
    {"fresh_request",
     {"q1", "n", false, "", 0, "", {{}}},
     R"({"quickCommandName": "n", "enableShortcutKeys": "0", "shortcutKeys": "", "executeMode": "0", "remark": "",
         "httpUrls": [{"method": "0", "url": "", "body": "", "seq": ""}]})"},
    {"largest_and_smallest_numbers",
     {"q1",
      "",
      false,
      "",
      std::numeric_limits<int>::max(),
      "",
      {{std::numeric_limits<int>::min(), "", "", "-007"}, {std::numeric_limits<int>::max(), "", "", "x"}}},
     R"({"quickCommandName": "", "enableShortcutKeys": "0", "shortcutKeys": "", "executeMode": "2147483647",
         "remark": "",
         "httpUrls": [{"method": "-2147483648", "url": "", "body": "", "seq": "-007"},
                      {"method": "2147483647", "url": "", "body": "", "seq": "x"}]})"},
    {"requests_keep_their_order_and_seq_is_not_checked",
     {"q1", "n", false, "", 0, "", {{1, "c", "", "3"}, {2, "a", "", "1"}, {3, "b", "", ""}}},
     R"({"quickCommandName": "n", "enableShortcutKeys": "0", "shortcutKeys": "", "executeMode": "0", "remark": "",
         "httpUrls": [{"method": "1", "url": "c", "body": "", "seq": "3"},
                      {"method": "2", "url": "a", "body": "", "seq": "1"},
                      {"method": "3", "url": "b", "body": "", "seq": ""}]})"},
    {"texts_with_quotes_line_ends_and_markers",
     {"q1", R"("a\b")", false, "%1", 0, "\r\n\t", {{0, "http://h/?a=%20&b=\"c\"#%1", "[\"%2\"]\n", "%1"}}},
     R"({"quickCommandName": "\"a\\b\"", "enableShortcutKeys": "0", "shortcutKeys": "%1", "executeMode": "0",
         "remark": "\r\n\t",
         "httpUrls": [
             {"method": "0", "url": "http://h/?a=%20&b=\"c\"#%1", "body": "[\"%2\"]\n", "seq": "%1"}]})"},
    {"texts_are_utf8",
     {"q1", "\xC3\xBC", false, "\xE4\xB8\xAD", 0, "\xF0\x9F\x98\x80", {{0, "\xC3\xBC", "invalid \xFF", "\xC3"}}},
     R"({"quickCommandName": "\u00fc", "enableShortcutKeys": "0", "shortcutKeys": "\u4e2d", "executeMode": "0",
         "remark": "\ud83d\ude00",
         "httpUrls": [{"method": "0", "url": "\u00fc", "body": "invalid \ufffd", "seq": "\ufffd"}]})"},
    {"texts_continue_after_a_zero_byte",
     {"q1", "a\0b"s, false, "c\0d"s, 0, "e\0f"s, {{0, "g\0h"s, "i\0j"s, "k\0l"s}}},
     R"({"quickCommandName": "a\u0000b", "enableShortcutKeys": "0", "shortcutKeys": "c\u0000d", "executeMode": "0",
         "remark": "e\u0000f",
         "httpUrls": [{"method": "0", "url": "g\u0000h", "body": "i\u0000j", "seq": "k\u0000l"}]})"},
};

QuickCommand OnlyId(const std::string& id)
{
    QuickCommand command;
    command.id = id;
    return command;
}

std::vector<PackRow> PackRows()
{
    const char* const freshBody = R"({"quickCommandName": "", "enableShortcutKeys": "0", "shortcutKeys": "",
                                      "executeMode": "0", "remark": "", "httpUrls": []})";
    std::vector<PackRow> rows = Joined<PackRow>({
        kUpdate("Update_id_is_sent_only_in_the_url", OnlyId("q7"), "/brms/api/v1.1/config/quick/command/q7", freshBody),
        kUpdate("Update_id_is_not_escaped", OnlyId("a/b&c#%1"), "/brms/api/v1.1/config/quick/command/a/b&c#%1",
                freshBody),
        kUpdate("Update_id_continues_after_a_zero_byte", OnlyId("a\0b"s), "/brms/api/v1.1/config/quick/command/a\0b"s,
                freshBody),

        kDelete("Delete_two_joined_with_a_comma", {"x", "y"}, "x,y"),
        kDelete("Delete_one_has_no_trailing_comma", {"x"}, "x"),
        kDelete("Delete_none", {}, ""),
        kDelete("Delete_empty_ids_keep_their_commas", {"", "y", ""}, ",y,"),
        kDelete("Delete_ids_are_not_escaped", {"x,y", "a&b", "%1"}, "x,y,a&b,%1"),
        kDelete("Delete_ids_are_utf8_and_continue_after_a_zero_byte", {"a\0b"s, "\xC3\xBC\xFF"},
                "a\0b,\xC3\xBC\xEF\xBF\xBD"s),

        TextRows("Get", kGetPack),
        TextRows("List", kListPack),
        TextRows("OfPlan", kOfPlanPack, "/quick/command/list"),
    });
    for (const BodyRow& row : kBodies) {
        rows.push_back(kAdd("Add_" + row.name, row.command, row.body));
        rows.push_back(kUpdate("Update_" + row.name, row.command,
                               "/brms/api/v1.1/config/quick/command/" + row.command.id, row.body));
    }
    return rows;
}

INSTANTIATE_TEST_SUITE_P(QuickCommand, PackTest, testing::ValuesIn(PackRows()), RowName());

const Parse kGet = MakeParse(NAMED(CBRMSModule::ParseGetQuickCommand));
const Parse kList = MakeParse(NAMED(CBRMSModule::ParseGetQuickCommands));
const Parse kOfPlan = MakeParse(NAMED(CBRMSModule::ParseGetAlarmPlanQuickCommands));

const char* const kCommandBefore =
    R"([{"id": "q0", "quickCommandName": "n0", "enableShortcutKeys": true, "shortcutKeys": "F1", "executeMode": 4,
         "remark": "r0", "httpUrls": [{"method": 3, "url": "u0", "body": "b0", "seq": "s0"}]}])";

const std::vector<ParseRow> kParses = Joined<ParseRow>({
    Variations(kGet,
               {Text("id"), Text("quickCommandName"), Text("shortcutKeys"), Text("remark"), Bool("enableShortcutKeys"),
                Int("executeMode"),
                Records<QuickCommandHttpUrl>("httpUrls", {Int("method"), Text("url"), Text("body"), Text("seq")})},
               R"({"id": "q1", "quickCommandName": "Open gate", "enableShortcutKeys": true,
                   "shortcutKeys": "Ctrl+G", "executeMode": 2, "remark": "at night", "httpUrls": [
                       {"method": 2, "url": "http://gate.example/open", "body": "{}", "seq": "1"},
                       {"method": 0, "url": "http://gate.example/state", "body": "", "seq": "2"}]})"),
    Variations(kList,
               {Records<QuickCommand>("results",
                                      {Text("quickCommandName"), Text("id"), Text("shortcutKeys"),
                                       Bool("enableShortcutKeys"), Text("remark")},
                                      kItself)},
               R"({"results": [
                   {"id": "q1", "quickCommandName": "Open gate", "enableShortcutKeys": true,
                    "shortcutKeys": "Ctrl+G", "remark": "at night"},
                   {"id": "q2", "quickCommandName": "Close gate", "enableShortcutKeys": false,
                    "shortcutKeys": "", "remark": ""}]})"),
    Variations(
        kOfPlan,
        {Records<QuickCommand>("results",
                               {Text("quickCommandName"),
                                Records<QuickCommandHttpUrl>("httpUrls", {Int("method"), Text("url"), Text("seq")})},
                               kItself)},
        R"({"results": [
                   {"quickCommandName": "Open gate", "httpUrls": [
                       {"method": 2, "url": "http://gate.example/open", "seq": "1"},
                       {"method": 0, "url": "http://gate.example/state", "seq": "2"}]},
                   {"quickCommandName": "Siren", "httpUrls": [
                       {"method": 1, "url": "http://siren.example/on", "seq": "1"},
                       {"method": 3, "url": "http://siren.example/off", "seq": "2"}]}]})"),
    Row("Get_text_forms_of_flag_and_mode_read_as_true_and_2", kGet,
        R"({"id": "q1", "quickCommandName": "n", "enableShortcutKeys": "1", "shortcutKeys": "F5",
            "executeMode": "2", "remark": "r", "httpUrls": [
                {"method": "-1", "url": "u", "body": "b", "seq": 7}]})",
        "{}", R"({"id": "q1", "quickCommandName": "n", "enableShortcutKeys": true, "shortcutKeys": "F5",
                  "executeMode": 2, "remark": "r", "httpUrls": [
                      {"method": -1, "url": "u", "body": "b", "seq": "7"}]})"),
    Row("Get_text_0_reads_as_false", kGet,
        R"({"id": "q1", "quickCommandName": "n", "enableShortcutKeys": "0", "shortcutKeys": "F5",
            "executeMode": "x", "remark": "r", "httpUrls": []})",
        R"({"enableShortcutKeys": true, "executeMode": 9})",
        R"({"id": "q1", "quickCommandName": "n", "enableShortcutKeys": false, "shortcutKeys": "F5",
            "executeMode": 0, "remark": "r"})"),
    Row("Get_without_remark_has_three_texts_and_not_the_flag", kGet,
        R"({"id": "q1", "quickCommandName": "n", "enableShortcutKeys": true, "shortcutKeys": "F5",
            "executeMode": 2, "httpUrls": []})",
        "{}", R"({"id": "q1", "quickCommandName": "n", "shortcutKeys": "F5"})", MissingKey("remark")),
    Row("Get_second_request_without_body_keeps_the_first", kGet,
        R"({"id": "q1", "quickCommandName": "n", "enableShortcutKeys": true, "shortcutKeys": "F5",
            "executeMode": 2, "remark": "r", "httpUrls": [
                {"method": 1, "url": "u1", "body": "b1", "seq": "1"}, {"method": 2, "url": "u2", "seq": "2"}]})",
        R"({"httpUrls": [{"method": 3, "url": "u0", "body": "b0", "seq": "s0"}]})",
        R"({"id": "q1", "quickCommandName": "n", "enableShortcutKeys": true, "shortcutKeys": "F5",
            "executeMode": 2, "remark": "r", "httpUrls": [{"method": 1, "url": "u1", "body": "b1", "seq": "1"}]})",
        MissingKey("body")),
    Row("Get_of_an_empty_object", kGet, "{}", "{}", "{}", EmptyObject()),
    Row("Get_texts_with_zero_bytes_and_utf8", kGet,
        R"({"id": "a\u0000b", "quickCommandName": "\u00fc\u4e2d", "enableShortcutKeys": false,
            "shortcutKeys": "", "executeMode": -2147483648, "remark": "\"%1\"\n", "httpUrls": [
                {"method": -1, "url": "c\u0000d", "body": "{\"a\": \"%2\"}", "seq": "\ud83d\ude00"}]})",
        "{}", R"({"id": "a\u0000b", "quickCommandName": "\u00fc\u4e2d", "executeMode": -2147483648,
                  "remark": "\"%1\"\n", "httpUrls": [
                      {"method": -1, "url": "c\u0000d", "body": "{\"a\": \"%2\"}", "seq": "\ud83d\ude00"}]})"),
    Row("List_element_without_remark_keeps_earlier_elements", kList, R"({"results": [
            {"id": "q1", "quickCommandName": "n1", "enableShortcutKeys": true, "shortcutKeys": "F2",
             "remark": "r1"},
            {"id": "q2", "quickCommandName": "n2", "enableShortcutKeys": true, "shortcutKeys": "F3"}]})",
        "[]", R"([{"id": "q1", "quickCommandName": "n1", "enableShortcutKeys": true, "shortcutKeys": "F2",
                   "remark": "r1"}])",
        MissingKey("remark")),
    Row("List_ignores_mode_and_requests_of_the_reply", kList, R"({"results": [
            {"id": "q1", "quickCommandName": "n1", "enableShortcutKeys": true, "shortcutKeys": "F2",
             "executeMode": 2, "remark": "r1", "httpUrls": [
                 {"method": 2, "url": "u", "body": "b", "seq": "1"}]}]})",
        "[]", R"([{"id": "q1", "quickCommandName": "n1", "enableShortcutKeys": true, "shortcutKeys": "F2",
                   "executeMode": 0, "remark": "r1"}])"),
    Row("List_empty_results_append_nothing", kList, R"({"results": []})", kCommandBefore, "[]"),
    Row("List_without_results_leaves_the_list_unchanged", kList, R"({"commands": []})", kCommandBefore, "[]",
        MissingKey("results")),
    Row("OfPlan_requests_without_body_parse", kOfPlan, R"({"results": [
            {"quickCommandName": "n1", "httpUrls": [{"method": 2, "url": "u1", "seq": "1"}]}]})",
        "[]", R"([{"quickCommandName": "n1", "httpUrls": [{"method": 2, "url": "u1", "seq": "1"}]}])"),
    Row("OfPlan_request_without_seq_ends_the_parse_and_drops_its_command", kOfPlan, R"({"results": [
            {"quickCommandName": "n1", "httpUrls": [{"method": 2, "url": "u1", "seq": "1"}]},
            {"quickCommandName": "n2", "httpUrls": [{"method": 1, "url": "u2", "seq": "1"},
                                                    {"method": 3, "url": "u3", "body": "b"}]}]})",
        "[]", R"([{"quickCommandName": "n1", "httpUrls": [{"method": 2, "url": "u1", "seq": "1"}]}])",
        MissingKey("seq")),
    Row("OfPlan_ignores_everything_else_in_the_reply", kOfPlan, R"({"results": [
            {"id": "q1", "quickCommandName": "n1", "enableShortcutKeys": true, "shortcutKeys": "F2",
             "executeMode": 2, "remark": "r1", "httpUrls": [
                 {"method": 2, "url": "u1", "body": "b1", "seq": "1"}]}]})",
        "[]", R"([{"quickCommandName": "n1", "enableShortcutKeys": false, "executeMode": 0,
                   "httpUrls": [{"method": 2, "url": "u1", "seq": "1"}]}])"),
    Row("OfPlan_command_without_requests_is_appended", kOfPlan,
        R"({"results": [{"quickCommandName": "n1", "httpUrls": []}]})", "[]", R"([{"quickCommandName": "n1"}])"),
    Row("OfPlan_empty_results_append_nothing", kOfPlan, R"({"results": []})", kCommandBefore, "[]"),
});

INSTANTIATE_TEST_SUITE_P(QuickCommand, ParseTest, testing::ValuesIn(kParses), RowName());

const RecordRow kRecords[] = {
    FieldsOf<QuickCommandHttpUrl>("method url body seq"),
    FieldsOf<QuickCommand>("id quickCommandName enableShortcutKeys shortcutKeys executeMode remark httpUrls"),
};

INSTANTIATE_TEST_SUITE_P(QuickCommand, RecordTest, testing::ValuesIn(kRecords), RowName());

}  // namespace
