// Groups of the platform's users.
#include "support/Bind.h"
#include "support/Family.h"

#include <BRMS/BRMSModule.h>
#include <BRMS/UserGroupFields.h>

namespace {

using namespace family_testing;
using namespace std::string_literals;
using namespace APIModule;

const UrlPack<const std::string&> kListPack(NAMED(CBRMSModule::PacketGetUserGroupList), Method_Get,
                                            "/brms/api/v1.1/user/group/list?keyword=");
const UrlPack<const std::string&> kGetPack(NAMED(CBRMSModule::PacketGetUserGroup), Method_Get,
                                           "/brms/api/v1.1/user/group/");
const BodyPack<const AddUserGroupsParam&> kAddPack(NAMED(CBRMSModule::PacketAddUserGroup), Method_Post,
                                                   "/brms/api/v1.1/user/group");
const UrlPack<const std::string&, const AddUserGroupsParam&> kUpdate(NAMED(CBRMSModule::PacketUpdateUserGroup),
                                                                     Method_Put, "/brms/api/v1.1/user/group/");
const BodyPack<const MoveUserGroupsParam&> kMove(NAMED(CBRMSModule::PacketMoveUserGroup), Method_Post,
                                                 "/brms/api/v1.1/user/group/move/batch");
const UrlPack<const std::string&> kClear(NAMED(CBRMSModule::PacketClearUserGroup), Method_Post,
                                         "/brms/api/v1.1/user/group/");
/// Logs the texts of the clear call, but with its own function name.
const UrlPack<const std::vector<std::string>&> kDelete(NAMED(CBRMSModule::PacketDeleteUserGroup), Method_Delete,
                                                       "/brms/api/v1.1/user/group?ids=",
                                                       {Server::OfCaller, "PacketClearUserGroup failed.",
                                                        "PacketClearUserGroup success."});

const std::vector<PackRow> kPacks = Joined<PackRow>({
    TextRows("List", kListPack),
    TextRows("Get", kGetPack),

    kAddPack("Add", {"Night shift", "guards"}, R"({"groupName": "Night shift", "memo": "guards"})"),
    kAddPack("Add_empty_memo_is_sent", {"Night shift", ""}, R"({"groupName": "Night shift", "memo": ""})"),
    kAddPack("Add_fresh", {}, R"({"groupName": "", "memo": ""})"),
    kAddPack("Add_texts_with_quotes_line_ends_and_markers", {R"("a\b")", "%1\n\t{}"},
             R"({"groupName": "\"a\\b\"", "memo": "%1\n\t{}"})"),
    kAddPack("Add_texts_are_utf8", {"\xC3\xBC \xE4\xB8\xAD", "invalid \xFF"},
             R"({"groupName": "\u00fc \u4e2d", "memo": "invalid \ufffd"})"),
    kAddPack("Add_texts_continue_after_a_zero_byte", {"a\0b"s, "\0"s},
             R"({"groupName": "a\u0000b", "memo": "\u0000"})"),

    kUpdate("Update", "g1", {"Day shift", "staff"}, "g1", R"({"groupName": "Day shift", "memo": "staff"})"),
    kUpdate("Update_empty_texts_are_sent", "", {}, "", R"({"groupName": "", "memo": ""})"),
    kUpdate("Update_id_is_not_escaped", "a/b&c#%1", {"n", "m"}, "a/b&c#%1", R"({"groupName": "n", "memo": "m"})"),
    kUpdate("Update_texts_continue_after_a_zero_byte", "g\0x"s, {"a\0b"s, "c\0d"s}, "g\0x"s,
            R"({"groupName": "a\u0000b", "memo": "c\u0000d"})"),

    kMove("Move", {"g1", {"u2", "u1"}}, R"({"userIds": ["u2", "u1"], "groupId": "g1"})"),
    kMove("Move_no_users_is_an_empty_list", {"g1", {}}, R"({"userIds": [], "groupId": "g1"})"),
    kMove("Move_fresh", {}, R"({"userIds": [], "groupId": ""})"),
    kMove("Move_users_given_twice_and_empty", {"g1", {"u1", "", "u1"}},
          R"({"userIds": ["u1", "", "u1"], "groupId": "g1"})"),
    kMove("Move_texts_are_utf8_and_continue_after_a_zero_byte", {"a\0b"s, {"c\0d"s, "\xC3\xBC", "\xFF", "\"%1\""}},
          R"({"userIds": ["c\u0000d", "\u00fc", "\ufffd", "\"%1\""], "groupId": "a\u0000b"})"),

    TextRows("Clear", kClear, "/clear"),

    kDelete("Delete_three_joined_with_commas", {"a", "b", "c"}, "a,b,c"),
    kDelete("Delete_one_has_no_trailing_comma", {"a"}, "a"),
    kDelete("Delete_none", {}, ""),
    kDelete("Delete_empty_ids_keep_their_commas", {"", "b", ""}, ",b,"),
    kDelete("Delete_equal_ids", {"a", "a"}, "a,a"),
    kDelete("Delete_ids_are_not_escaped", {"a,b", "c&d", "%1"}, "a,b,c&d,%1"),
    kDelete("Delete_ids_are_utf8_and_continue_after_a_zero_byte", {"a\0b"s, "\xC3\xBC\xFF"},
            "a\0b,\xC3\xBC\xEF\xBF\xBD"s),
});

