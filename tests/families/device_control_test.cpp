// Commands to devices and channels.
#include "support/Family.h"

#include <BRMS/BRMSModule.h>
#include <BRMS/DeviceControlFields.h>

namespace {

using namespace family_testing;
using namespace std::string_literals;
using APIModule::CBRMSModule;
using APIModule::Method_Post;

std::function<int(void*, int)> Discover(const std::vector<std::string>& deviceCodes, int discoverMode)
{
    return [=](void* param, int nServerId) {
        return CBRMSModule::PacketBatchDiscoverDevices(param, deviceCodes, discoverMode, nServerId);
    };
}

std::function<int(void*, int)> AlarmOutput(const std::vector<std::string>& channelIds, bool on)
{
    return [=](void* param, int nServerId) {
        return CBRMSModule::PacketAlarmOutputControl(param, channelIds, on, nServerId);
    };
}

std::function<int(void*, int)> AudioLight(const std::vector<std::string>& channelIds, bool on)
{
    return [=](void* param, int nServerId) {
        return CBRMSModule::PacketAudioLightControl(param, channelIds, on, nServerId);
    };
}

std::function<int(void*, int)> IPSpeaker(const APIModule::IPSpeakerControl& control)
{
    return [=](void* param, int nServerId) { return CBRMSModule::PacketIPSpeakerControl(param, control, nServerId); };
}

const PackRow kPacks[] = {
    {"BatchDiscoverDevices", "CBRMSModule::PacketBatchDiscoverDevices", Discover({"dev2", "dev1"}, 3), Method_Post,
     "/brms/api/v1.1/device/discover/async/batch", R"({"deviceCodes": ["dev2", "dev1"], "discoverMode": 3})"},
    {"BatchDiscoverDevices_of_none_in_a_negative_mode", "CBRMSModule::PacketBatchDiscoverDevices", Discover({}, -3),
     Method_Post, "/brms/api/v1.1/device/discover/async/batch", R"({"deviceCodes": [], "discoverMode": -3})"},
    {"BatchDiscoverDevices_texts_go_whole_as_utf8", "CBRMSModule::PacketBatchDiscoverDevices",
     Discover({"a\0b"s, "\xC3\xBC", "\xFF", "", "\"%1\\"}, 0), Method_Post,
     "/brms/api/v1.1/device/discover/async/batch",
     R"({"deviceCodes": ["a\u0000b", "\u00fc", "\ufffd", "", "\"%1\\"], "discoverMode": 0})"},
    {"AlarmOutputControl_two_channels_on", "CBRMSModule::PacketAlarmOutputControl", AlarmOutput({"ch1", "ch2"}, true),
     Method_Post, "/brms/api/v1.1/device/channel/alarm-output/control",
     R"({"channelIds": ["ch1", "ch2"], "action": 0, "command": 1})"},
    {"AlarmOutputControl_off", "CBRMSModule::PacketAlarmOutputControl", AlarmOutput({"ch1"}, false), Method_Post,
     "/brms/api/v1.1/device/channel/alarm-output/control", R"({"channelIds": ["ch1"], "action": 0, "command": 0})"},
    {"AlarmOutputControl_of_none", "CBRMSModule::PacketAlarmOutputControl", AlarmOutput({}, true), Method_Post,
     "/brms/api/v1.1/device/channel/alarm-output/control", R"({"channelIds": [], "action": 0, "command": 1})"},
    {"AlarmOutputControl_text_with_a_zero_byte_goes_whole", "CBRMSModule::PacketAlarmOutputControl",
     AlarmOutput({"a\0b"s}, true), Method_Post, "/brms/api/v1.1/device/channel/alarm-output/control",
     R"({"channelIds": ["a\u0000b"], "action": 0, "command": 1})"},
    {"AudioLightControl_no_channels_off", "CBRMSModule::PacketAudioLightControl", AudioLight({}, false), Method_Post,
     "/brms/api/v1.1/device/channel/audio-light/regulate", R"({"channelIds": [], "command": 0})"},
    {"AudioLightControl_on_has_no_action", "CBRMSModule::PacketAudioLightControl", AudioLight({"ch2", "ch1"}, true),
     Method_Post, "/brms/api/v1.1/device/channel/audio-light/regulate",
     R"({"channelIds": ["ch2", "ch1"], "command": 1})"},
    {"AudioLightControl_text_with_a_zero_byte_goes_whole", "CBRMSModule::PacketAudioLightControl",
     AudioLight({"a\0b"s}, true), Method_Post, "/brms/api/v1.1/device/channel/audio-light/regulate",
     R"({"channelIds": ["a\u0000b"], "command": 1})"},
    {"IPSpeakerControl", "CBRMSModule::PacketIPSpeakerControl",
     IPSpeaker({{{"ch1", "f1,f2", "3"}, {"ch2", "", "-1"}}, -4}), Method_Post,
     "/brms/api/v1.1/device/channel/audio/ip-speaker/control",
     R"({"channels": [{"channelId": "ch1", "fileIds": "f1,f2", "playCount": "3"},
                      {"channelId": "ch2", "fileIds": "", "playCount": "-1"}], "command": -4})"},
    {"IPSpeakerControl_playCount_3_is_a_text", "CBRMSModule::PacketIPSpeakerControl",
     IPSpeaker({{{"ch1", "f1", "3"}}, 1}), Method_Post, "/brms/api/v1.1/device/channel/audio/ip-speaker/control",
     R"({"channels": [{"channelId": "ch1", "fileIds": "f1", "playCount": "3"}], "command": 1})"},
    {"IPSpeakerControl_fresh", "CBRMSModule::PacketIPSpeakerControl", IPSpeaker({}), Method_Post,
     "/brms/api/v1.1/device/channel/audio/ip-speaker/control", R"({"channels": [], "command": 0})"},
    {"IPSpeakerControl_texts_go_whole_as_utf8", "CBRMSModule::PacketIPSpeakerControl",
     IPSpeaker({{{"a\0b"s, "\xC3\xBC\0"s, "\0"s}}, 0}), Method_Post,
     "/brms/api/v1.1/device/channel/audio/ip-speaker/control",
     R"({"channels": [{"channelId": "a\u0000b", "fileIds": "\u00fc\u0000", "playCount": "\u0000"}], "command": 0})"},
};

