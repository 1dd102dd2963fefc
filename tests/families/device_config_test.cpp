// Settings of one device or channel.
#include "support/Family.h"

#include <BRMS/BRMSModule.h>
#include <BRMS/DeviceConfigFields.h>

namespace {

using namespace family_testing;
using namespace std::string_literals;
using APIModule::CBRMSModule;
using APIModule::EncodeConfig;
using APIModule::ImageConfig;
using APIModule::Method_Get;
using APIModule::Method_Put;
using APIModule::MultiCastConfigInfo;
using APIModule::MultiCastStreamStatus;
using APIModule::NetworkConfig;

using Run = std::function<int(void*, int)>;

/// A Pack of the identifier of a device or channel alone.
Run WithId(int (*pack)(void*, const std::string&, int), const std::string& id)
{
    return [=](void* param, int nServerId) { return pack(param, id, nServerId); };
}

/// A Pack whose argument it could change, and may not.
template <typename Config>
Run WithConfig(int (*pack)(void*, Config&, int), const Config& config)
{
    return [=](void* param, int nServerId) {
        Config argument = config;
        const int nResult = pack(param, argument, nServerId);
        EXPECT_EQ(ToJson(argument), ToJson(config)) << "the argument changed";
        return nResult;
    };
}

Run UpdateEncode(const std::string& channelId, const std::vector<EncodeConfig>& configs)
{
    return [=](void* param, int nServerId) {
        std::vector<EncodeConfig> argument = configs;
        const int nResult = CBRMSModule::PacketUpdateEncodeConfig(param, channelId, argument, nServerId);
        EXPECT_EQ(ToJson(argument), ToJson(configs)) << "the argument changed";
        return nResult;
    };
}

Run GetCapability(const std::string& channelId, int streamType)
{
    return [=](void* param, int nServerId) {
        return CBRMSModule::PacketGetEncodeCapability(param, channelId, streamType, nServerId);
    };
}

Run SetMultiCast(const MultiCastConfigInfo& info)
{
    return [=](void* param, int nServerId) { return CBRMSModule::PacketSetMultiCastConfig(param, info, nServerId); };
}

Run SetStreamStatus(const MultiCastStreamStatus& status)
{
    return [=](void* param, int nServerId) {
        return CBRMSModule::PacketSetMultiCastStreamStatus(param, status, nServerId);
    };
}

const PackRow kPacks[] = {
    {"GetNetworkConfig", "CBRMSModule::PacketGetNetworkConfig", WithId(&CBRMSModule::PacketGetNetworkConfig, "dev1"),
     Method_Get, "/brms/api/v1.1/device/dev1/config/network"},
    {"GetNetworkConfig_code_is_not_escaped", "CBRMSModule::PacketGetNetworkConfig",
     WithId(&CBRMSModule::PacketGetNetworkConfig, "a b/\xC3\xBC?\"%1#"), Method_Get,
     "/brms/api/v1.1/device/a b/\xC3\xBC?\"%1#/config/network"},
    {"GetNetworkConfig_code_goes_whole", "CBRMSModule::PacketGetNetworkConfig",
     WithId(&CBRMSModule::PacketGetNetworkConfig, "a\0b\xFF"s), Method_Get,
     "/brms/api/v1.1/device/a\0b\xEF\xBF\xBD/config/network"s},
    {"GetNetworkConfig_empty_code", "CBRMSModule::PacketGetNetworkConfig",
     WithId(&CBRMSModule::PacketGetNetworkConfig, ""), Method_Get, "/brms/api/v1.1/device//config/network"},

    {"UpdateNetworkConfig", "CBRMSModule::PacketUpdateNetworkConfig",
     WithConfig(&CBRMSModule::PacketUpdateNetworkConfig,
                NetworkConfig{"dev1", "10.0.0.7", "255.255.255.0", "10.0.0.1", "10.0.0.2"}),
     Method_Put, "/brms/api/v1.1/device/dev1/config/network",
     R"({"ip": "10.0.0.7", "mask": "255.255.255.0", "gateway": "10.0.0.1", "dns": "10.0.0.2"})"},
    {"UpdateNetworkConfig_fresh", "CBRMSModule::PacketUpdateNetworkConfig",
     WithConfig(&CBRMSModule::PacketUpdateNetworkConfig, NetworkConfig()), Method_Put,
     "/brms/api/v1.1/device//config/network", R"({"ip": "", "mask": "", "gateway": "", "dns": ""})"},
    {"UpdateNetworkConfig_texts_end_at_a_zero_byte_but_the_code", "CBRMSModule::PacketUpdateNetworkConfig",
     WithConfig(&CBRMSModule::PacketUpdateNetworkConfig,
                NetworkConfig{"d\0e"s, "a\0b"s, "\0b"s, "\xC3\xBC\0b"s, "\xFF\0b"s}),
     Method_Put, "/brms/api/v1.1/device/d\0e/config/network"s,
     R"({"ip": "a", "mask": "", "gateway": "\u00fc", "dns": "\ufffd"})"},

    {"GetEncodeConfig", "CBRMSModule::PacketGetEncodeConfig", WithId(&CBRMSModule::PacketGetEncodeConfig, "ch7"),
     Method_Get, "/brms/api/v1.1/device/channel/ch7/config/encode"},
    {"GetEncodeConfig_channel_goes_whole", "CBRMSModule::PacketGetEncodeConfig",
     WithId(&CBRMSModule::PacketGetEncodeConfig, "a\0\xC3\xBC%1"s), Method_Get,
     "/brms/api/v1.1/device/channel/a\0\xC3\xBC%1/config/encode"s},

    {"UpdateEncodeConfig", "CBRMSModule::PacketUpdateEncodeConfig",
     UpdateEncode("ch7", {{"other", 1, 4096, 2, 3, 1, 25, 50, 1080, 1920}, {"", 2, -512, 0, 4, 0, 12, 24, 288, 352}}),
     Method_Put, "/brms/api/v1.1/device/channel/ch7/config/encode",
     R"({"encodeConfigurations": [
         {"streamType": 1, "bitRate": 4096, "bitRateControl": 2, "compression": 3, "enable": 1, "frameRate": 25,
          "iFrameInterval": 50, "height": 1080, "width": 1920},
         {"streamType": 2, "bitRate": -512, "bitRateControl": 0, "compression": 4, "enable": 0, "frameRate": 12,
          "iFrameInterval": 24, "height": 288, "width": 352}]})"},
    {"UpdateEncodeConfig_fresh_stream", "CBRMSModule::PacketUpdateEncodeConfig", UpdateEncode("a\0b"s, {{}}),
     Method_Put, "/brms/api/v1.1/device/channel/a\0b/config/encode"s,
     R"({"encodeConfigurations": [
         {"streamType": 0, "bitRate": 0, "bitRateControl": 0, "compression": 0, "enable": 0, "frameRate": 0,
          "iFrameInterval": 0, "height": 0, "width": 0}]})"},
    {"UpdateEncodeConfig_no_stream", "CBRMSModule::PacketUpdateEncodeConfig", UpdateEncode("ch7", {}), Method_Put,
     "/brms/api/v1.1/device/channel/ch7/config/encode", R"({"encodeConfigurations": []})"},

    {"GetEncodeCapability_of_ch7_and_stream_type_2", "CBRMSModule::PacketGetEncodeCapability", GetCapability("ch7", 2),
     Method_Get, "/brms/api/v1.1/device/channel/ch7/capability/encode?streamType=2"},
    {"GetEncodeCapability_marker_in_the_channel_is_rewritten", "CBRMSModule::PacketGetEncodeCapability",
     GetCapability("a%2b", -3), Method_Get, "/brms/api/v1.1/device/channel/a-3b/capability/encode?streamType=-3"},
    {"GetEncodeCapability_channel_goes_whole", "CBRMSModule::PacketGetEncodeCapability", GetCapability("a\0b c"s, 0),
     Method_Get, "/brms/api/v1.1/device/channel/a\0b c/capability/encode?streamType=0"s},

    {"GetImageConfig", "CBRMSModule::PacketGetImageConfig", WithId(&CBRMSModule::PacketGetImageConfig, "ch7"),
     Method_Get, "/brms/api/v1.1/device/channel/ch7/config/video"},
    {"GetImageConfig_channel_goes_whole", "CBRMSModule::PacketGetImageConfig",
     WithId(&CBRMSModule::PacketGetImageConfig, "a\0b"s), Method_Get,
     "/brms/api/v1.1/device/channel/a\0b/config/video"s},

    {"UpdateImageConfig", "CBRMSModule::PacketUpdateImageConfig",
     WithConfig(&CBRMSModule::PacketUpdateImageConfig, ImageConfig{"ch7", 50, -60, 70, 80}), Method_Put,
     "/brms/api/v1.1/device/channel/ch7/config/video",
     R"({"brightness": 50, "saturation": -60, "contrast": 70, "sharpness": 80})"},
    {"UpdateImageConfig_fresh", "CBRMSModule::PacketUpdateImageConfig",
     WithConfig(&CBRMSModule::PacketUpdateImageConfig, ImageConfig()), Method_Put,
     "/brms/api/v1.1/device/channel//config/video",
     R"({"brightness": 0, "saturation": 0, "contrast": 0, "sharpness": 0})"},
    {"UpdateImageConfig_channel_goes_whole", "CBRMSModule::PacketUpdateImageConfig",
     WithConfig(&CBRMSModule::PacketUpdateImageConfig, ImageConfig{"a\0b"s, 1, 2, 3, 4}), Method_Put,
     "/brms/api/v1.1/device/channel/a\0b/config/video"s,
     R"({"brightness": 1, "saturation": 2, "contrast": 3, "sharpness": 4})"},

    {"GetMultiCastConfig", "CBRMSModule::PacketGetMultiCastConfig",
     WithId(&CBRMSModule::PacketGetMultiCastConfig, "ch7"), Method_Get,
     "/brms/api/v1.1/device/channel/ch7/config/multicast"},
    {"GetMultiCastConfig_channel_goes_whole", "CBRMSModule::PacketGetMultiCastConfig",
     WithId(&CBRMSModule::PacketGetMultiCastConfig, "a\0b"s), Method_Get,
     "/brms/api/v1.1/device/channel/a\0b/config/multicast"s},

    {"SetMultiCastConfig_stream_type_2_on_is_sent_as_texts", "CBRMSModule::PacketSetMultiCastConfig",
     SetMultiCast({"ch7", false, {{"239.0.0.1", "5000", 2, true}}}), Method_Put,
     "/brms/api/v1.1/device/channel/ch7/config/multicast",
     R"({"status": "0", "streams": [{"status": "1", "multicastIp": "239.0.0.1", "multicastPort": "5000",
                                     "streamType": "2"}]})"},
    {"SetMultiCastConfig_streams_in_their_order", "CBRMSModule::PacketSetMultiCastConfig",
     SetMultiCast({"ch7", true, {{"239.0.0.2", "", -3, false}, {}}}), Method_Put,
     "/brms/api/v1.1/device/channel/ch7/config/multicast",
     R"({"status": "1", "streams": [
         {"status": "0", "multicastIp": "239.0.0.2", "multicastPort": "", "streamType": "-3"},
         {"status": "0", "multicastIp": "", "multicastPort": "", "streamType": "1"}]})"},
    {"SetMultiCastConfig_no_stream", "CBRMSModule::PacketSetMultiCastConfig", SetMultiCast({}), Method_Put,
     "/brms/api/v1.1/device/channel//config/multicast", R"({"status": "0", "streams": []})"},
    {"SetMultiCastConfig_texts_end_at_a_zero_byte_but_the_channel", "CBRMSModule::PacketSetMultiCastConfig",
     SetMultiCast({"a\0b"s, true, {{"\xC3\xBC\0x"s, "5\0x"s, 1, true}}}), Method_Put,
     "/brms/api/v1.1/device/channel/a\0b/config/multicast"s,
     R"({"status": "1", "streams": [{"status": "1", "multicastIp": "\u00fc", "multicastPort": "5",
                                     "streamType": "1"}]})"},

    {"SetMultiCastStreamStatus_on", "CBRMSModule::PacketSetMultiCastStreamStatus", SetStreamStatus({"ch7", 2, true}),
     Method_Put, "/brms/api/v1.1/device/channel/ch7/config/multicast/stream/status",
     R"({"status": "1", "streamType": "2"})"},
    {"SetMultiCastStreamStatus_off_negative_type", "CBRMSModule::PacketSetMultiCastStreamStatus",
     SetStreamStatus({"a\0b"s, -2, false}), Method_Put,
     "/brms/api/v1.1/device/channel/a\0b/config/multicast/stream/status"s, R"({"status": "0", "streamType": "-2"})"},
    {"SetMultiCastStreamStatus_fresh", "CBRMSModule::PacketSetMultiCastStreamStatus", SetStreamStatus({}), Method_Put,
     "/brms/api/v1.1/device/channel//config/multicast/stream/status", R"({"status": "0", "streamType": "0"})"},
};

