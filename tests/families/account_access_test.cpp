// The rights of the account, and access to the web page of a device.
#include "support/Bind.h"
#include "support/Family.h"

#include <BRMS/AccountAccessFields.h>
#include <BRMS/BRMSModule.h>

namespace {

using namespace family_testing;
using namespace std::string_literals;
using namespace APIModule;

const BodyPack<FunctionChannelCheck&> kCheckPack(NAMED(CBRMSModule::PacketFunctionChannelCheck), Method_Post,
                                                 "/brms/api/v1.1/account/function/channel/check");
const UrlPack<const DeviceCategoryParamReq&> kCountPack(
    NAMED(CBRMSModule::PacketGetDeviceCategoryCount), Method_Get,
    "/brms/api/v1.1/device/statistics/count-by-device-category/list?");

const std::vector<PackRow> kPacks = Joined<PackRow>({
    PackRow{"GetDeriveToken", NAMED(CBRMSModule::PacketGetDeriveToken), Method_Post,
            "/brms/api/v1.1/account/token/derive"},
    PackRow{"GetPermissionResourceCollection", NAMED(CBRMSModule::PacketGetPermissionResourceCollection), Method_Get,
            "/brms/api/v1.1/account/permission/resource/collection"},

    kCheckPack("Check", {"c1", "PLAYBACK"}, R"({"channelId": "c1", "functionCode": "PLAYBACK"})"),
    kCheckPack("Check_fresh", {}, R"({"channelId": "", "functionCode": ""})"),
    kCheckPack("Check_texts_with_quotes_line_ends_and_markers", {R"("a\b")", "%1\n"},
               R"({"channelId": "\"a\\b\"", "functionCode": "%1\n"})"),
    kCheckPack("Check_texts_are_utf8", {"\xC3\xBC\xE4\xB8\xAD", "invalid \xFF"},
               R"({"channelId": "\u00fc\u4e2d", "functionCode": "invalid \ufffd"})"),
    kCheckPack("Check_texts_continue_after_a_zero_byte", {"a\0b"s, "c\0d"s},
               R"({"channelId": "a\u0000b", "functionCode": "c\u0000d"})"),

    kCountPack("Count", {"k", "o", "d", "p", "s", "c"},
               "keyword=k&orgCode=o&domain=d&permitted=p&sourceType=s&containChild=c"),
    kCountPack("Count_with_only_the_keyword_cam", {"cam", "", "", "", "", ""},
               "keyword=cam&orgCode=&domain=&permitted=&sourceType=&containChild="),
    kCountPack("Count_fresh", {}, "keyword=&orgCode=&domain=&permitted=&sourceType=&containChild="),
    kCountPack("Count_is_not_escaped", {"a&b#c", "0 01", "x/y?", "\"", "+", "%20"},
               "keyword=a&b#c&orgCode=0 01&domain=x/y?&permitted=\"&sourceType=+&containChild=%20"),
    kCountPack("Count_marker_in_a_field_is_replaced_by_later_fields", {"a%2b", "ORG", "D", "P", "S", "C"},
               "keyword=aORGb&orgCode=ORG&domain=D&permitted=P&sourceType=S&containChild=C"),
    kCountPack("Count_lowest_marker_is_replaced_first", {"%1", "ORG", "D", "P", "S", "C"},
               "keyword=ORG&orgCode=D&domain=P&permitted=S&sourceType=C&containChild=%6"),
    kCountPack("Count_marker_in_the_last_field_is_kept", {"k", "o", "d", "p", "s", "%1%6"},
               "keyword=k&orgCode=o&domain=d&permitted=p&sourceType=s&containChild=%1%6"),
    kCountPack("Count_marker_beyond_the_parameters_is_kept", {"%9", "o", "d", "p", "s", "c"},
               "keyword=%9&orgCode=o&domain=d&permitted=p&sourceType=s&containChild=c"),
    kCountPack("Count_is_utf8_and_continues_after_a_zero_byte", {"\xC3\xBC", "a\0b"s, "\xFF", "", "", "\0"s},
               "keyword=\xC3\xBC&orgCode=a\0b&domain=\xEF\xBF\xBD&permitted=&sourceType=&containChild=\0"s),
    kCountPack("Count_every_text_continues_after_a_zero_byte", {"k\0k"s, "o\0o"s, "d\0d"s, "p\0p"s, "s\0s"s, "c\0c"s},
               "keyword=k\0k&orgCode=o\0o&domain=d\0d&permitted=p\0p&sourceType=s\0s&containChild=c\0c"s),

    TextRows("GetChannelWebTunnel",
             UrlPack<const std::string&>(NAMED(CBRMSModule::PacketGetChannelWebTunnel), Method_Get,
                                         "/brms/api/v1.1/device/channel/"),
             "/web/tunnel"),
    TextRows("GetChannelWebAuthorization",
             UrlPack<const std::string&>(NAMED(CBRMSModule::PacketGetChannelWebAuthorization), Method_Get,
                                         "/brms/api/v1.1/device/channel/"),
             "/web/authorization"),
    TextRows("GetChannelWebEnablement",
             UrlPack<const std::string&>(NAMED(CBRMSModule::PacketGetChannelWebEnablement), Method_Get,
                                         "/brms/api/v1.1/device/channel/"),
             "/web/enablement"),
    TextRows(
        "GetWebEnablement",
        UrlPack<const std::string&>(NAMED(CBRMSModule::PacketGetWebEnablement), Method_Get, "/brms/api/v1.1/device/"),
        "/web/enablement"),
    TextRows(
        "GetMenuAvailable",
        UrlPack<const std::string&>(NAMED(CBRMSModule::PacketGetMenuAvailable), Method_Get, "/brms/api/v1.1/menu/"),
        "/available"),
});

