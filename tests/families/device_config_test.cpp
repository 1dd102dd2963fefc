// Settings of one device or channel.
#include "support/Bind.h"
#include "support/Family.h"

#include <BRMS/BRMSModule.h>
#include <BRMS/DeviceConfigFields.h>

namespace {

using namespace family_testing;
using namespace std::string_literals;
using namespace APIModule;

const UrlPack<const std::string&> kGetNetworkConfig(NAMED(CBRMSModule::PacketGetNetworkConfig), Method_Get,
                                                    "/brms/api/v1.1/device/");
const UrlPack<NetworkConfig&> kUpdateNetworkConfig(NAMED(CBRMSModule::PacketUpdateNetworkConfig), Method_Put,
                                                   "/brms/api/v1.1/device/");
const UrlPack<const std::string&> kGetEncodeConfig(NAMED(CBRMSModule::PacketGetEncodeConfig), Method_Get,
                                                   "/brms/api/v1.1/device/channel/");
const UrlPack<const std::string&, std::vector<EncodeConfig>&> kUpdateEncodeConfig(
    NAMED(CBRMSModule::PacketUpdateEncodeConfig), Method_Put, "/brms/api/v1.1/device/channel/");
const UrlPack<const std::string&, int> kGetEncodeCapability(NAMED(CBRMSModule::PacketGetEncodeCapability), Method_Get,
                                                            "/brms/api/v1.1/device/channel/");
const UrlPack<const std::string&> kGetImageConfig(NAMED(CBRMSModule::PacketGetImageConfig), Method_Get,
                                                  "/brms/api/v1.1/device/channel/");
const UrlPack<ImageConfig&> kUpdateImageConfig(NAMED(CBRMSModule::PacketUpdateImageConfig), Method_Put,
                                               "/brms/api/v1.1/device/channel/");
const UrlPack<const std::string&> kGetMultiCastConfig(NAMED(CBRMSModule::PacketGetMultiCastConfig), Method_Get,
                                                      "/brms/api/v1.1/device/channel/");
const UrlPack<const MultiCastConfigInfo&> kSetMultiCastConfig(NAMED(CBRMSModule::PacketSetMultiCastConfig), Method_Put,
                                                              "/brms/api/v1.1/device/channel/");
const UrlPack<const MultiCastStreamStatus&> kSetMultiCastStreamStatus(
    NAMED(CBRMSModule::PacketSetMultiCastStreamStatus), Method_Put, "/brms/api/v1.1/device/channel/");

const std::vector<PackRow> kPacks = Joined<PackRow>({
    TextRows("GetNetworkConfig", kGetNetworkConfig, "/config/network"),
    kUpdateNetworkConfig("UpdateNetworkConfig", {"dev1", "10.0.0.7", "255.255.255.0", "10.0.0.1", "10.0.0.2"},
                         "dev1/config/network",
                         R"({"ip": "10.0.0.7", "mask": "255.255.255.0", "gateway": "10.0.0.1", "dns": "10.0.0.2"})"),
    kUpdateNetworkConfig("UpdateNetworkConfig_fresh", {}, "/config/network",
                         R"({"ip": "", "mask": "", "gateway": "", "dns": ""})"),
    kUpdateNetworkConfig("UpdateNetworkConfig_texts_end_at_a_zero_byte_but_the_code",
                         {"d\0e"s, "a\0b"s, "\0b"s, "\xC3\xBC\0b"s, "\xFF\0b"s}, "d\0e/config/network"s,
                         R"({"ip": "a", "mask": "", "gateway": "\u00fc", "dns": "\ufffd"})"),

    TextRows("GetEncodeConfig", kGetEncodeConfig, "/config/encode"),
    kUpdateEncodeConfig("UpdateEncodeConfig", "ch7",
                        {{"other", 1, 4096, 2, 3, 1, 25, 50, 1080, 1920}, {"", 2, -512, 0, 4, 0, 12, 24, 288, 352}},
                        "ch7/config/encode", R"({"encodeConfigurations": [
         {"streamType": 1, "bitRate": 4096, "bitRateControl": 2, "compression": 3, "enable": 1, "frameRate": 25,
          "iFrameInterval": 50, "height": 1080, "width": 1920},
         {"streamType": 2, "bitRate": -512, "bitRateControl": 0, "compression": 4, "enable": 0, "frameRate": 12,
          "iFrameInterval": 24, "height": 288, "width": 352}]})"),
    kUpdateEncodeConfig("UpdateEncodeConfig_fresh_stream", "a\0b"s, {{}}, "a\0b/config/encode"s,
                        R"({"encodeConfigurations": [
         {"streamType": 0, "bitRate": 0, "bitRateControl": 0, "compression": 0, "enable": 0, "frameRate": 0,
          "iFrameInterval": 0, "height": 0, "width": 0}]})"),
    kUpdateEncodeConfig("UpdateEncodeConfig_no_stream", "ch7", {}, "ch7/config/encode",
                        R"({"encodeConfigurations": []})"),

    kGetEncodeCapability("GetEncodeCapability_of_ch7_and_stream_type_2", "ch7", 2,
                         "ch7/capability/encode?streamType=2"),
    kGetEncodeCapability("GetEncodeCapability_marker_in_the_channel_is_replaced", "a%2b", -3,
                         "a-3b/capability/encode?streamType=-3"),
    kGetEncodeCapability("GetEncodeCapability_channel_is_sent_completely", "a\0b c"s, 0,
                         "a\0b c/capability/encode?streamType=0"s),

    TextRows("GetImageConfig", kGetImageConfig, "/config/video"),
    kUpdateImageConfig("UpdateImageConfig", {"ch7", 50, -60, 70, 80}, "ch7/config/video",
                       R"({"brightness": 50, "saturation": -60, "contrast": 70, "sharpness": 80})"),
    kUpdateImageConfig("UpdateImageConfig_fresh", {}, "/config/video",
                       R"({"brightness": 0, "saturation": 0, "contrast": 0, "sharpness": 0})"),
    kUpdateImageConfig("UpdateImageConfig_channel_is_sent_completely", {"a\0b"s, 1, 2, 3, 4}, "a\0b/config/video"s,
                       R"({"brightness": 1, "saturation": 2, "contrast": 3, "sharpness": 4})"),

    TextRows("GetMultiCastConfig", kGetMultiCastConfig, "/config/multicast"),
    kSetMultiCastConfig(
        "SetMultiCastConfig_stream_type_2_on_is_sent_as_texts", {"ch7", false, {{"239.0.0.1", "5000", 2, true}}},
        "ch7/config/multicast",
        R"({"status": "0", "streams": [{"status": "1", "multicastIp": "239.0.0.1", "multicastPort": "5000",
                                     "streamType": "2"}]})"),
    kSetMultiCastConfig("SetMultiCastConfig_streams_in_their_order", {"ch7", true, {{"239.0.0.2", "", -3, false}, {}}},
                        "ch7/config/multicast", R"({"status": "1", "streams": [
         {"status": "0", "multicastIp": "239.0.0.2", "multicastPort": "", "streamType": "-3"},
         {"status": "0", "multicastIp": "", "multicastPort": "", "streamType": "1"}]})"),
    kSetMultiCastConfig("SetMultiCastConfig_no_stream", {}, "/config/multicast", R"({"status": "0", "streams": []})"),
    kSetMultiCastConfig("SetMultiCastConfig_texts_end_at_a_zero_byte_but_the_channel",
                        {"a\0b"s, true, {{"\xC3\xBC\0x"s, "5\0x"s, 1, true}}}, "a\0b/config/multicast"s,
                        R"({"status": "1", "streams": [{"status": "1", "multicastIp": "\u00fc", "multicastPort": "5",
                                     "streamType": "1"}]})"),

    kSetMultiCastStreamStatus("SetMultiCastStreamStatus_on", {"ch7", 2, true}, "ch7/config/multicast/stream/status",
                              R"({"status": "1", "streamType": "2"})"),
    kSetMultiCastStreamStatus("SetMultiCastStreamStatus_off_negative_type", {"a\0b"s, -2, false},
                              "a\0b/config/multicast/stream/status"s, R"({"status": "0", "streamType": "-2"})"),
    kSetMultiCastStreamStatus("SetMultiCastStreamStatus_fresh", {}, "/config/multicast/stream/status",
                              R"({"status": "0", "streamType": "0"})"),
});