INSTANTIATE_TEST_SUITE_P(DeviceConfig, PackTest, testing::ValuesIn(kPacks), RowName());

const Parse kNetwork = MakeParse("CBRMSModule::ParseGetNetworkConfig", &CBRMSModule::ParseGetNetworkConfig);
const Parse kEncode = MakeParse("CBRMSModule::ParseGetEncodeConfig", &CBRMSModule::ParseGetEncodeConfig);
const Parse kCapability = MakeParse("CBRMSModule::ParseGetEncodeCapability", &CBRMSModule::ParseGetEncodeCapability);
const Parse kImage = MakeParse("CBRMSModule::ParseGetImageConfig", &CBRMSModule::ParseGetImageConfig);
const Parse kMultiCast = MakeParse("CBRMSModule::ParseGetMultiCastConfig", &CBRMSModule::ParseGetMultiCastConfig);

const char* const kWholeCapability = R"({
    "supportCompressions": ["1", "3"],
    "encodeCapabilities": [
        {"compression": 1, "formats": [{"frameRateMax": 25, "videoHeight": 1080, "videoWidth": 1920},
                                       {"frameRateMax": 50, "videoHeight": 720, "videoWidth": 1280}]},
        {"compression": 3, "formats": [{"frameRateMax": 12, "videoHeight": 576, "videoWidth": 704},
                                       {"frameRateMax": 6, "videoHeight": 288, "videoWidth": 352}]}]})";

