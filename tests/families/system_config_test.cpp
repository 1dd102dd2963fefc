// Settings of the platform.
#include "support/Bind.h"
#include "support/Family.h"

#include <BRMS/BRMSModule.h>
#include <BRMS/SystemConfigFields.h>

namespace {

using namespace family_testing;
using namespace std::string_literals;
using namespace APIModule;

const BodyPack<const TimeSyncConfig&> kSetTimeSyncConfig(NAMED(CBRMSModule::PacketSetTimeSyncConfig), Method_Put,
                                                         "/brms/api/v1.1/config/time-sync");
const BodyPack<const RemoteLogConfigInfo&> kSetRemoteLogConfig(NAMED(CBRMSModule::PacketSetRemoteLogConfig), Method_Put,
                                                               "/brms/api/v1.1/config/remote-log");
const BodyPack<const int&> kSetDeviceLoginModel(NAMED(CBRMSModule::PacketSetDeviceLoginModel), Method_Put,
                                                "/brms/api/v1.1/config/device-login-model");
const BodyPack<const bool&> kSetPushAppMsgConfig(NAMED(CBRMSModule::PacketSetPushAppMsgConfig), Method_Put,
                                                 "/brms/api/v1.1/config/app/push-message");
const UrlPack<const int&> kGetLocalSetting(NAMED(CBRMSModule::PacketGetLocalSetting), Method_Get,
                                           "/brms/api/v1.1/config/local/setting?settingType=");
const BodyPack<bool&, const std::string&> kUpdateLocalSetting(NAMED(CBRMSModule::PacketUpdateLocalSetting), Method_Put,
                                                              "/brms/api/v1.1/config/local/setting");
const BodyPack<const bool&> kUpdateAIPrivacyConfig(NAMED(CBRMSModule::PacketUpdateAIPrivacyConfig), Method_Put,
                                                   "/brms/api/v1.1/config/ai/privacy");

const PackRow kPacks[] = {
    {"GetTimeSyncConfig", NAMED(CBRMSModule::PacketGetTimeSyncConfig), Method_Get, "/brms/api/v1.1/config/time-sync"},
    kSetTimeSyncConfig(
        "SetTimeSyncConfig", {true, "02:30:00", 7, false, true, "ntp.example", 123, 60},
        R"({"enable": "1", "startTime": "02:30:00", "interval": "7", "deviceOnlineTimeSync": "0", "enableNtp": "1",
         "ntpIp": "ntp.example", "ntpPort": "123", "ntpSyncInterval": "60"})"),
    kSetTimeSyncConfig(
        "SetTimeSyncConfig_enabled_interval_30_port_minus_1_all_texts",
        {true, "", 30, true, false, "", -1, -2147483647 - 1},
        R"({"enable": "1", "startTime": "", "interval": "30", "deviceOnlineTimeSync": "1", "enableNtp": "0",
         "ntpIp": "", "ntpPort": "-1", "ntpSyncInterval": "-2147483648"})"),
    kSetTimeSyncConfig(
        "SetTimeSyncConfig_fresh", {},
        R"({"enable": "0", "startTime": "", "interval": "0", "deviceOnlineTimeSync": "0", "enableNtp": "0",
         "ntpIp": "", "ntpPort": "0", "ntpSyncInterval": "0"})"),
    kSetTimeSyncConfig(
        "SetTimeSyncConfig_texts_end_at_a_zero_byte", {false, "a\0b"s, 0, false, false, "\0b"s, 0, 0},
        R"({"enable": "0", "startTime": "a", "interval": "0", "deviceOnlineTimeSync": "0", "enableNtp": "0",
         "ntpIp": "", "ntpPort": "0", "ntpSyncInterval": "0"})"),
    kSetTimeSyncConfig(
        "SetTimeSyncConfig_texts_are_utf8", {false, "\xC3\xBC \xE4\xB8\xAD", 0, false, false, "invalid \xFF", 0, 0},
        R"({"enable": "0", "startTime": "\u00fc \u4e2d", "interval": "0", "deviceOnlineTimeSync": "0", "enableNtp": "0",
         "ntpIp": "invalid \ufffd", "ntpPort": "0", "ntpSyncInterval": "0"})"),
    {"ImmediatelySyncTime", NAMED(CBRMSModule::PacketImmediatelySyncTime), Method_Post,
     "/brms/api/v1.1/config/time-sync/immediate"},
    {"GetRemoteLogConfig", NAMED(CBRMSModule::PacketGetRemoteLogConfig), Method_Get,
     "/brms/api/v1.1/config/remote-log"},
    kSetRemoteLogConfig("SetRemoteLogConfig", {true, "10.0.0.9", 514, "site 1"},
                        R"({"enable": "1", "ip": "10.0.0.9", "port": "514", "platformId": "site 1"})"),
    kSetRemoteLogConfig("SetRemoteLogConfig_fresh", {}, R"({"enable": "0", "ip": "", "port": "0", "platformId": ""})"),
    kSetRemoteLogConfig("SetRemoteLogConfig_texts_end_at_a_zero_byte", {false, "10.0.0.9\0x"s, -514, "site\0x"s},
                        R"({"enable": "0", "ip": "10.0.0.9", "port": "-514", "platformId": "site"})"),
    {"GetDeviceLoginModel", NAMED(CBRMSModule::PacketGetDeviceLoginModel), Method_Get,
     "/brms/api/v1.1/config/device-login-model"},
    kSetDeviceLoginModel("SetDeviceLoginModel", 2, R"({"deviceLoginModel": "2"})"),
    kSetDeviceLoginModel("SetDeviceLoginModel_negative", -2, R"({"deviceLoginModel": "-2"})"),
    {"GetPushAppMsgConfig", NAMED(CBRMSModule::PacketGetPushAppMsgConfig), Method_Get,
     "/brms/api/v1.1/config/app/push-message"},
    kSetPushAppMsgConfig("SetPushAppMsgConfig_on_is_a_text", true, R"({"enablePushMessage": "1"})"),
    kSetPushAppMsgConfig("SetPushAppMsgConfig_off_is_a_text", false, R"({"enablePushMessage": "0"})"),
    {"GetSupportDataBaseType", NAMED(CBRMSModule::PacketGetSupportDataBaseType), Method_Get,
     "/brms/api/v1.1/config/outside-database/support/list"},
    kGetLocalSetting("GetLocalSetting_of_type_3", 3, "3"),
    kGetLocalSetting("GetLocalSetting_of_negative_type", -12, "-12"),
    kUpdateLocalSetting("UpdateLocalSetting_apply", true, "{\"theme\": \"dark %1\"}\n",
                        R"({"apply": "1", "settingContent": "{\"theme\": \"dark %1\"}\n"})"),
    kUpdateLocalSetting("UpdateLocalSetting_not_apply", false, "", R"({"apply": "0", "settingContent": ""})"),
    kUpdateLocalSetting("UpdateLocalSetting_content_ends_at_a_zero_byte", false, "a\0b"s,
                        R"({"apply": "0", "settingContent": "a"})"),
    {"GetAIPrivacyConfig", NAMED(CBRMSModule::PacketGetAIPrivacyConfig), Method_Get,
     "/brms/api/v1.1/config/ai/privacy"},
    kUpdateAIPrivacyConfig("UpdateAIPrivacyConfig_on_is_a_number", true, R"({"enable": 1})"),
    kUpdateAIPrivacyConfig("UpdateAIPrivacyConfig_off_is_a_number", false, R"({"enable": 0})"),
};