INSTANTIATE_TEST_SUITE_P(AccountAccess, PackTest, testing::ValuesIn(kPacks), RowName());

const Parse kTunnel = MakeParse(NAMED(CBRMSModule::ParseGetChannelWebTunnel));
const Parse kAuthorization = MakeParse(NAMED(CBRMSModule::ParseGetChannelWebAuthorization));
const Parse kChannelWeb = MakeParse(NAMED(CBRMSModule::ParseGetChannelWebEnablement));
const Parse kDeviceWeb = MakeParse(NAMED(CBRMSModule::ParseGetWebEnablement));
const Parse kMenu = MakeParse(NAMED(CBRMSModule::ParseGetMenuAvailable));
const Parse kToken = MakeParse(NAMED(CBRMSModule::ParseGetDeriveToken));
const Parse kPermissions = MakeParse(NAMED(CBRMSModule::ParseGetPermissionResourceCollection));
const Parse kCheck = MakeParse(NAMED(CBRMSModule::ParseFunctionChannelCheck));
const Parse kCount = MakeParse(NAMED(CBRMSModule::ParseGetGetDeviceCategoryCount));

/// Rows for the conversion of "authorized".
std::vector<ParseRow> CheckRows()
{
    const struct {
        const char* name;
        const char* value;
        int authorized;
    } cases[] = {
        {"text_1", R"("1")", 1},
        {"text_0", R"("0")", 0},
        {"text_true", R"("true")", 0},
        {"empty_text", R"("")", 0},
        {"text_12abc", R"("12abc")", 12},
        {"negative_text", R"("-3")", -3},
        {"text_with_plus_sign", R"("+4")", 4},
        {"text_with_spaces", R"("  5 6")", 5},
        {"text_of_a_fraction", R"("1.9")", 1},
        {"text_of_hexadecimal_digits", R"("0x10")", 0},
        {"text_with_leading_zeros", R"("0010")", 10},
        {"text_that_continues_after_a_zero_byte", R"("1\u00002")", 1},
        {"largest_number", R"("2147483647")", 2147483647},
        {"number_1", "1", 1},
        {"number_0", "0", 0},
        {"fraction", "2.7", 2},
        {"true", "true", 0},
        {"false", "false", 0},
        {"null", "null", 0},
        {"object", R"({"authorized": "1"})", 0},
        {"array", R"(["1"])", 0},
    };
    std::vector<ParseRow> rows{
        Row("Check_without_authorized", kCheck, R"({"result": "1"})", R"({"authorized": 8})", "{}",
            MissingKey("authorized")),
        Row("Check_of_an_empty_object", kCheck, "{}", R"({"authorized": 8})", "{}", EmptyObject()),
    };
    for (const auto& row : cases) {
        rows.push_back(Row(std::string("Check_of_") + row.name, kCheck,
                           std::string(R"({"authorized": )") + row.value + "}", R"({"authorized": 8})",
                           Json{{"authorized", row.authorized}}.dump()));
    }
    return rows;
}

