// Persons and rules of access points and devices.
#include "support/Bind.h"
#include "support/Family.h"

#include <OBMS/AccessControlFields.h>
#include <OBMS/OBMSModule.h>

namespace {

using namespace family_testing;
using namespace std::string_literals;
using namespace APIModule;

const BodyPack<const GetPageAccessAuthorizePersonsReq&> kAuthorizePersonsPack(
    NAMED(COBMSModule::PacketGetPageAccessAuthorizePersons), Method_Post,
    "/obms/api/v1.1/acs/person/access/authorize/fetch/page");
const UrlPack<const GetManagePersonReq&> kGetManaged(NAMED(COBMSModule::PacketGetManagePersons), Method_Get,
                                                     "/obms/api/v1.1/acs/device/", {Server::Current});
const UrlPack<const SetManagePersonReq&> kSetManaged(NAMED(COBMSModule::PacketSetManagePersons), Method_Put,
                                                     "/obms/api/v1.1/acs/device/");
const UrlPack<const GetPointAccessRules&> kPointRulesPack(NAMED(COBMSModule::PackGetPointRules), Method_Get,
                                                          "/obms/api/v1.1/acp/point/");
const UrlPack<const std::string&> kResetAntiPass(NAMED(COBMSModule::PackPersonResetAntiPass), Method_Post,
                                                 "/obms/api/v1.1/acs/person/");

const std::vector<PackRow> kPacks = Joined<PackRow>({
    kAuthorizePersonsPack(
        "AuthorizePersons_page_0_of_20_and_flag_are_texts", {0, 20, false, "jo", "dev 1", "001", {"7"}},
        R"({"page": "0", "pageSize": "20", "containChild": "0", "keyword": "jo", "deviceCode": "dev 1",
                            "orgCode": "001", "pointIds": ["7"]})"),
    kAuthorizePersonsPack("AuthorizePersons_containChild_and_points_in_order",
                          {3, 50, true, "", "", "", {"b", "a", "b"}},
                          R"({"page": "3", "pageSize": "50", "containChild": "1", "keyword": "", "deviceCode": "",
                            "orgCode": "", "pointIds": ["b", "a", "b"]})"),
    kAuthorizePersonsPack("AuthorizePersons_fresh_sends_an_empty_list_of_points", {},
                          R"({"page": "0", "pageSize": "0", "containChild": "0", "keyword": "", "deviceCode": "",
                            "orgCode": "", "pointIds": []})"),
    kAuthorizePersonsPack("AuthorizePersons_negative_numbers", {-1, -2147483647 - 1, false, "", "", "", {}},
                          R"({"page": "-1", "pageSize": "-2147483648", "containChild": "0", "keyword": "",
                            "deviceCode": "", "orgCode": "", "pointIds": []})"),
    kAuthorizePersonsPack("AuthorizePersons_zero_bytes_are_kept", {1, 2, true, "a\0b"s, "\0"s, "c\0"s, {"d\0e"s}},
                          R"({"page": "1", "pageSize": "2", "containChild": "1", "keyword": "a\u0000b",
                            "deviceCode": "\u0000", "orgCode": "c\u0000", "pointIds": ["d\u0000e"]})"),
    kAuthorizePersonsPack("AuthorizePersons_utf8_quotes_and_markers",
                          {1, 2, true, "\xC3\xBC \xE4\xB8\xAD", R"("q"\)", "%1", {"x\xFF", ""}},
                          R"({"page": "1", "pageSize": "2", "containChild": "1", "keyword": "\u00fc \u4e2d",
                            "deviceCode": "\"q\"\\", "orgCode": "%1", "pointIds": ["x\ufffd", ""]})"),
    TextRows("GetManagePersons_of_the_current_server", kGetManaged, "/manage/person/list"),
    kSetManaged("SetManagePersons", {"1000001", {"2", "1"}}, "1000001/manage/person", R"({"personIds": ["2", "1"]})"),
    kSetManaged("SetManagePersons_empty_list_is_sent", {"1000001", {}}, "1000001/manage/person",
                R"({"personIds": []})"),
    kSetManaged("SetManagePersons_nothing_is_escaped", {"a b/%1?\xC3\xBC\"", {"%1", R"("q"\)", "\xE4\xB8\xAD"}},
                "a b/%1?\xC3\xBC\"/manage/person", R"({"personIds": ["%1", "\"q\"\\", "\u4e2d"]})"),
    kSetManaged("SetManagePersons_zero_bytes_are_kept", {"a\0b"s, {"c\0d"s, ""}}, "a\0b/manage/person"s,
                R"({"personIds": ["c\u0000d", ""]})"),
    kSetManaged("SetManagePersons_invalid_utf8", {"x\xFF", {"y\xC3"}}, "x\xEF\xBF\xBD/manage/person",
                R"({"personIds": ["y\ufffd"]})"),
    kPointRulesPack("GetPointRules", {"77", "2", 1}, "77/rule/list?ruleType=2&hasOfflinePoint=1"),
    kPointRulesPack("GetPointRules_hasOfflinePoint_is_a_decimal_number", {"77", "2", -12},
                    "77/rule/list?ruleType=2&hasOfflinePoint=-12"),
    kPointRulesPack("GetPointRules_fresh", {}, "/rule/list?ruleType=&hasOfflinePoint=0"),
    kPointRulesPack("GetPointRules_nothing_is_escaped", {"a b/?", "\xC3\xBC&\"#", 0},
                    "a b/?/rule/list?ruleType=\xC3\xBC&\"#&hasOfflinePoint=0"),
    kPointRulesPack("GetPointRules_zero_bytes_are_kept", {"a\0b"s, "\0"s, 0},
                    "a\0b/rule/list?ruleType=\0&hasOfflinePoint=0"s),
    kPointRulesPack("GetPointRules_invalid_utf8", {"x\xFF", "\xC3", 0},
                    "x\xEF\xBF\xBD/rule/list?ruleType=\xEF\xBF\xBD&hasOfflinePoint=0"),
    kPointRulesPack("GetPointRules_markers_of_later_parameters_are_replaced", {"a%2b", "t%3", 5},
                    "at5b/rule/list?ruleType=t5&hasOfflinePoint=5"),
    kPointRulesPack("GetPointRules_marker_1_in_the_point_is_replaced_by_the_type", {"%1", "t", 5},
                    "t/rule/list?ruleType=5&hasOfflinePoint=%3"),
    TextRows("PersonResetAntiPass", kResetAntiPass, "/anti-pass-time/reset"),
});

