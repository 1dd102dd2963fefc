// DESFire card configuration, intercom contacts and alarm host zones.
#include "support/Bind.h"
#include "support/Family.h"

#include <OBMS/CardIntercomFields.h>
#include <OBMS/OBMSModule.h>

namespace {

using namespace family_testing;
using namespace std::string_literals;
using namespace APIModule;

const BodyPack<const AcsCardConfigParam&> kUpdateDesfire(NAMED(COBMSModule::PackUpdateConfigDesfireInfo), Method_Put,
                                                         "/obms/api/v1.1/acs/config/desfire",
                                                         {Server::OfCaller, "UpdateConfigDesfireInfo is failed.",
                                                          "UpdateConfigDesfireInfo is success."});
const UrlPack<const ConfigDesFireFailureReq&> kDesfireFailure(NAMED(COBMSModule::PackGetPageConfigDesfireFailInfo),
                                                              Method_Get);
const BodyPack<const DeleteAddressBookParam&> kDeleteContacts(NAMED(COBMSModule::PackDeleteAddressBooks), Method_Post,
                                                              "/obms/api/v1.1/vtalk/issue/contact/delete",
                                                              {Server::OfCaller, "Delete contacts failed.",
                                                               "Delete contacts success."});
const UrlPack<const std::string&, int> kSnapShotPack(NAMED(COBMSModule::PacketAlarmHostZoneSnapShot), Method_Post,
                                                     "/obms/api/v1.1/alarm-host/zone/");

const PackRow kPacks[] = {
    {"GetConfigDesfireInfo", NAMED(COBMSModule::PackGetConfigDesfireInfo), Method_Get,
     "/obms/api/v1.1/acs/config/desfire"},
    kUpdateDesfire("UpdateConfigDesfireInfo_both_true", {true, true},
                   R"({"enableDesfire": "1", "enableReadEncryptContent": "1"})"),
    kUpdateDesfire("UpdateConfigDesfireInfo_first_true", {true, false},
                   R"({"enableDesfire": "1", "enableReadEncryptContent": "0"})"),
    kUpdateDesfire("UpdateConfigDesfireInfo_second_true", {false, true},
                   R"({"enableDesfire": "0", "enableReadEncryptContent": "1"})"),
    kUpdateDesfire("UpdateConfigDesfireInfo_fresh", {}, R"({"enableDesfire": "0", "enableReadEncryptContent": "0"})"),
    kDesfireFailure("GetPageConfigDesfireFailInfo", {2, 20, "door"},
                    "/obms/api/v1.1/acs/config/desfire/failure/page?page=2&pageSize=20&keyword=door"),
    kDesfireFailure("GetPageConfigDesfireFailInfo_empty_keyword_stays_empty_at_the_end", {1, 20, ""},
                    "/obms/api/v1.1/acs/config/desfire/failure/page?page=1&pageSize=20&keyword="),
    kDesfireFailure("GetPageConfigDesfireFailInfo_fresh", {},
                    "/obms/api/v1.1/acs/config/desfire/failure/page?page=0&pageSize=0&keyword="),
    kDesfireFailure("GetPageConfigDesfireFailInfo_negative_numbers", {-1, -2147483647 - 1, "a"},
                    "/obms/api/v1.1/acs/config/desfire/failure/page?page=-1&pageSize=-2147483648&keyword=a"),
    kDesfireFailure("GetPageConfigDesfireFailInfo_nothing_is_escaped", {1, 20, "a&b#c \xC3\xBC\"%2b%3"},
                    "/obms/api/v1.1/acs/config/desfire/failure/page?page=1&pageSize=20&"
                    "keyword=a&b#c \xC3\xBC\"%2b%3"),
    kDesfireFailure("GetPageConfigDesfireFailInfo_zero_byte_is_kept", {1, 20, "a\0b"s},
                    "/obms/api/v1.1/acs/config/desfire/failure/page?page=1&pageSize=20&keyword=a\0b"s),
    kDesfireFailure("GetPageConfigDesfireFailInfo_invalid_utf8", {1, 20, "x\xFF"},
                    "/obms/api/v1.1/acs/config/desfire/failure/page?page=1&pageSize=20&keyword=x\xEF\xBF\xBD"),
    {"ReissueConfigDesfire", NAMED(COBMSModule::PackReissueConfigDesfire), Method_Post,
     "/obms/api/v1.1/acs/config/desfire/failure/reissue"},
    kDeleteContacts("DeleteAddressBooks_all_ignores_three_indoor_codes", {true, "vto", {"a", "b", "c"}},
                    R"({"mode": "1", "vtoDeviceCode": "vto", "vthDeviceCodes": []})"),
    kDeleteContacts("DeleteAddressBooks_all_without_indoor_codes", {true, "vto", {}},
                    R"({"mode": "1", "vtoDeviceCode": "vto", "vthDeviceCodes": []})"),
    kDeleteContacts("DeleteAddressBooks_listed_in_order", {false, "vto", {"b", "a"}},
                    R"({"mode": "2", "vtoDeviceCode": "vto", "vthDeviceCodes": ["b", "a"]})"),
    kDeleteContacts("DeleteAddressBooks_listed_with_an_empty_vector", {false, "vto", {}},
                    R"({"mode": "2", "vtoDeviceCode": "vto", "vthDeviceCodes": []})"),
    kDeleteContacts("DeleteAddressBooks_fresh", {}, R"({"mode": "2", "vtoDeviceCode": "", "vthDeviceCodes": []})"),
    kDeleteContacts("DeleteAddressBooks_zero_bytes_are_kept", {false, "a\0b"s, {"c\0d"s, ""}},
                    R"({"mode": "2", "vtoDeviceCode": "a\u0000b", "vthDeviceCodes": ["c\u0000d", ""]})"),
    kDeleteContacts("DeleteAddressBooks_utf8_quotes_and_markers",
                    {false, "\xC3\xBC\"%1\\", {"\xE4\xB8\xAD", "x\xFF", "%2"}},
                    R"({"mode": "2", "vtoDeviceCode": "\u00fc\"%1\\", "vthDeviceCodes": ["\u4e2d", "x\ufffd", "%2"]})"),
    kSnapShotPack("AlarmHostZoneSnapShot_action_is_a_number", "31", 1, "31/snapshot", R"({"action": 1})"),
    kSnapShotPack("AlarmHostZoneSnapShot_action_0", "31", 0, "31/snapshot", R"({"action": 0})"),
    kSnapShotPack("AlarmHostZoneSnapShot_negative_action", "", -2147483647 - 1, "/snapshot",
                  R"({"action": -2147483648})"),
    kSnapShotPack("AlarmHostZoneSnapShot_nothing_is_escaped", "a b/%1?\xC3\xBC\"", 2147483647,
                  "a b/%1?\xC3\xBC\"/snapshot", R"({"action": 2147483647})"),
    kSnapShotPack("AlarmHostZoneSnapShot_zero_byte_is_kept", "a\0b"s, 1, "a\0b/snapshot"s, R"({"action": 1})"),
    kSnapShotPack("AlarmHostZoneSnapShot_invalid_utf8", "x\xFF", 1, "x\xEF\xBF\xBD/snapshot", R"({"action": 1})"),
};