INSTANTIATE_TEST_SUITE_P(DeviceControl, PackTest, testing::ValuesIn(kPacks), RowName());

const Parse kDiscover = MakeParse("CBRMSModule::ParseBatchDiscoverDevices", &CBRMSModule::ParseBatchDiscoverDevices);
const Parse kControl = MakeParse("CBRMSModule::ParseChannelControl", &CBRMSModule::ParseChannelControl);

std::vector<ParseRow> ParseRows()
{
    return Joined({
        Variations(kDiscover, {Text("session", kItself)}, R"({"session": "s-1"})"),
        Variations(
            kControl,
            {Records<APIModule::ChannelControlRsp>("failedChannels", {Text("channelId"), Int("errorCode")}, kItself)},
            R"({"failedChannels": [{"channelId": "ch1", "errorCode": 5},
                                          {"channelId": "ch2", "errorCode": -6}]})"),
        {
            Row("Control_complete_entry_before_one_without_errorCode", kControl,
                R"({"failedChannels": [{"channelId": "ch1", "errorCode": 5}, {"channelId": "ch2"},
                                       {"channelId": "ch3", "errorCode": 7}]})",
                "[]", -1, R"([{"channelId": "ch1", "errorCode": 5}])", {MissingKey("errorCode")}),
            Row("Control_without_failedChannels_leaves_the_vector", kControl, R"({"channels": []})",
                R"([{"channelId": "before", "errorCode": 1}])", -1, R"([{"channelId": "before", "errorCode": 1}])",
                {MissingKey("failedChannels")}),
            Row("Control_of_an_empty_list_is_a_success", kControl, R"({"failedChannels": []})",
                R"([{"channelId": "before", "errorCode": 1}])", 0, R"([{"channelId": "before", "errorCode": 1}])"),
            Row("Control_appends_behind_what_was_there", kControl,
                R"({"failedChannels": [{"channelId": 12, "errorCode": "5"}]})",
                R"([{"channelId": "before", "errorCode": 1}])", 0,
                R"([{"channelId": "before", "errorCode": 1}, {"channelId": "12", "errorCode": 5}])"),
            Row("Control_element_that_is_no_object_reads_as_an_empty_one", kControl,
                R"({"failedChannels": [{"channelId": "ch1", "errorCode": 5}, "ch2"]})", "[]", -1,
                R"([{"channelId": "ch1", "errorCode": 5}])", {EmptyObject()}),
        },
    });
}

INSTANTIATE_TEST_SUITE_P(DeviceControl, ParseTest, testing::ValuesIn(ParseRows()), RowName());

const RecordRow kRecords[] = {
    FieldsOf<APIModule::IPSpeakerChannel>("IPSpeakerChannel", "channelId fileIds playCount"),
    FieldsOf<APIModule::IPSpeakerControl>("IPSpeakerControl", "channels command"),
    FieldsOf<APIModule::ChannelControlRsp>("ChannelControlRsp", "channelId errorCode"),
};

INSTANTIATE_TEST_SUITE_P(DeviceControl, RecordTest, testing::ValuesIn(kRecords), RowName());

}  // namespace