std::vector<ParseRow> ParseRows()
{
    return Joined({
        Variations(kNetwork, {Text("ip"), Text("mask"), Text("gateway"), Text("dns")},
                   R"({"ip": "10.0.0.7", "mask": "255.255.255.0", "gateway": "10.0.0.1", "dns": "10.0.0.2",
                       "deviceCode": "not read"})"),
        Variations(kEncode,
                   {Records<EncodeConfig>("encodeConfigurations",
                                          {Int("streamType"), Int("bitRate"), Int("bitRateControl"), Int("compression"),
                                           Int("enable"), Int("frameRate"), Int("iFrameInterval"), Int("height"),
                                           Int("width")},
                                          kItself)},
                   R"({"encodeConfigurations": [
                       {"streamType": 1, "bitRate": 4096, "bitRateControl": 2, "compression": 3, "enable": 1,
                        "frameRate": 25, "iFrameInterval": 50, "height": 1080, "width": 1920, "channelId": "not read"},
                       {"streamType": 2, "bitRate": 512, "bitRateControl": 0, "compression": 4, "enable": 0,
                        "frameRate": 12, "iFrameInterval": 24, "height": 288, "width": 352}]})"),
        Variations(
            kCapability,
            {NumbersOfTexts("supportCompressions"),
             Records<APIModule::EncodeCompressionCapability>(
                 "encodeCapabilities",
                 {Int("compression"), Records<APIModule::EncodeFormat>(
                                          "formats", {Int("frameRateMax"), Int("videoHeight"), Int("videoWidth")})})},
            kWholeCapability),
        Variations(kImage, {Int("brightness"), Int("saturation"), Int("contrast"), Int("sharpness")},
                   R"({"brightness": 50, "saturation": -60, "contrast": 70, "sharpness": 80,
                       "channelId": "not read"})"),
        Variations(
            kMultiCast,
            {Bool("status"), Records<APIModule::MultiCastStream>("streams", {Text("multicastIp"), Text("multicastPort"),
                                                                             Int("streamType"), Bool("status")})},
            R"({"status": true, "channelId": "not read", "streams": [
                {"multicastIp": "239.0.0.1", "multicastPort": "5000", "streamType": 2, "status": true},
                {"multicastIp": "239.0.0.2", "multicastPort": "5002", "streamType": 1, "status": false}]})"),
        {
            Row("Network_of_an_empty_object_keeps_everything", kNetwork, "{}",
                R"({"deviceCode": "dev1", "ip": "a", "mask": "b", "gateway": "c", "dns": "d"})", -1,
                R"({"deviceCode": "dev1", "ip": "a", "mask": "b", "gateway": "c", "dns": "d"})", {EmptyObject()}),
            Row("Network_without_gateway_fills_the_two_before_it", kNetwork, R"({"ip": "1", "mask": "2", "dns": "4"})",
                R"({"deviceCode": "dev1", "ip": "a", "mask": "b", "gateway": "c", "dns": "d"})", -1,
                R"({"deviceCode": "dev1", "ip": "1", "mask": "2", "gateway": "c", "dns": "d"})",
                {MissingKey("gateway")}),
            Row("Encode_second_of_three_without_width_leaves_the_first", kEncode,
                R"({"encodeConfigurations": [
                    {"streamType": 1, "bitRate": 2, "bitRateControl": 3, "compression": 4, "enable": 5,
                     "frameRate": 6, "iFrameInterval": 7, "height": 8, "width": 9},
                    {"streamType": 1, "bitRate": 2, "bitRateControl": 3, "compression": 4, "enable": 5,
                     "frameRate": 6, "iFrameInterval": 7, "height": 8},
                    {"streamType": 1, "bitRate": 2, "bitRateControl": 3, "compression": 4, "enable": 5,
                     "frameRate": 6, "iFrameInterval": 7, "height": 8, "width": 9}]})",
                "[]", -1,
                R"([{"channelId": "", "streamType": 1, "bitRate": 2, "bitRateControl": 3, "compression": 4,
                     "enable": 5, "frameRate": 6, "iFrameInterval": 7, "height": 8, "width": 9}])",
                {MissingKey("width")}),
            Row("Encode_of_an_empty_list_leaves_the_vector", kEncode, R"({"encodeConfigurations": []})", "[]", 0, "[]"),
            Row("Encode_element_that_is_no_object_reads_as_an_empty_one", kEncode,
                R"({"encodeConfigurations": [null]})", "[]", -1, "[]", {EmptyObject()}),
            Row("Encode_converts_texts_null_and_flags", kEncode,
                R"({"encodeConfigurations": [
                    {"streamType": "12", "bitRate": "abc", "bitRateControl": null, "compression": true,
                     "enable": false, "frameRate": 24.5, "iFrameInterval": "", "height": [1], "width": {"a": 1}}]})",
                "[]", 0,
                R"([{"channelId": "", "streamType": 12, "bitRate": 0, "bitRateControl": 0, "compression": 1,
                     "enable": 0, "frameRate": 25, "iFrameInterval": 0, "height": 0, "width": 0}])"),
            Row("Capability_compressions_given_as_numbers_are_zeros", kCapability,
                R"({"supportCompressions": [1, 3], "encodeCapabilities": []})",
                R"({"supportCompressions": [7], "encodeCapabilities": []})", 0,
                R"({"supportCompressions": [7, 0, 0], "encodeCapabilities": []})"),
            Row("Capability_without_encodeCapabilities_keeps_the_compressions", kCapability,
                R"({"supportCompressions": ["1", "x", "-3"]})",
                R"({"supportCompressions": [], "encodeCapabilities": []})", -1,
                R"({"supportCompressions": [1, 0, -3], "encodeCapabilities": []})", {MissingKey("encodeCapabilities")}),
            Row("Capability_second_with_a_format_without_videoWidth_leaves_the_first", kCapability,
                R"({"supportCompressions": [], "encodeCapabilities": [
                    {"compression": 1, "formats": [{"frameRateMax": 25, "videoHeight": 1080, "videoWidth": 1920}]},
                    {"compression": 3, "formats": [{"frameRateMax": 25, "videoHeight": 1080, "videoWidth": 1920},
                                                   {"frameRateMax": 12, "videoHeight": 576}]}]})",
                R"({"supportCompressions": [], "encodeCapabilities": []})", -1,
                R"({"supportCompressions": [], "encodeCapabilities": [
                    {"compression": 1, "formats": [{"frameRateMax": 25, "videoHeight": 1080, "videoWidth": 1920}]}]})",
                {MissingKey("videoWidth")}),
            Row("Capability_without_formats_inside_is_appended", kCapability,
                R"({"supportCompressions": [], "encodeCapabilities": [{"compression": 1, "formats": []}]})",
                R"({"supportCompressions": [], "encodeCapabilities": []})", 0,
                R"({"supportCompressions": [], "encodeCapabilities": [{"compression": 1, "formats": []}]})"),
            Row("Image_of_convertible_values", kImage,
                R"({"brightness": "12", "saturation": true, "contrast": null, "sharpness": "abc"})",
                R"({"channelId": "ch7", "brightness": 1, "saturation": 2, "contrast": 3, "sharpness": 4})", 0,
                R"({"channelId": "ch7", "brightness": 12, "saturation": 1, "contrast": 0, "sharpness": 0})"),
            Row("MultiCast_stream_without_status_ends_the_reading", kMultiCast,
                R"({"status": true, "streams": [
                    {"multicastIp": "a", "multicastPort": 5000, "streamType": "2", "status": "1"},
                    {"multicastIp": "b", "multicastPort": "", "streamType": 1}]})",
                R"({"channelId": "ch7", "status": false, "streams": []})", -1,
                R"({"channelId": "ch7", "status": true, "streams": [
                    {"multicastIp": "a", "multicastPort": "5000", "streamType": 2, "status": true}]})",
                {MissingKey("status")}),
            Row("MultiCast_without_streams_keeps_the_status", kMultiCast, R"({"status": true})",
                R"({"channelId": "ch7", "status": false, "streams": []})", -1,
                R"({"channelId": "ch7", "status": true, "streams": []})", {MissingKey("streams")}),
        },
    });
}

