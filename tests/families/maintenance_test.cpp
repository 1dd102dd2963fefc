// Alert types, and the maintenance view of channels and devices.
#include "support/Bind.h"
#include "support/Family.h"

#include <OMMS/MaintenanceFields.h>
#include <OMMS/OMMSModule.h>

namespace {

using namespace family_testing;
using namespace std::string_literals;
using namespace APIModule;

const UrlPack<std::string> kChannelPack(NAMED(COMMSModule::PacketGetChannelInfo), Method_Get,
                                        "/omms/api/v1.1/channel/");
const UrlPack<std::string> kDevicePack(NAMED(COMMSModule::PacketGetDeviceInfo), Method_Get, "/omms/api/v1.1/device/");

const std::vector<PackRow> kPacks = Joined<PackRow>({
    PackRow{"GetAlertTypes", NAMED(COMMSModule::PacketGetAlertTypes), Method_Get,
            "/omms/api/v1.1/alert/rule/alert-type/list"},
    TextRows("GetChannelInfo", kChannelPack),
    TextRows("GetDeviceInfo", kDevicePack),
});

INSTANTIATE_TEST_SUITE_P(Maintenance, PackTest, testing::ValuesIn(kPacks), RowName());

const Parse kAlertTypes = MakeParse(NAMED(COMMSModule::ParseGetAlertTypes));
const Parse kChannel = MakeParse(NAMED(COMMSModule::ParseGetChannelInfo));
const Parse kDevice = MakeParse(NAMED(COMMSModule::ParseGetDeviceInfo));

const Readings kChannelKeys =
    InOrder(Text("channelName"), Text("channelId"), Int("channelType"), Text("deviceCode"), Text("deviceName"),
            Int("deviceCategory"), Text("deviceCategoryName"), Text("orgCode"), Text("orgName"), Int("onlineStatus"),
            Text("channelStatus"), Text("abnormalReason"), Text("channelIp"), Text("channelMac"), Text("deviceIp"),
            Text("macAddress"), Text("deviceRecordDays"), Text("configRecordDays"), Text("deviceRecordWholenessStatus"),
            Text("motionDetectPlan"), Text("patchPlan"), Text("recordPlan"), Int64("updateDate"));

const char* const kWholeChannel =
    R"({"channelName": "Gate", "channelId": "1$1", "channelType": 1, "deviceCode": "1001", "deviceName": "Camera",
        "deviceCategory": 2, "deviceCategoryName": "Encoder", "orgCode": "001", "orgName": "Root", "onlineStatus": 3,
        "channelStatus": "4", "abnormalReason": "video lost", "channelIp": "10.0.0.1", "channelMac": "00:01",
        "deviceIp": "10.0.0.2", "macAddress": "00:02", "deviceRecordDays": "30", "configRecordDays": "31",
        "deviceRecordWholenessStatus": "5", "motionDetectPlan": "6", "patchPlan": "7", "recordPlan": "8",
        "updateDate": 1700000000123})";

const char* const kChannelBefore =
    R"({"channelName": "b1", "channelId": "b2", "channelType": 103, "deviceCode": "b4", "deviceName": "b5",
        "deviceCategory": 106, "deviceCategoryName": "b7", "orgCode": "b8", "orgName": "b9", "onlineStatus": 110,
        "channelStatus": "b11", "abnormalReason": "b12", "channelIp": "b13", "channelMac": "b14", "deviceIp": "b15",
        "macAddress": "b16", "deviceRecordDays": "b17", "configRecordDays": "b18",
        "deviceRecordWholenessStatus": "b19", "motionDetectPlan": "b20", "patchPlan": "b21", "recordPlan": "b22",
        "updateDate": 123})";

/// The serial number is read last.
const Readings kDeviceKeys = {
    Text("deviceCode"),      Text("deviceName"),      Text("deviceIp"),      Int("status"),
    Text("statusName"),      Text("offlineReason"),   Int("deviceCategory"), Text("deviceCategoryName"),
    Int("deviceType"),       Text("deviceTypeName"),  Text("manufacturer"),  Text("manufacturerName"),
    Text("faultStatus"),     Text("faultStatusName"), Text("updateTime"),    Int("addType"),
    Text("orgCode"),         Text("orgName"),         Text("faultReason"),   Text("mac"),
    Text("softwareVersion"), Text("subnetMask"),      Text("deviceModel"),   Text("deviceSn")};

const char* const kWholeDevice =
    R"({"deviceCode": "1001", "deviceName": "Camera", "deviceIp": "10.0.0.2", "deviceSn": "SN1", "status": 1,
        "statusName": "online", "offlineReason": "none", "deviceCategory": 2, "deviceCategoryName": "Encoder",
        "deviceType": 3, "deviceTypeName": "IPC", "manufacturer": "4", "manufacturerName": "Maker",
        "faultStatus": "5", "faultStatusName": "normal", "updateTime": "2024-01-02 03:04:05", "addType": 6,
        "orgCode": "001", "orgName": "Root", "faultReason": "no fault", "mac": "00:02", "softwareVersion": "1.2.3",
        "subnetMask": "255.255.255.0", "deviceModel": "M1"})";

