// Groups of the platform's users.
#include "support/Bind.h"
#include "support/Family.h"

#include <BRMS/BRMSModule.h>
#include <BRMS/UserGroupFields.h>

namespace {

using namespace family_testing;
using namespace std::string_literals;
using APIModule::AddUserGroupsParam;
using APIModule::CBRMSModule;
using APIModule::Method_Delete;
using APIModule::Method_Get;
using APIModule::Method_Post;
using APIModule::Method_Put;
using APIModule::MoveUserGroupsParam;
using APIModule::UserConfigUserGroups;

PackRow List(const std::string& name, const std::string& keyword, const std::string& url)
{
    return {name, "CBRMSModule::PacketGetUserGroupList",
            Bind<const std::string&>(&CBRMSModule::PacketGetUserGroupList, keyword), Method_Get, url};
}

PackRow Get(const std::string& name, const std::string& groupId, const std::string& url)
{
    return {name, "CBRMSModule::PacketGetUserGroup",
            Bind<const std::string&>(&CBRMSModule::PacketGetUserGroup, groupId), Method_Get, url};
}

PackRow Add(const std::string& name, const AddUserGroupsParam& group, const std::string& body)
{
    return {name,
            "CBRMSModule::PacketAddUserGroup",
            Bind<const AddUserGroupsParam&>(&CBRMSModule::PacketAddUserGroup, group),
            Method_Post,
            "/brms/api/v1.1/user/group",
            body};
}

PackRow Update(const std::string& name, const std::string& groupId, const AddUserGroupsParam& group,
               const std::string& url, const std::string& body)
{
    return {name,
            "CBRMSModule::PacketUpdateUserGroup",
            Bind<const std::string&, const AddUserGroupsParam&>(&CBRMSModule::PacketUpdateUserGroup, groupId, group),
            Method_Put,
            url,
            body};
}

PackRow Move(const std::string& name, const MoveUserGroupsParam& move, const std::string& body)
{
    return {name,
            "CBRMSModule::PacketMoveUserGroup",
            Bind<const MoveUserGroupsParam&>(&CBRMSModule::PacketMoveUserGroup, move),
            Method_Post,
            "/brms/api/v1.1/user/group/move/batch",
            body};
}

PackRow Clear(const std::string& name, const std::string& groupId, const std::string& url)
{
    return {name, "CBRMSModule::PacketClearUserGroup",
            Bind<const std::string&>(&CBRMSModule::PacketClearUserGroup, groupId), Method_Post, url};
}

/// Its log texts are those of the clear call, under its own function name.
PackRow Delete(const std::string& name, const std::vector<std::string>& groupIds, const std::string& url)
{
    PackRow row{name, "CBRMSModule::PacketDeleteUserGroup",
                Bind<const std::vector<std::string>&>(&CBRMSModule::PacketDeleteUserGroup, groupIds), Method_Delete,
                url};
    row.failed = "PacketClearUserGroup failed.";
    row.success = "PacketClearUserGroup success.";
    return row;
}

const PackRow kPacks[] = {
    List("List", "night", "/brms/api/v1.1/user/group/list?keyword=night"),
    List("List_empty_keyword_leaves_nothing_behind_the_equals_sign", "", "/brms/api/v1.1/user/group/list?keyword="),
    List("List_keyword_with_ampersand_and_hash_is_not_escaped", "a&b#c",
         "/brms/api/v1.1/user/group/list?keyword=a&b#c"),
    List("List_keyword_with_space_percent_and_quote", "a %20 \"b\"",
         "/brms/api/v1.1/user/group/list?keyword=a %20 \"b\""),
    List("List_keyword_with_marker_stays", "%1%2b", "/brms/api/v1.1/user/group/list?keyword=%1%2b"),
    List("List_keyword_is_utf8", "\xC3\xBC\xE4\xB8\xAD\xF0\x9F\x98\x80",
         "/brms/api/v1.1/user/group/list?keyword=\xC3\xBC\xE4\xB8\xAD\xF0\x9F\x98\x80"),
    List("List_keyword_of_invalid_utf8_is_replaced", "a\xFF", "/brms/api/v1.1/user/group/list?keyword=a\xEF\xBF\xBD"),
    List("List_keyword_goes_on_behind_a_zero_byte", "a\0b"s, "/brms/api/v1.1/user/group/list?keyword=a\0b"s),

    Get("Get", "g1", "/brms/api/v1.1/user/group/g1"),
    Get("Get_empty_id", "", "/brms/api/v1.1/user/group/"),
    Get("Get_id_is_not_escaped", "a/b?c&d#e %1", "/brms/api/v1.1/user/group/a/b?c&d#e %1"),
    Get("Get_id_goes_on_behind_a_zero_byte", "a\0b"s, "/brms/api/v1.1/user/group/a\0b"s),

    Add("Add", {"Night shift", "guards"}, R"({"groupName": "Night shift", "memo": "guards"})"),
    Add("Add_empty_memo_is_sent", {"Night shift", ""}, R"({"groupName": "Night shift", "memo": ""})"),
    Add("Add_fresh", {}, R"({"groupName": "", "memo": ""})"),
    Add("Add_texts_with_quotes_line_ends_and_markers", {R"("a\b")", "%1\n\t{}"},
        R"({"groupName": "\"a\\b\"", "memo": "%1\n\t{}"})"),
    Add("Add_texts_are_utf8", {"\xC3\xBC \xE4\xB8\xAD", "invalid \xFF"},
        R"({"groupName": "\u00fc \u4e2d", "memo": "invalid \ufffd"})"),
    Add("Add_texts_go_on_behind_a_zero_byte", {"a\0b"s, "\0"s}, R"({"groupName": "a\u0000b", "memo": "\u0000"})"),