INSTANTIATE_TEST_SUITE_P(CardIntercom, PackTest, testing::ValuesIn(kPacks), RowName());

const Parse kDesfire = MakeParse(NAMED(COBMSModule::ParseGetConfigDesfireInfo));
const Parse kDesfireFailures = MakeParse(NAMED(COBMSModule::ParseGetPageConfigDesfireFailInfo));
const Parse kSnapShot = MakeParse(NAMED(COBMSModule::ParseAlarmHostZoneSnapShot));

const std::vector<ParseRow> kParses = Joined<ParseRow>({
    Variations(kDesfire, {Bool("enableDesfire"), Bool("enableReadEncryptContent")},
               R"({"enableDesfire": true, "enableReadEncryptContent": true})"),
    Variations(kDesfireFailures,
               {Found("totalCount"), Found("pageData"), Int("totalCount"),
                Records<DesfireFailureInfo>(
                    "pageData", {Text("id"), Text("deviceCode"), Text("deviceName"), Text("deviceIp"), Int("reason")})},
               R"({"totalCount": 31, "pageData": [
                    {"id": "1", "deviceCode": "1001", "deviceName": "Door A", "deviceIp": "10.0.0.1", "reason": 4},
                    {"id": "2", "deviceCode": "1002", "deviceName": "Door B", "deviceIp": "10.0.0.2",
                     "reason": 5}]})"),
    Variations(kSnapShot, {Text("session", kItself)}, R"({"session": "s-1"})"),
    Row("Desfire_without_the_second_flag_sets_the_first", kDesfire, R"({"enableDesfire": true})",
        R"({"enableReadEncryptContent": true})", R"({"enableDesfire": true})", MissingKey("enableReadEncryptContent")),
    Row("Desfire_without_the_first_flag_leaves_the_second_unchanged", kDesfire, R"({"enableReadEncryptContent": true})",
        "{}", "{}", MissingKey("enableDesfire")),
    Row("Desfire_reads_booleans", kDesfire, R"({"enableDesfire": true, "enableReadEncryptContent": false})",
        R"({"enableReadEncryptContent": true})", R"({"enableDesfire": true, "enableReadEncryptContent": false})"),
    Row("Desfire_converts_the_texts_1_and_0", kDesfire, R"({"enableDesfire": "1", "enableReadEncryptContent": "0"})",
        R"({"enableReadEncryptContent": true})", R"({"enableDesfire": true, "enableReadEncryptContent": false})"),
    Row("DesfireFailures_without_pageData_leaves_totalCount_unchanged", kDesfireFailures, R"({"totalCount": 31})",
        R"({"totalCount": 5})", "{}", MissingKey("pageData")),
    Row("DesfireFailures_empty_page_stores_totalCount", kDesfireFailures, R"({"totalCount": 31, "pageData": []})",
        R"({"totalCount": 5, "pageData": [{"id": "before", "reason": 1}]})", R"({"totalCount": 31})"),
    Row("DesfireFailures_second_without_reason_keeps_the_first_and_the_count", kDesfireFailures,
        R"({"totalCount": 2, "pageData": [
                {"id": 1, "deviceCode": "1001", "deviceName": "\u00fc", "deviceIp": "a\u0000b", "reason": "4"},
                {"id": "2", "deviceCode": "1002", "deviceName": "Door B", "deviceIp": "10.0.0.2"}]})",
        R"({"totalCount": 5})",
        R"({"totalCount": 2, "pageData": [{"id": "1", "deviceCode": "1001", "deviceName": "\u00fc",
                                           "deviceIp": "a\u0000b", "reason": 4}]})",
        MissingKey("reason")),
    Row("SnapShot_without_session_fails", kSnapShot, R"({"sessionId": "s-1"})", R"("before")", R"("before")",
        MissingKey("session")),
    Row("SnapShot_session_of_a_number", kSnapShot, R"({"session": 12})", R"("before")", R"("12")"),
});

INSTANTIATE_TEST_SUITE_P(CardIntercom, ParseTest, testing::ValuesIn(kParses), RowName());

const RecordRow kRecords[] = {
    FieldsOf<AcsCardConfigParam>("enableDesfire enableReadEncryptContent"),
    FieldsOf<ConfigDesFireFailureReq>("page pageSize keyword"),
    FieldsOf<DesfireFailureInfo>("id deviceCode deviceName deviceIp reason"),
    FieldsOf<GetPageConfigDesfireFailureResp>("totalCount pageData"),
    FieldsOf<DeleteAddressBookParam>("deleteAll vtoDeviceCode vthDeviceCodes"),
};

INSTANTIATE_TEST_SUITE_P(CardIntercom, RecordTest, testing::ValuesIn(kRecords), RowName());

}  // namespace