const char* const kDeviceBefore =
    R"({"deviceCode": "b1", "deviceName": "b2", "deviceIp": "b3", "deviceSn": "b4", "status": 105,
        "statusName": "b6", "offlineReason": "b7", "deviceCategory": 108, "deviceCategoryName": "b9",
        "deviceType": 110, "deviceTypeName": "b11", "manufacturer": "b12", "manufacturerName": "b13",
        "faultStatus": "b14", "faultStatusName": "b15", "updateTime": "b16", "addType": 117, "orgCode": "b18",
        "orgName": "b19", "faultReason": "b20", "mac": "b21", "softwareVersion": "b22", "subnetMask": "b23",
        "deviceModel": "b24"})";

/// The JSON text with one key changed.
std::string With(const std::string& text, const std::string& key, const Json& value)
{
    Json json = Json::parse(text);
    json[key] = value;
    return json.dump();
}

std::string Without(const std::string& text, const std::string& key)
{
    Json json = Json::parse(text);
    json.erase(key);
    return json.dump();
}

const std::vector<ParseRow> kParses = Joined<ParseRow>({
    Variations(kAlertTypes, {Records<AlertInfoResp>("results", {Text("alertTypeId"), Text("alertTypeName")}, kItself)},
               R"({"results": [{"alertTypeId": "1", "alertTypeName": "Offline"},
                               {"alertTypeId": "2", "alertTypeName": "Disk full"}]})"),
    Variations(kChannel, kChannelKeys, kWholeChannel),
    Variations(kDevice, kDeviceKeys, kWholeDevice),
    Row("AlertTypes_of_an_empty_list_leaves_the_vector_unchanged", kAlertTypes, R"({"results": []})",
        R"([{"alertTypeId": "before", "alertTypeName": "x"}])", "[]"),
    Row("AlertTypes_second_without_name_is_dropped_after_the_first", kAlertTypes,
        R"({"results": [{"alertTypeId": 1, "alertTypeName": "\u00fc"}, {"alertTypeId": "2"},
                        {"alertTypeId": "3", "alertTypeName": "c"}]})",
        R"([{"alertTypeId": "before", "alertTypeName": "x"}])", R"([{"alertTypeId": "1", "alertTypeName": "\u00fc"}])",
        MissingKey("alertTypeName")),
    Row("AlertTypes_element_that_is_not_an_object_is_read_as_an_empty_object", kAlertTypes, R"({"results": [null]})",
        "[]", "[]", EmptyObject()),
    Row("Channel_complete", kChannel, kWholeChannel, kChannelBefore, kWholeChannel),
    Row("Channel_updateDate_beyond_31_bits_is_read_completely", kChannel, With(kWholeChannel, "updateDate", 4294967297),
        kChannelBefore, With(kWholeChannel, "updateDate", 4294967297)),
    Row("Channel_updateDate_of_a_negative_text", kChannel, With(kWholeChannel, "updateDate", "-9007199254740993"),
        kChannelBefore, With(kWholeChannel, "updateDate", -9007199254740993)),
    Row("Channel_without_channelType_sets_only_name_and_id", kChannel, Without(kWholeChannel, "channelType"),
        kChannelBefore, R"({"channelName": "Gate", "channelId": "1$1"})", MissingKey("channelType")),
    Row("Channel_record_days_of_numbers_become_texts", kChannel, With(kWholeChannel, "deviceRecordDays", 30),
        kChannelBefore, kWholeChannel),
    Row("Channel_of_an_empty_object", kChannel, "{}", kChannelBefore, "{}", EmptyObject()),
    Row("Device_complete", kDevice, kWholeDevice, kDeviceBefore, kWholeDevice),
    Row("Device_without_deviceSn_sets_every_other_field", kDevice, Without(kWholeDevice, "deviceSn"), kDeviceBefore,
        Without(kWholeDevice, "deviceSn"), MissingKey("deviceSn")),
    Row("Device_without_deviceModel_does_not_read_deviceSn", kDevice, Without(kWholeDevice, "deviceModel"),
        kDeviceBefore, Without(Without(kWholeDevice, "deviceModel"), "deviceSn"), MissingKey("deviceModel")),
    Row("Device_updateTime_is_a_text", kDevice, With(kWholeDevice, "updateTime", 1700000000), kDeviceBefore,
        With(kWholeDevice, "updateTime", "1700000000")),
    Row("Device_of_an_empty_object", kDevice, "{}", kDeviceBefore, "{}", EmptyObject()),
});

INSTANTIATE_TEST_SUITE_P(Maintenance, ParseTest, testing::ValuesIn(kParses), RowName());

const RecordRow kRecords[] = {
    FieldsOf<AlertInfoResp>("alertTypeId alertTypeName"),
    FieldsOf<ChannelInfoResp>(
        "channelName channelId channelType deviceCode deviceName deviceCategory deviceCategoryName orgCode "
        "orgName onlineStatus channelStatus abnormalReason channelIp channelMac deviceIp macAddress "
        "deviceRecordDays configRecordDays deviceRecordWholenessStatus motionDetectPlan patchPlan recordPlan "
        "updateDate"),
    FieldsOf<DeviceInfoResp>(
        "deviceCode deviceName deviceIp deviceSn status statusName offlineReason deviceCategory "
        "deviceCategoryName deviceType deviceTypeName manufacturer manufacturerName faultStatus faultStatusName "
        "updateTime addType orgCode orgName faultReason mac softwareVersion subnetMask deviceModel"),
};

INSTANTIATE_TEST_SUITE_P(Maintenance, RecordTest, testing::ValuesIn(kRecords), RowName());

}  // namespace