    Update("Update", "g1", {"Day shift", "staff"}, "/brms/api/v1.1/user/group/g1",
           R"({"groupName": "Day shift", "memo": "staff"})"),
    Update("Update_empty_texts_are_sent", "", {}, "/brms/api/v1.1/user/group/", R"({"groupName": "", "memo": ""})"),
    Update("Update_id_is_not_escaped", "a/b&c#%1", {"n", "m"}, "/brms/api/v1.1/user/group/a/b&c#%1",
           R"({"groupName": "n", "memo": "m"})"),
    Update("Update_texts_go_on_behind_a_zero_byte", "g\0x"s, {"a\0b"s, "c\0d"s}, "/brms/api/v1.1/user/group/g\0x"s,
           R"({"groupName": "a\u0000b", "memo": "c\u0000d"})"),

    Move("Move", {"g1", {"u2", "u1"}}, R"({"userIds": ["u2", "u1"], "groupId": "g1"})"),
    Move("Move_no_users_is_an_empty_list", {"g1", {}}, R"({"userIds": [], "groupId": "g1"})"),
    Move("Move_fresh", {}, R"({"userIds": [], "groupId": ""})"),
    Move("Move_users_given_twice_and_empty", {"g1", {"u1", "", "u1"}},
         R"({"userIds": ["u1", "", "u1"], "groupId": "g1"})"),
    Move("Move_texts_are_utf8_and_go_on_behind_a_zero_byte", {"a\0b"s, {"c\0d"s, "\xC3\xBC", "\xFF", "\"%1\""}},
         R"({"userIds": ["c\u0000d", "\u00fc", "\ufffd", "\"%1\""], "groupId": "a\u0000b"})"),

    Clear("Clear", "g1", "/brms/api/v1.1/user/group/g1/clear"),
    Clear("Clear_empty_id", "", "/brms/api/v1.1/user/group//clear"),
    Clear("Clear_id_is_not_escaped", "a/b&c#%1", "/brms/api/v1.1/user/group/a/b&c#%1/clear"),
    Clear("Clear_id_goes_on_behind_a_zero_byte", "a\0b"s, "/brms/api/v1.1/user/group/a\0b/clear"s),

    Delete("Delete_three_joined_with_commas", {"a", "b", "c"}, "/brms/api/v1.1/user/group?ids=a,b,c"),
    Delete("Delete_one_has_no_trailing_comma", {"a"}, "/brms/api/v1.1/user/group?ids=a"),
    Delete("Delete_none", {}, "/brms/api/v1.1/user/group?ids="),
    Delete("Delete_empty_ids_keep_their_commas", {"", "b", ""}, "/brms/api/v1.1/user/group?ids=,b,"),
    Delete("Delete_equal_ids", {"a", "a"}, "/brms/api/v1.1/user/group?ids=a,a"),
    Delete("Delete_ids_are_not_escaped", {"a,b", "c&d", "%1"}, "/brms/api/v1.1/user/group?ids=a,b,c&d,%1"),
    Delete("Delete_ids_are_utf8_and_go_on_behind_a_zero_byte", {"a\0b"s, "\xC3\xBC\xFF"},
           "/brms/api/v1.1/user/group?ids=a\0b,\xC3\xBC\xEF\xBF\xBD"s),
};

INSTANTIATE_TEST_SUITE_P(UserGroup, PackTest, testing::ValuesIn(kPacks), RowName());

const Parse kList = MakeParse("CBRMSModule::ParseGetUserGroupList", &CBRMSModule::ParseGetUserGroupList);
const Parse kGet = MakeParse("CBRMSModule::ParseGetUserGroup", &CBRMSModule::ParseGetUserGroup);
const Parse kAdd = MakeParse("CBRMSModule::ParseAddUserGroup", &CBRMSModule::ParseAddUserGroup);