INSTANTIATE_TEST_SUITE_P(AccessControl, PackTest, testing::ValuesIn(kPacks), RowName());

const Parse kAuthorizePersons = MakeParse(NAMED(COBMSModule::ParseGetPageAccessAuthorizePersons));
const Parse kManagePersons = MakeParse(NAMED(COBMSModule::ParseGetManagePersons));
const Parse kPointRules = MakeParse(NAMED(COBMSModule::ParesGetPointRules));

const Reading kOrganizations = Records<PersonOrgInfo>("orgInfos", {Text("orgCode"), Text("orgName")});

const std::vector<ParseRow> kParses = Joined<ParseRow>({
    Variations(kAuthorizePersons,
               {Found("totalCount"), Found("pageData"), Int("totalCount"),
                Records<AccessAuthorizePersonInfo>("pageData", {Text("personId"), Text("personName"), Text("orgCode"),
                                                                Text("orgName"), kOrganizations})},
               R"({"totalCount": 57, "pageData": [
                    {"personId": "1", "personName": "Jo", "orgCode": "001", "orgName": "Root",
                     "orgInfos": [{"orgCode": "002", "orgName": "A"}, {"orgCode": "003", "orgName": "B"}]},
                    {"personId": "2", "personName": "Bo", "orgCode": "004", "orgName": "Branch",
                     "orgInfos": [{"orgCode": "005", "orgName": "C"}, {"orgCode": "006", "orgName": "D"}]}]})"),
    Variations(kManagePersons,
               {Records<ManagePersonInfo>("results",
                                          {Text("personId"), Text("personName"), Text("orgCode"), Text("orgName"),
                                           Text("errorCode"), kOrganizations},
                                          kItself)},
               R"({"results": [
                    {"personId": "1", "personName": "Jo", "orgCode": "001", "orgName": "Root", "errorCode": "0",
                     "orgInfos": [{"orgCode": "002", "orgName": "A"}, {"orgCode": "003", "orgName": "B"}]},
                    {"personId": "2", "personName": "Bo", "orgCode": "004", "orgName": "Branch", "errorCode": "17",
                     "orgInfos": [{"orgCode": "005", "orgName": "C"}, {"orgCode": "006", "orgName": "D"}]}]})"),
    Variations(kPointRules,
               {Records<RuleInfo>(
                   "results", {Text("ruleId"), Text("ruleName"), Text("ruleType"), Bool("hasOfflinePoint")}, kItself)},
               R"({"results": [{"ruleId": "1", "ruleName": "Day", "ruleType": "2", "hasOfflinePoint": true},
                               {"ruleId": "3", "ruleName": "Night", "ruleType": "4", "hasOfflinePoint": false}]})"),
    Row("AuthorizePersons_total_57_without_pageData_leaves_totalCount_unchanged", kAuthorizePersons,
        R"({"totalCount": 57})", R"({"totalCount": 5})", "{}", MissingKey("pageData")),
    Row("AuthorizePersons_without_totalCount_reads_no_page", kAuthorizePersons, R"({"pageData": []})",
        R"({"totalCount": 5})", "{}", MissingKey("totalCount")),
    Row("AuthorizePersons_empty_page_stores_totalCount", kAuthorizePersons, R"({"totalCount": 57, "pageData": []})",
        R"({"totalCount": 5, "pageData": [{"personId": "before"}]})", R"({"totalCount": 57})"),
    Row("AuthorizePersons_pageData_of_null_counts_as_empty", kAuthorizePersons,
        R"({"totalCount": "57", "pageData": null})", R"({"totalCount": 5})", R"({"totalCount": 57})"),
    Row("AuthorizePersons_person_with_empty_orgInfos_is_kept", kAuthorizePersons,
        R"({"totalCount": 1, "pageData": [{"personId": "1", "personName": "Jo", "orgCode": "001",
                                           "orgName": "Root", "orgInfos": []}]})",
        "{}", R"({"totalCount": 1, "pageData": [{"personId": "1", "personName": "Jo", "orgCode": "001",
                                                 "orgName": "Root"}]})"),
    Row("AuthorizePersons_second_person_without_orgName_inside_keeps_the_first_and_the_count", kAuthorizePersons,
        R"({"totalCount": 2, "pageData": [
                {"personId": "1", "personName": "Jo", "orgCode": "001", "orgName": "Root", "orgInfos": []},
                {"personId": "2", "personName": "Bo", "orgCode": "001", "orgName": "Root",
                 "orgInfos": [{"orgCode": "002"}]}]})",
        "{}", R"({"totalCount": 2, "pageData": [{"personId": "1", "personName": "Jo", "orgCode": "001",
                                                 "orgName": "Root"}]})",
        MissingKey("orgName")),
    Row("ManagePersons_of_an_empty_list_leaves_the_vector_unchanged", kManagePersons, R"({"results": []})",
        R"([{"personId": "before", "orgInfos": [{"orgCode": "a", "orgName": "b"}]}])", "[]"),
    Row("ManagePersons_person_with_empty_orgInfos_and_a_number_as_errorCode_is_appended", kManagePersons,
        R"({"results": [{"personId": "1", "personName": "\u00fc", "orgCode": "001", "orgName": "a\u0000b",
                         "errorCode": 17, "orgInfos": []}]})",
        R"([{"personId": "before"}])",
        R"([{"personId": "1", "personName": "\u00fc", "orgCode": "001", "orgName": "a\u0000b",
             "errorCode": "17"}])"),
    Row("ManagePersons_second_without_errorCode_keeps_the_first", kManagePersons, R"({"results": [
                {"personId": "1", "personName": "Jo", "orgCode": "001", "orgName": "Root", "errorCode": "0",
                 "orgInfos": []},
                {"personId": "2", "personName": "Bo", "orgCode": "001", "orgName": "Root", "orgInfos": []}]})",
        "[]", R"([{"personId": "1", "personName": "Jo", "orgCode": "001", "orgName": "Root", "errorCode": "0"}])",
        MissingKey("errorCode")),
    Row("PointRules_of_an_empty_list_leaves_the_vector_unchanged", kPointRules, R"({"results": []})",
        R"([{"ruleId": "before", "hasOfflinePoint": true}])", "[]"),
    Row("PointRules_hasOfflinePoint_is_read_as_a_flag", kPointRules,
        R"({"results": [{"ruleId": "1", "ruleName": "", "ruleType": 2, "hasOfflinePoint": true},
                        {"ruleId": "2", "ruleName": "", "ruleType": "", "hasOfflinePoint": 12},
                        {"ruleId": "3", "ruleName": "", "ruleType": "", "hasOfflinePoint": 0},
                        {"ruleId": "4", "ruleName": "", "ruleType": "", "hasOfflinePoint": "1"},
                        {"ruleId": "5", "ruleName": "", "ruleType": "", "hasOfflinePoint": "false"},
                        {"ruleId": "6", "ruleName": "", "ruleType": "", "hasOfflinePoint": null}]})",
        "[]", R"([{"ruleId": "1", "ruleType": "2", "hasOfflinePoint": true},
                  {"ruleId": "2", "hasOfflinePoint": true},
                  {"ruleId": "3", "hasOfflinePoint": false},
                  {"ruleId": "4", "hasOfflinePoint": true},
                  {"ruleId": "5", "hasOfflinePoint": false},
                  {"ruleId": "6", "hasOfflinePoint": false}])"),
    Row("PointRules_element_that_is_not_an_object_ends_after_the_first", kPointRules,
        R"({"results": [{"ruleId": "1", "ruleName": "Day", "ruleType": "2", "hasOfflinePoint": true}, 7,
                        {"ruleId": "3", "ruleName": "Night", "ruleType": "4", "hasOfflinePoint": false}]})",
        "[]", R"([{"ruleId": "1", "ruleName": "Day", "ruleType": "2", "hasOfflinePoint": true}])", EmptyObject()),
});

INSTANTIATE_TEST_SUITE_P(AccessControl, ParseTest, testing::ValuesIn(kParses), RowName());

const RecordRow kRecords[] = {
    FieldsOf<GetPageAccessAuthorizePersonsReq>("page pageSize containChild keyword deviceCode orgCode pointIds"),
    FieldsOf<PersonOrgInfo>("orgCode orgName"),
    FieldsOf<AccessAuthorizePersonInfo>("personId personName orgCode orgName orgInfos"),
    FieldsOf<GetPageAccessAuthorizePersonsResp>("totalCount pageData"),
    FieldsOf<GetManagePersonReq>("deviceCode"),
    FieldsOf<ManagePersonInfo>("personId personName orgCode orgName errorCode orgInfos"),
    FieldsOf<SetManagePersonReq>("deviceCode personIds"),
    FieldsOf<GetPointAccessRules>("pointId ruleType hasOfflinePoint"),
    FieldsOf<RuleInfo>("ruleId ruleName ruleType hasOfflinePoint"),
};

INSTANTIATE_TEST_SUITE_P(AccessControl, RecordTest, testing::ValuesIn(kRecords), RowName());

}  // namespace