const std::vector<ParseRow> kParses = Joined<ParseRow>({
    Variations(kTunnel, {Bool("https"), Int("port"), Text("ip")},
               R"({"https": true, "port": 8443, "ip": "10.0.0.9", "username": "admin", "token": "t"})"),
    Variations(kAuthorization, {Text("username"), Text("token")},
               R"({"https": true, "port": 8443, "ip": "10.0.0.9", "username": "admin", "token": "t"})"),
    Variations(kChannelWeb, {Bool("enableWeb", kItself)}, R"({"enableWeb": true})"),
    Variations(kDeviceWeb, {Bool("enableWeb", kItself)}, R"({"enableWeb": true})"),
    Variations(kMenu, {Bool("available", kItself)}, R"({"available": true})"),
    Variations(kToken, {Text("token", kItself)}, R"({"token": "derived"})"),
    Variations(kPermissions,
               {Found("menuFunctionCodes"), Found("localConfigItemCodes"), Texts("menuFunctionCodes"),
                Texts("localConfigItemCodes")},
               R"({"menuFunctionCodes": ["MENU_MAP", "MENU_VIDEO"], "localConfigItemCodes": ["a", "b", "c"]})"),
    Variations(kCount,
               {Records<DeviceCategoryQueryResult>("results", {Int("deviceCategory"), Int("deviceCount")}, kItself)},
               R"({"results": [{"deviceCategory": 1, "deviceCount": 250},
                               {"deviceCategory": 8, "deviceCount": 0}]})"),
    CheckRows(),
    Row("Tunnel_without_ip_has_https_and_port", kTunnel, R"({"https": true, "port": 8443})",
        R"({"port": 1, "ip": "i", "username": "u", "token": "t"})", R"({"https": true, "port": 8443})",
        MissingKey("ip")),
    Row("Tunnel_after_authorization_keeps_user_name_and_token", kTunnel,
        R"({"https": false, "port": 80, "ip": "10.0.0.9"})", R"({"https": true, "username": "admin", "token": "t"})",
        R"({"https": false, "port": 80, "ip": "10.0.0.9"})"),
    Row("Tunnel_of_text_forms", kTunnel, R"({"https": "1", "port": "8443", "ip": null})", R"({"ip": "i"})",
        R"({"https": true, "port": 8443, "ip": ""})"),
    Row("Authorization_after_tunnel_keeps_the_tunnel", kAuthorization,
        R"({"username": "admin", "token": "a\u0000b\u00fc"})", R"({"https": true, "port": 8443, "ip": "10.0.0.9"})",
        R"({"username": "admin", "token": "a\u0000b\u00fc"})"),
    Row("Authorization_without_token_has_the_user_name", kAuthorization, R"({"username": "admin"})",
        R"({"https": true, "port": 8443, "ip": "i", "token": "t"})", R"({"username": "admin"})", MissingKey("token")),
    Row("ChannelWeb_of_text_0", kChannelWeb, R"({"enableWeb": "0"})", "true", "false"),
    Row("DeviceWeb_of_number_1", kDeviceWeb, R"({"enableWeb": 1})", "false", "true"),
    Row("Menu_without_available", kMenu, R"({"enableWeb": true})", "true", "true", MissingKey("available")),
    Row("Permissions_of_a_text_and_a_number", kPermissions,
        R"({"menuFunctionCodes": ["a", 5], "localConfigItemCodes": []})", "{}", R"({"menuFunctionCodes": ["a", ""]})"),
    Row("Permissions_elements_of_all_types", kPermissions, R"({"menuFunctionCodes": [], "localConfigItemCodes":
                [null, true, 1.5, {"a": "b"}, ["c"], "", "d\u0000e\u00fc"]})",
        "{}", R"({"localConfigItemCodes": ["", "", "", "", "", "", "d\u0000e\u00fc"]})"),
    Row("Permissions_without_localConfigItemCodes_leave_both_lists_unchanged", kPermissions,
        R"({"menuFunctionCodes": ["a", "b"]})", R"({"menuFunctionCodes": ["m0"], "localConfigItemCodes": ["l0"]})",
        "{}", MissingKey("localConfigItemCodes")),
    Row("Permissions_without_both_lists_log_one_line", kPermissions, R"({"other": []})",
        R"({"menuFunctionCodes": ["m0"], "localConfigItemCodes": ["l0"]})", "{}", MissingKey("menuFunctionCodes")),
    Row("Permissions_are_appended", kPermissions, R"({"menuFunctionCodes": ["a"], "localConfigItemCodes": ["b", "c"]})",
        R"({"menuFunctionCodes": ["m0"], "localConfigItemCodes": ["l0"]})",
        R"({"menuFunctionCodes": ["a"], "localConfigItemCodes": ["b", "c"]})"),
    Row("Count_second_element_without_deviceCount_keeps_the_first", kCount,
        R"({"results": [{"deviceCategory": 1, "deviceCount": 250}, {"deviceCategory": 8}]})",
        R"([{"deviceCategory": 2, "deviceCount": 3}])", R"([{"deviceCategory": 1, "deviceCount": 250}])",
        MissingKey("deviceCount")),
    Row("Count_without_results_leaves_the_list_unchanged", kCount, R"({"deviceCategory": 1, "deviceCount": 250})",
        R"([{"deviceCategory": 2, "deviceCount": 3}])", "[]", MissingKey("results")),
    Row("Count_empty_results_append_nothing", kCount, R"({"results": []})",
        R"([{"deviceCategory": 2, "deviceCount": 3}])", "[]"),
});

INSTANTIATE_TEST_SUITE_P(AccountAccess, ParseTest, testing::ValuesIn(kParses), RowName());

const RecordRow kRecords[] = {
    FieldsOf<GetChannelWebTunnelRsp>("https port ip username token"),
    FieldsOf<PermissionResourceCollectionResp>("menuFunctionCodes localConfigItemCodes"),
    FieldsOf<FunctionChannelCheck>("channelId functionCode"),
    FieldsOf<FunctionChannelCheckResult>("authorized"),
    FieldsOf<DeviceCategoryParamReq>("keyword orgCode domain permitted sourceType containChild"),
    FieldsOf<DeviceCategoryQueryResult>("deviceCategory deviceCount"),
};

INSTANTIATE_TEST_SUITE_P(AccountAccess, RecordTest, testing::ValuesIn(kRecords), RowName());

}  // namespace