std::vector<ParseRow> ParseRows()
{
    const Readings group{Text("id"), Text("groupName"), Text("memo")};
    return Joined({
        Variations(kList, {Records<UserConfigUserGroups>("results", group, kItself)},
                   R"({"results": [{"id": "g1", "groupName": "Night shift", "memo": "guards"},
                                   {"id": "g2", "groupName": "Day shift", "memo": ""}], "total": 2})"),
        Variations(kGet, group, R"({"id": "g1", "groupName": "Night shift", "memo": "guards", "users": 3})"),
        Variations(kAdd, {Text("id", kItself)}, R"({"id": "g1"})"),
        {
            Row("List_whole_behind_what_the_list_holds", kList,
                R"({"results": [{"id": "g1", "groupName": "n1", "memo": "m1"},
                                {"id": "g2", "groupName": "n2", "memo": "m2"}]})",
                R"([{"id": "g0", "groupName": "n0", "memo": "m0"}])", 0,
                R"([{"id": "g0", "groupName": "n0", "memo": "m0"}, {"id": "g1", "groupName": "n1", "memo": "m1"},
                    {"id": "g2", "groupName": "n2", "memo": "m2"}])"),
            Row("List_second_element_without_memo_keeps_the_first", kList,
                R"({"results": [{"id": "g1", "groupName": "n1", "memo": "m1"}, {"id": "g2", "groupName": "n2"},
                                {"id": "g3", "groupName": "n3", "memo": "m3"}]})",
                "[]", -1, R"([{"id": "g1", "groupName": "n1", "memo": "m1"}])", {MissingKey("memo")}),
            Row("List_without_results_leaves_the_list", kList, R"({"pageData": []})",
                R"([{"id": "g0", "groupName": "n0", "memo": "m0"}])", -1,
                R"([{"id": "g0", "groupName": "n0", "memo": "m0"}])", {MissingKey("results")}),
            Row("List_of_an_empty_object", kList, "{}", "[]", -1, "[]", {EmptyObject()}),
            Row("List_empty_results_append_nothing", kList, R"({"results": []})",
                R"([{"id": "g0", "groupName": "n0", "memo": "m0"}])", 0,
                R"([{"id": "g0", "groupName": "n0", "memo": "m0"}])"),
            Row("List_element_that_is_no_object_reads_as_an_empty_one", kList,
                R"({"results": [{"id": "g1", "groupName": "n1", "memo": "m1"}, "g2"]})", "[]", -1,
                R"([{"id": "g1", "groupName": "n1", "memo": "m1"}])", {EmptyObject()}),
            Row("Get_without_groupName_keeps_the_id_that_was_read", kGet, R"({"id": "g1", "memo": "m1"})",
                R"({"id": "g0", "groupName": "n0", "memo": "m0"})", -1,
                R"({"id": "g1", "groupName": "n0", "memo": "m0"})", {MissingKey("groupName")}),
            Row("Get_converts_number_null_and_true", kGet, R"({"id": 12, "groupName": null, "memo": true})",
                R"({"id": "g0", "groupName": "n0", "memo": "m0"})", 0,
                R"({"id": "12", "groupName": "", "memo": "true"})"),
            Row("Get_texts_with_zero_bytes_and_utf8", kGet,
                R"({"id": "a\u0000b", "groupName": "\u00fc\u4e2d\ud83d\ude00", "memo": "\"%1\"\n"})",
                R"({"id": "", "groupName": "", "memo": ""})", 0,
                R"({"id": "a\u0000b", "groupName": "\u00fc\u4e2d\ud83d\ude00", "memo": "\"%1\"\n"})"),
            Row("Add_without_id_leaves_the_text", kAdd, R"({"groupId": "g1"})", R"("g0")", -1, R"("g0")",
                {MissingKey("id")}),
            Row("Add_of_a_number", kAdd, R"({"id": 7})", R"("g0")", 0, R"("7")"),
        },
    });
}

INSTANTIATE_TEST_SUITE_P(UserGroup, ParseTest, testing::ValuesIn(ParseRows()), RowName());

const RecordRow kRecords[] = {
    FieldsOf<APIModule::UserConfigUserGroups>("UserConfigUserGroups", "id groupName memo"),
    FieldsOf<APIModule::AddUserGroupsParam>("AddUserGroupsParam", "groupName memo"),
    FieldsOf<APIModule::MoveUserGroupsParam>("MoveUserGroupsParam", "groupId userIds"),
};

INSTANTIATE_TEST_SUITE_P(UserGroup, RecordTest, testing::ValuesIn(kRecords), RowName());

}  // namespace