INSTANTIATE_TEST_SUITE_P(UserGroup, PackTest, testing::ValuesIn(kPacks), RowName());

const Parse kList = MakeParse(NAMED(CBRMSModule::ParseGetUserGroupList));
const Parse kGet = MakeParse(NAMED(CBRMSModule::ParseGetUserGroup));
const Parse kAdd = MakeParse(NAMED(CBRMSModule::ParseAddUserGroup));

const Readings kGroup{Text("id"), Text("groupName"), Text("memo")};

const std::vector<ParseRow> kParses = Joined<ParseRow>({
    Variations(kList, {Records<UserConfigUserGroups>("results", kGroup, kItself)},
               R"({"results": [{"id": "g1", "groupName": "Night shift", "memo": "guards"},
                               {"id": "g2", "groupName": "Day shift", "memo": ""}], "total": 2})"),
    Variations(kGet, kGroup, R"({"id": "g1", "groupName": "Night shift", "memo": "guards", "users": 3})"),
    Variations(kAdd, {Text("id", kItself)}, R"({"id": "g1"})"),
    Row("List_complete_reply_is_appended", kList, R"({"results": [{"id": "g1", "groupName": "n1", "memo": "m1"},
                                                                  {"id": "g2", "groupName": "n2", "memo": "m2"}]})",
        R"([{"id": "g0", "groupName": "n0", "memo": "m0"}])",
        R"([{"id": "g1", "groupName": "n1", "memo": "m1"}, {"id": "g2", "groupName": "n2", "memo": "m2"}])"),
    Row("List_second_element_without_memo_keeps_the_first", kList,
        R"({"results": [{"id": "g1", "groupName": "n1", "memo": "m1"}, {"id": "g2", "groupName": "n2"},
                        {"id": "g3", "groupName": "n3", "memo": "m3"}]})",
        "[]", R"([{"id": "g1", "groupName": "n1", "memo": "m1"}])", MissingKey("memo")),
    Row("List_without_results_leaves_the_list_unchanged", kList, R"({"pageData": []})",
        R"([{"id": "g0", "groupName": "n0", "memo": "m0"}])", "[]", MissingKey("results")),
    Row("List_of_an_empty_object", kList, "{}", "[]", "[]", EmptyObject()),
    Row("List_empty_results_append_nothing", kList, R"({"results": []})",
        R"([{"id": "g0", "groupName": "n0", "memo": "m0"}])", "[]"),
    Row("List_element_that_is_not_an_object_is_read_as_an_empty_object", kList,
        R"({"results": [{"id": "g1", "groupName": "n1", "memo": "m1"}, "g2"]})", "[]",
        R"([{"id": "g1", "groupName": "n1", "memo": "m1"}])", EmptyObject()),
    Row("Get_without_groupName_keeps_the_id_that_was_read", kGet, R"({"id": "g1", "memo": "m1"})",
        R"({"id": "g0", "groupName": "n0", "memo": "m0"})", R"({"id": "g1"})", MissingKey("groupName")),
    Row("Get_converts_number_null_and_true", kGet, R"({"id": 12, "groupName": null, "memo": true})",
        R"({"id": "g0", "groupName": "n0", "memo": "m0"})", R"({"id": "12", "groupName": "", "memo": "true"})"),
    Row("Get_texts_with_zero_bytes_and_utf8", kGet,
        R"({"id": "a\u0000b", "groupName": "\u00fc\u4e2d\ud83d\ude00", "memo": "\"%1\"\n"})", "{}",
        R"({"id": "a\u0000b", "groupName": "\u00fc\u4e2d\ud83d\ude00", "memo": "\"%1\"\n"})"),
    Row("Add_without_id_leaves_the_text_unchanged", kAdd, R"({"groupId": "g1"})", R"("g0")", R"("g0")",
        MissingKey("id")),
    Row("Add_of_a_number", kAdd, R"({"id": 7})", R"("g0")", R"("7")"),
});

INSTANTIATE_TEST_SUITE_P(UserGroup, ParseTest, testing::ValuesIn(kParses), RowName());

const RecordRow kRecords[] = {
    FieldsOf<UserConfigUserGroups>("id groupName memo"),
    FieldsOf<AddUserGroupsParam>("groupName memo"),
    FieldsOf<MoveUserGroupsParam>("groupId userIds"),
};

INSTANTIATE_TEST_SUITE_P(UserGroup, RecordTest, testing::ValuesIn(kRecords), RowName());

}  // namespace