INSTANTIATE_TEST_SUITE_P(DeviceConfig, ParseTest, testing::ValuesIn(ParseRows()), RowName());

TEST(DeviceConfig, FreshRecords)
{
    EXPECT_EQ(ToJson(APIModule::MultiCastStream()),
              Json::parse(R"({"multicastIp": "", "multicastPort": "", "streamType": 1, "status": false})"));
    EXPECT_EQ(ToJson(MultiCastStreamStatus()), Json::parse(R"({"channelId": "", "streamType": 0, "status": false})"));
}

const RecordRow kRecords[] = {
    FieldsOf<APIModule::NetworkConfig>("NetworkConfig", "deviceCode ip mask gateway dns"),
    FieldsOf<APIModule::EncodeConfig>(
        "EncodeConfig",
        "channelId streamType bitRate bitRateControl compression enable frameRate iFrameInterval height width"),
    FieldsOf<APIModule::EncodeFormat>("EncodeFormat", "frameRateMax videoHeight videoWidth"),
    FieldsOf<APIModule::EncodeCompressionCapability>("EncodeCompressionCapability", "compression formats"),
    FieldsOf<APIModule::EncodeCapability>("EncodeCapability", "supportCompressions encodeCapabilities"),
    FieldsOf<APIModule::ImageConfig>("ImageConfig", "channelId brightness saturation contrast sharpness"),
    FieldsOf<APIModule::MultiCastStream>("MultiCastStream", "multicastIp multicastPort streamType status"),
    FieldsOf<APIModule::MultiCastConfigInfo>("MultiCastConfigInfo", "channelId status streams"),
    FieldsOf<APIModule::MultiCastStreamStatus>("MultiCastStreamStatus", "channelId streamType status"),
};

INSTANTIATE_TEST_SUITE_P(DeviceConfig, RecordTest, testing::ValuesIn(kRecords), RowName());

}  // namespace