INSTANTIATE_TEST_SUITE_P(DeviceConfig, PackTest, testing::ValuesIn(kPacks), RowName());

const Parse kNetwork = MakeParse(NAMED(CBRMSModule::ParseGetNetworkConfig));
const Parse kEncode = MakeParse(NAMED(CBRMSModule::ParseGetEncodeConfig));
const Parse kCapability = MakeParse(NAMED(CBRMSModule::ParseGetEncodeCapability));
const Parse kImage = MakeParse(NAMED(CBRMSModule::ParseGetImageConfig));
const Parse kMultiCast = MakeParse(NAMED(CBRMSModule::ParseGetMultiCastConfig));

const char* const kWholeCapability = R"({
    "supportCompressions": ["1", "3"],
    "encodeCapabilities": [
        {"compression": 1, "formats": [{"frameRateMax": 25, "videoHeight": 1080, "videoWidth": 1920},
                                       {"frameRateMax": 50, "videoHeight": 720, "videoWidth": 1280}]},
        {"compression": 3, "formats": [{"frameRateMax": 12, "videoHeight": 576, "videoWidth": 704},
                                       {"frameRateMax": 6, "videoHeight": 288, "videoWidth": 352}]}]})";

const std::vector<ParseRow> kParses = Joined<ParseRow>({
    Variations(kNetwork, {Text("ip"), Text("mask"), Text("gateway"), Text("dns")},
               R"({"ip": "10.0.0.7", "mask": "255.255.255.0", "gateway": "10.0.0.1", "dns": "10.0.0.2",
                   "deviceCode": "not read"})"),
    Variations(
        kEncode,
        {Records<EncodeConfig>("encodeConfigurations",
                               {Int("streamType"), Int("bitRate"), Int("bitRateControl"), Int("compression"),
                                Int("enable"), Int("frameRate"), Int("iFrameInterval"), Int("height"), Int("width")},
                               kItself)},
        R"({"encodeConfigurations": [
                   {"streamType": 1, "bitRate": 4096, "bitRateControl": 2, "compression": 3, "enable": 1,
                    "frameRate": 25, "iFrameInterval": 50, "height": 1080, "width": 1920, "channelId": "not read"},
                   {"streamType": 2, "bitRate": 512, "bitRateControl": 0, "compression": 4, "enable": 0,
                    "frameRate": 12, "iFrameInterval": 24, "height": 288, "width": 352}]})"),
    Variations(kCapability,
               {NumbersOfTexts("supportCompressions"),
                Records<EncodeCompressionCapability>(
                    "encodeCapabilities",
                    {Int("compression"),
                     Records<EncodeFormat>("formats", {Int("frameRateMax"), Int("videoHeight"), Int("videoWidth")})})},
               kWholeCapability),
    Variations(kImage, {Int("brightness"), Int("saturation"), Int("contrast"), Int("sharpness")},
               R"({"brightness": 50, "saturation": -60, "contrast": 70, "sharpness": 80,
                   "channelId": "not read"})"),
    Variations(kMultiCast,
               {Bool("status"), Records<MultiCastStream>("streams", {Text("multicastIp"), Text("multicastPort"),
                                                                     Int("streamType"), Bool("status")})},
               R"({"status": true, "channelId": "not read", "streams": [
            {"multicastIp": "239.0.0.1", "multicastPort": "5000", "streamType": 2, "status": true},
            {"multicastIp": "239.0.0.2", "multicastPort": "5002", "streamType": 1, "status": false}]})"),
    Row("Network_of_an_empty_object_keeps_everything", kNetwork, "{}",
        R"({"deviceCode": "dev1", "ip": "a", "mask": "b", "gateway": "c", "dns": "d"})", "{}", EmptyObject()),
    Row("Network_without_gateway_fills_the_two_before_it", kNetwork, R"({"ip": "1", "mask": "2", "dns": "4"})",
        R"({"deviceCode": "dev1", "ip": "a", "mask": "b", "gateway": "c", "dns": "d"})", R"({"ip": "1", "mask": "2"})",
        MissingKey("gateway")),
    Row("Encode_second_of_three_without_width_keeps_the_first", kEncode, R"({"encodeConfigurations": [
            {"streamType": 1, "bitRate": 2, "bitRateControl": 3, "compression": 4, "enable": 5,
             "frameRate": 6, "iFrameInterval": 7, "height": 8, "width": 9},
            {"streamType": 1, "bitRate": 2, "bitRateControl": 3, "compression": 4, "enable": 5,
             "frameRate": 6, "iFrameInterval": 7, "height": 8},
            {"streamType": 1, "bitRate": 2, "bitRateControl": 3, "compression": 4, "enable": 5,
             "frameRate": 6, "iFrameInterval": 7, "height": 8, "width": 9}]})",
        "[]",
        R"([{"streamType": 1, "bitRate": 2, "bitRateControl": 3, "compression": 4, "enable": 5, "frameRate": 6,
             "iFrameInterval": 7, "height": 8, "width": 9}])",
        MissingKey("width")),
    Row("Encode_of_an_empty_list_leaves_the_vector_unchanged", kEncode, R"({"encodeConfigurations": []})", "[]", "[]"),
    Row("Encode_element_that_is_not_an_object_is_read_as_an_empty_object", kEncode,
        R"({"encodeConfigurations": [null]})", "[]", "[]", EmptyObject()),
    Row("Encode_converts_texts_null_and_flags", kEncode, R"({"encodeConfigurations": [
            {"streamType": "12", "bitRate": "abc", "bitRateControl": null, "compression": true,
             "enable": false, "frameRate": 24.5, "iFrameInterval": "", "height": [1], "width": {"a": 1}}]})",
        "[]", R"([{"streamType": 12, "bitRate": 0, "bitRateControl": 0, "compression": 1, "enable": 0,
                   "frameRate": 25, "iFrameInterval": 0, "height": 0, "width": 0}])"),
    Row("Capability_compressions_given_as_numbers_are_zeros", kCapability,
        R"({"supportCompressions": [1, 3], "encodeCapabilities": []})", R"({"supportCompressions": [7]})",
        R"({"supportCompressions": [0, 0]})"),
    Row("Capability_without_encodeCapabilities_keeps_the_compressions", kCapability,
        R"({"supportCompressions": ["1", "x", "-3"]})", "{}", R"({"supportCompressions": [1, 0, -3]})",
        MissingKey("encodeCapabilities")),
    Row("Capability_second_with_a_format_without_videoWidth_keeps_the_first", kCapability,
        R"({"supportCompressions": [], "encodeCapabilities": [
            {"compression": 1, "formats": [{"frameRateMax": 25, "videoHeight": 1080, "videoWidth": 1920}]},
            {"compression": 3, "formats": [{"frameRateMax": 25, "videoHeight": 1080, "videoWidth": 1920},
                                           {"frameRateMax": 12, "videoHeight": 576}]}]})",
        "{}", R"({"encodeCapabilities": [{"compression": 1, "formats": [{"frameRateMax": 25, "videoHeight": 1080,
                                                                         "videoWidth": 1920}]}]})",
        MissingKey("videoWidth")),
    Row("Capability_without_formats_inside_is_appended", kCapability,
        R"({"supportCompressions": [], "encodeCapabilities": [{"compression": 1, "formats": []}]})", "{}",
        R"({"encodeCapabilities": [{"compression": 1}]})"),
    Row("Image_of_convertible_values", kImage,
        R"({"brightness": "12", "saturation": true, "contrast": null, "sharpness": "abc"})",
        R"({"channelId": "ch7", "brightness": 1, "saturation": 2, "contrast": 3, "sharpness": 4})",
        R"({"brightness": 12, "saturation": 1, "contrast": 0, "sharpness": 0})"),
    Row("MultiCast_stream_without_status_ends_the_reading", kMultiCast, R"({"status": true, "streams": [
            {"multicastIp": "a", "multicastPort": 5000, "streamType": "2", "status": "1"},
            {"multicastIp": "b", "multicastPort": "", "streamType": 1}]})",
        R"({"channelId": "ch7"})",
        R"({"status": true, "streams": [{"multicastIp": "a", "multicastPort": "5000", "streamType": 2,
                                         "status": true}]})",
        MissingKey("status")),
    Row("MultiCast_without_streams_keeps_the_status", kMultiCast, R"({"status": true})", R"({"channelId": "ch7"})",
        R"({"status": true})", MissingKey("streams")),
});

INSTANTIATE_TEST_SUITE_P(DeviceConfig, ParseTest, testing::ValuesIn(kParses), RowName());

const RecordRow kRecords[] = {
    FieldsOf<NetworkConfig>("deviceCode ip mask gateway dns"),
    FieldsOf<EncodeConfig>(
        "channelId streamType bitRate bitRateControl compression enable frameRate iFrameInterval height width"),
    FieldsOf<EncodeFormat>("frameRateMax videoHeight videoWidth"),
    FieldsOf<EncodeCompressionCapability>("compression formats"),
    FieldsOf<EncodeCapability>("supportCompressions encodeCapabilities"),
    FieldsOf<ImageConfig>("channelId brightness saturation contrast sharpness"),
    FieldsOf<MultiCastStream>("multicastIp multicastPort streamType status", {{"streamType", 1}}),
    FieldsOf<MultiCastConfigInfo>("channelId status streams"),
    FieldsOf<MultiCastStreamStatus>("channelId streamType status"),
};

INSTANTIATE_TEST_SUITE_P(DeviceConfig, RecordTest, testing::ValuesIn(kRecords), RowName());

}  // namespace
