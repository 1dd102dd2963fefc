// Commands to devices and channels.
#include "support/Bind.h"
#include "support/Family.h"

#include <BRMS/BRMSModule.h>
#include <BRMS/DeviceControlFields.h>

namespace {

using namespace family_testing;
using namespace std::string_literals;
using namespace APIModule;

const BodyPack<const std::vector<std::string>&, int> kBatchDiscoverDevices(
    NAMED(CBRMSModule::PacketBatchDiscoverDevices), Method_Post, "/brms/api/v1.1/device/discover/async/batch");
const BodyPack<const std::vector<std::string>&, bool> kAlarmOutputControl(
    NAMED(CBRMSModule::PacketAlarmOutputControl), Method_Post, "/brms/api/v1.1/device/channel/alarm-output/control");
const BodyPack<const std::vector<std::string>&, bool> kAudioLightControl(
    NAMED(CBRMSModule::PacketAudioLightControl), Method_Post, "/brms/api/v1.1/device/channel/audio-light/regulate");
const BodyPack<IPSpeakerControl> kIPSpeakerControl(NAMED(CBRMSModule::PacketIPSpeakerControl), Method_Post,
                                                   "/brms/api/v1.1/device/channel/audio/ip-speaker/control");

const PackRow kPacks[] = {
    kBatchDiscoverDevices("BatchDiscoverDevices", {"dev2", "dev1"}, 3,
                          R"({"deviceCodes": ["dev2", "dev1"], "discoverMode": 3})"),
    kBatchDiscoverDevices("BatchDiscoverDevices_of_none_in_a_negative_mode", {}, -3,
                          R"({"deviceCodes": [], "discoverMode": -3})"),
    kBatchDiscoverDevices("BatchDiscoverDevices_texts_are_sent_completely_as_utf8",
                          {"a\0b"s, "\xC3\xBC", "\xFF", "", "\"%1\\"}, 0,
                          R"({"deviceCodes": ["a\u0000b", "\u00fc", "\ufffd", "", "\"%1\\"], "discoverMode": 0})"),
    kAlarmOutputControl("AlarmOutputControl_two_channels_on", {"ch1", "ch2"}, true,
                        R"({"channelIds": ["ch1", "ch2"], "action": 0, "command": 1})"),
    kAlarmOutputControl("AlarmOutputControl_off", {"ch1"}, false,
                        R"({"channelIds": ["ch1"], "action": 0, "command": 0})"),
    kAlarmOutputControl("AlarmOutputControl_of_none", {}, true, R"({"channelIds": [], "action": 0, "command": 1})"),
    kAlarmOutputControl("AlarmOutputControl_text_with_a_zero_byte_is_sent_completely", {"a\0b"s}, true,
                        R"({"channelIds": ["a\u0000b"], "action": 0, "command": 1})"),
    kAudioLightControl("AudioLightControl_no_channels_off", {}, false, R"({"channelIds": [], "command": 0})"),
    kAudioLightControl("AudioLightControl_on_has_no_action", {"ch2", "ch1"}, true,
                       R"({"channelIds": ["ch2", "ch1"], "command": 1})"),
    kAudioLightControl("AudioLightControl_text_with_a_zero_byte_is_sent_completely", {"a\0b"s}, true,
                       R"({"channelIds": ["a\u0000b"], "command": 1})"),
    kIPSpeakerControl("IPSpeakerControl", {{{"ch1", "f1,f2", "3"}, {"ch2", "", "-1"}}, -4},
                      R"({"channels": [{"channelId": "ch1", "fileIds": "f1,f2", "playCount": "3"},
                      {"channelId": "ch2", "fileIds": "", "playCount": "-1"}], "command": -4})"),
    kIPSpeakerControl("IPSpeakerControl_playCount_3_is_a_text", {{{"ch1", "f1", "3"}}, 1},
                      R"({"channels": [{"channelId": "ch1", "fileIds": "f1", "playCount": "3"}], "command": 1})"),
    kIPSpeakerControl("IPSpeakerControl_fresh", {}, R"({"channels": [], "command": 0})"),
    kIPSpeakerControl(
        "IPSpeakerControl_texts_are_sent_completely_as_utf8", {{{"a\0b"s, "\xC3\xBC\0"s, "\0"s}}, 0},
        R"({"channels": [{"channelId": "a\u0000b", "fileIds": "\u00fc\u0000", "playCount": "\u0000"}], "command": 0})"),
};

INSTANTIATE_TEST_SUITE_P(DeviceControl, PackTest, testing::ValuesIn(kPacks), RowName());

const Parse kDiscover = MakeParse(NAMED(CBRMSModule::ParseBatchDiscoverDevices));
const Parse kControl = MakeParse(NAMED(CBRMSModule::ParseChannelControl));

const std::vector<ParseRow> kParses = Joined<ParseRow>({
    Variations(kDiscover, {Text("session", kItself)}, R"({"session": "s-1"})"),
    Variations(kControl, {Records<ChannelControlRsp>("failedChannels", {Text("channelId"), Int("errorCode")}, kItself)},
               R"({"failedChannels": [{"channelId": "ch1", "errorCode": 5},
                                      {"channelId": "ch2", "errorCode": -6}]})"),
    Row("Control_complete_entry_before_one_without_errorCode", kControl,
        R"({"failedChannels": [{"channelId": "ch1", "errorCode": 5}, {"channelId": "ch2"},
                               {"channelId": "ch3", "errorCode": 7}]})",
        "[]", R"([{"channelId": "ch1", "errorCode": 5}])", MissingKey("errorCode")),
    Row("Control_without_failedChannels_leaves_the_vector_unchanged", kControl, R"({"channels": []})",
        R"([{"channelId": "before", "errorCode": 1}])", "[]", MissingKey("failedChannels")),
    Row("Control_of_an_empty_list_is_a_success", kControl, R"({"failedChannels": []})",
        R"([{"channelId": "before", "errorCode": 1}])", "[]"),
    Row("Control_appends_after_existing_elements", kControl,
        R"({"failedChannels": [{"channelId": 12, "errorCode": "5"}]})", R"([{"channelId": "before", "errorCode": 1}])",
        R"([{"channelId": "12", "errorCode": 5}])"),
    Row("Control_element_that_is_not_an_object_is_read_as_an_empty_object", kControl,
        R"({"failedChannels": [{"channelId": "ch1", "errorCode": 5}, "ch2"]})", "[]",
        R"([{"channelId": "ch1", "errorCode": 5}])", EmptyObject()),
});

INSTANTIATE_TEST_SUITE_P(DeviceControl, ParseTest, testing::ValuesIn(kParses), RowName());

const RecordRow kRecords[] = {
    FieldsOf<IPSpeakerChannel>("channelId fileIds playCount"),
    FieldsOf<IPSpeakerControl>("channels command"),
    FieldsOf<ChannelControlRsp>("channelId errorCode"),
};

INSTANTIATE_TEST_SUITE_P(DeviceControl, RecordTest, testing::ValuesIn(kRecords), RowName());

}  // namespace