INSTANTIATE_TEST_SUITE_P(SystemConfig, PackTest, testing::ValuesIn(kPacks), RowName());

const Parse kTimeSync = MakeParse(NAMED(CBRMSModule::ParseGetTimeSyncConfig));
const Parse kRemoteLog = MakeParse(NAMED(CBRMSModule::ParseGetRemoteLogConfig));
const Parse kLoginModel = MakeParse(NAMED(CBRMSModule::ParseGetDeviceLoginModel));
const Parse kPushAppMsg = MakeParse(NAMED(CBRMSModule::ParseGetPushAppMsgConfig));
const Parse kDataBaseType = MakeParse(NAMED(CBRMSModule::ParseGetSupportDataBaseType));
const Parse kLocalSetting = MakeParse(NAMED(CBRMSModule::ParseGetLocalSetting));
const Parse kAIPrivacy = MakeParse(NAMED(CBRMSModule::ParseGetAIPrivacyConfig));

const std::vector<ParseRow> kParses = Joined<ParseRow>({
    Variations(kTimeSync,
               {Bool("enable"), Text("startTime"), Int("interval"), Bool("deviceOnlineTimeSync"), Bool("enableNtp"),
                Text("ntpIp"), Int("ntpPort"), Int("ntpSyncInterval")},
               R"({"enable": true, "startTime": "02:30:00", "interval": 7, "deviceOnlineTimeSync": false,
                   "enableNtp": true, "ntpIp": "ntp.example", "ntpPort": 123, "ntpSyncInterval": 60})"),
    Variations(kRemoteLog, {Bool("enable"), Text("ip"), Int("port"), Text("platformId")},
               R"({"enable": true, "ip": "10.0.0.9", "port": 514, "platformId": "site 1"})"),
    Variations(kLoginModel, {Int("deviceLoginModel", kItself)}, R"({"deviceLoginModel": 2})"),
    Variations(kPushAppMsg, {Bool("enablePushMessage", kItself)}, R"({"enablePushMessage": true})"),
    Variations(kDataBaseType, {NumbersOfTexts("databaseTypes", kItself)}, R"({"databaseTypes": ["1", "3"]})"),
    Variations(kLocalSetting, {Bool("apply"), Int("settingType"), Int64("settingVersion"), Text("settingContent")},
               R"({"apply": true, "settingType": 3, "settingVersion": 5000000000, "settingContent": "{}"})"),
    Variations(kAIPrivacy, {Int("enable", kItself)}, R"({"enable": 1})"),
    Row("TimeSync_without_ntpIp_keeps_the_five_fields_before_it", kTimeSync,
        R"({"enable": true, "startTime": "02:30:00", "interval": 7, "deviceOnlineTimeSync": false,
            "enableNtp": true, "ntpPort": 123, "ntpSyncInterval": 60})",
        R"({"deviceOnlineTimeSync": true, "ntpIp": "before", "ntpPort": 8, "ntpSyncInterval": 9})",
        R"({"enable": true, "startTime": "02:30:00", "interval": 7, "deviceOnlineTimeSync": false,
            "enableNtp": true})",
        MissingKey("ntpIp")),
    Row("TimeSync_converts_texts_and_null", kTimeSync,
        R"({"enable": "1", "startTime": null, "interval": "12", "deviceOnlineTimeSync": "false",
            "enableNtp": 0, "ntpIp": 12, "ntpPort": "abc", "ntpSyncInterval": true})",
        R"({"startTime": "before", "deviceOnlineTimeSync": true, "enableNtp": true, "ntpPort": 8,
            "ntpSyncInterval": 9})",
        R"({"enable": true, "startTime": "", "interval": 12, "deviceOnlineTimeSync": false, "enableNtp": false,
            "ntpIp": "12", "ntpPort": 0, "ntpSyncInterval": 1})"),
    Row("RemoteLog_of_an_empty_object", kRemoteLog, "{}",
        R"({"enable": true, "ip": "a", "port": 1, "platformId": "b"})", "{}", EmptyObject()),
    Row("DataBaseType_appends_1_and_3_after_7", kDataBaseType, R"({"databaseTypes": ["1", "3"]})", R"([7])",
        R"([1, 3])"),
    Row("DataBaseType_of_numbers_appends_zeros_after_7", kDataBaseType, R"({"databaseTypes": [1, 3]})", R"([7])",
        R"([0, 0])"),
    Row("DataBaseType_of_texts_that_are_not_decimal_numbers", kDataBaseType,
        R"({"databaseTypes": ["", "x", "0x10", "010", "-4", " 5", "99999999999", null]})", "[]",
        R"([0, 0, 0, 10, -4, 5, 0, 0])"),
    Row("DataBaseType_of_an_empty_list", kDataBaseType, R"({"databaseTypes": []})", R"([7])", "[]"),
    Row("LocalSetting_version_beyond_32_bits", kLocalSetting,
        R"({"apply": false, "settingType": 3, "settingVersion": 9007199254740991, "settingContent": "a"})",
        R"({"apply": true})",
        R"({"apply": false, "settingType": 3, "settingVersion": 9007199254740991, "settingContent": "a"})"),
    Row("LocalSetting_content_with_a_zero_byte_and_utf8", kLocalSetting,
        R"({"apply": false, "settingType": 3, "settingVersion": 1, "settingContent": "a\u0000b\u00fc"})",
        R"({"apply": true})",
        R"({"apply": false, "settingType": 3, "settingVersion": 1, "settingContent": "a\u0000b\u00fc"})"),
    Row("AIPrivacy_of_the_number_1", kAIPrivacy, R"({"enable": 1})", "0", "1"),
});

INSTANTIATE_TEST_SUITE_P(SystemConfig, ParseTest, testing::ValuesIn(kParses), RowName());

const RecordRow kRecords[] = {
    FieldsOf<TimeSyncConfig>("enable startTime interval deviceOnlineTimeSync enableNtp ntpIp ntpPort ntpSyncInterval"),
    FieldsOf<RemoteLogConfigInfo>("enable ip port platformId"),
    FieldsOf<LocalSettingQueryResult>("apply settingType settingVersion settingContent"),
};

INSTANTIATE_TEST_SUITE_P(SystemConfig, RecordTest, testing::ValuesIn(kRecords), RowName());

}  // namespace
