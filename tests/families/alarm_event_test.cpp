// Alarms and events.
#include "support/Bind.h"
#include "support/Family.h"
#include "support/UserManager.h"

#include <BRMS/AlarmEventFields.h>
#include <BRMS/BRMSModule.h>

#include <QLocale>

#include <limits>

namespace {

using namespace family_testing;
using namespace std::string_literals;
using namespace APIModule;

const UrlPack<const GetPageSummaryAlarmPlansParam&> kPlansPack(NAMED(CBRMSModule::PacketGetPageSummaryAlarmPlans),
                                                               Method_Get, "/brms/api/v1.1/alarm/plan/summary/page?");
const UrlPack<const std::string&, int> kLinksPack(NAMED(CBRMSModule::PacketGetAlarmLinkControlList), Method_Get,
                                                  "/brms/api/v1.1/alarm/plan/source/alarm-type/linkage/list?");

/// The same row in a client with the German locale, which separates thousands by a point.
PackRow InGerman(PackRow row)
{
    row.run = [run = row.run](void* pReqParamData, int nServerId) {
        const QLocale before;
        QLocale::setDefault(QLocale::German);
        const int nResult = run(pReqParamData, nServerId);
        QLocale::setDefault(before);
        return nResult;
    };
    return row;
}

const UrlPack<const std::string&, int> kLayerPack(NAMED(CBRMSModule::PacketGetAlarmLayerDetail), Method_Get,
                                                  "/ipms/api/v1.1/parking-lot/layer/detail?");
const UrlPack<const std::string&> kFilesPack(NAMED(CBRMSModule::PacketGetAlarmHostFileInfo), Method_Get,
                                             "/brms/api/v1.1/alarm/record/");
const UrlPack<const std::string&, const std::string&> kAudioFile(NAMED(CBRMSModule::PacketGetAudioFileInfo),
                                                                 Method_Get);
const BodyPack<GetGeneralEventsParam&> kEventsPack(NAMED(CBRMSModule::PacketGetGeneralEvents), Method_Get,
                                                   "/brms/api/v1.1/alarm/general/event/list");

const std::vector<PackRow> kPacks = Joined<PackRow>({
    kPlansPack("Plans_page_2_of_20_with_the_keyword_door", {2, 20, "door"}, "page=2&pageSize=20&keyword=door"),
    kPlansPack("Plans_empty_keyword_ends_the_url", {1, 50, ""}, "page=1&pageSize=50&keyword="),
    kPlansPack("Plans_fresh", {}, "page=0&pageSize=0&keyword="),
    kPlansPack("Plans_negative_and_largest_number", {-1, std::numeric_limits<int>::max(), "k"},
               "page=-1&pageSize=2147483647&keyword=k"),
    kPlansPack("Plans_keyword_is_not_escaped", {1, 2, "a&b#c %20\"%1%2b"},
               "page=1&pageSize=2&keyword=a&b#c %20\"%1%2b"),
    kPlansPack("Plans_keyword_is_utf8_and_continues_after_a_zero_byte", {1, 2, "\xC3\xBC\xFF\0b"s},
               "page=1&pageSize=2&keyword=\xC3\xBC\xEF\xBF\xBD\0b"s),

    kLinksPack("Links_src1_and_type_5", "src1", 5, "sourceCode=src1&alarmType=5"),
    kLinksPack("Links_negative_type_has_a_minus_sign", "src1", -5, "sourceCode=src1&alarmType=-5"),
    kLinksPack("Links_smallest_type", "", std::numeric_limits<int>::min(), "sourceCode=&alarmType=-2147483648"),
    kLinksPack("Links_source_is_not_escaped", "a&b#c/%20", 0, "sourceCode=a&b#c/%20&alarmType=0"),
    kLinksPack("Links_marker_in_the_source_is_replaced_by_the_type", "a%1b", 5, "sourceCode=a5b&alarmType=%2"),
    kLinksPack("Links_equal_marker_in_the_source_is_replaced_too", "a%2b", 5, "sourceCode=a5b&alarmType=5"),
    kLinksPack("Links_higher_marker_in_the_source_is_kept", "a%3b", 5, "sourceCode=a%3b&alarmType=5"),
    InGerman(kLinksPack("Links_localised_marker_in_the_source_is_replaced_by_plain_digits", "a%L1b", 1234567,
                        "sourceCode=a1234567b&alarmType=%2")),
    kLinksPack("Links_source_is_utf8_and_continues_after_a_zero_byte", "\xC3\xBC\xFF\0b"s, 5,
               "sourceCode=\xC3\xBC\xEF\xBF\xBD\0b&alarmType=5"s),

    kLayerPack("Layer_code_c9_of_type_3", "c9", 3, "resourceType=3&resourceCode=c9"),
    kLayerPack("Layer_negative_type_and_empty_code", "", -3, "resourceType=-3&resourceCode="),
    kLayerPack("Layer_code_is_not_escaped", "a&b#c%1%2", 0, "resourceType=0&resourceCode=a&b#c%1%2"),
    kLayerPack("Layer_code_is_utf8_and_continues_after_a_zero_byte", "\xC3\xBC\xFF\0b"s, 3,
               "resourceType=3&resourceCode=\xC3\xBC\xEF\xBF\xBD\0b"s),

    TextRows("Files", kFilesPack, "/file/detail"),

    kAudioFile("Audio_url_and_body_of_the_caller", "/brms/api/v1.1/audio/task?id=1", R"({"taskId":"t1"})",
               "/brms/api/v1.1/audio/task?id=1", R"({"taskId":"t1"})"),
    kAudioFile("Audio_empty_body", "/audio", "", "/audio", ""),
    kAudioFile("Audio_url_is_neither_escaped_nor_filled", "http://h:8/a b?c=%1&d=%20#\"", "",
               "http://h:8/a b?c=%1&d=%20#\"", ""),
    kAudioFile("Audio_url_and_body_end_at_a_zero_byte", "/audio\0/more"s, "{\"a\":\"%1\"}\0{}"s, "/audio",
               R"({"a":"%1"})"),
    kAudioFile("Audio_body_that_begins_with_a_zero_byte_is_empty", "/audio", "\0{}"s, "/audio", ""),
    kAudioFile("Audio_url_and_body_are_utf8", "/\xC3\xBC\xFF", "{\"a\":\"\xE4\xB8\xAD\xFF\"}", "/\xC3\xBC\xEF\xBF\xBD",
               R"({"a": "\u4e2d\ufffd"})"),

    PackRow{"PluginLogType", "CBRMSModule::PacketGetPluginLogType", Bind<>(&CBRMSModule::PacketGetPluginLogType),
            Method_Get, "/brms/api/v1.1/log/plugin-log/event-type/list"},

    kEventsPack("Events_filter_is_the_body_of_a_get", {"TCP", "1", "door"},
                R"({"transportType": "TCP", "matchType": "1", "keyword": "door"})"),
    kEventsPack("Events_empty_texts_are_sent", {}, R"({"transportType": "", "matchType": "", "keyword": ""})"),
    kEventsPack("Events_texts_with_quotes_line_ends_and_markers", {R"("a\b")", "%1\n", "\t{}"},
                R"({"transportType": "\"a\\b\"", "matchType": "%1\n", "keyword": "\t{}"})"),
    kEventsPack("Events_texts_are_utf8", {"\xC3\xBC", "\xE4\xB8\xAD", "invalid \xFF"},
                R"({"transportType": "\u00fc", "matchType": "\u4e2d", "keyword": "invalid \ufffd"})"),
    kEventsPack("Events_texts_continue_after_a_zero_byte", {"a\0b"s, "c\0d"s, "e\0f"s},
                R"({"transportType": "a\u0000b", "matchType": "c\u0000d", "keyword": "e\u0000f"})"),
});

INSTANTIATE_TEST_SUITE_P(AlarmEvent, PackTest, testing::ValuesIn(kPacks), RowName());

class AudioFileInfoTest : public testing::Test {
protected:
    AudioFileInfoTest()
    {
        m_users.servers = {{1, {}}};
        CAPIModule::GetInstance().Init(&m_users);
    }
    ~AudioFileInfoTest() override { CAPIModule::GetInstance().UnInit(); }

private:
    testing_support::UserManager m_users;
};

TEST_F(AudioFileInfoTest, BodyIsPassedThroughUnparsed)
{
    for (const char* const body : {"{ \"a\" : 1 }\n", "[1,", "no JSON \"%1\"", " "}) {
        RequestParam param;
        EXPECT_EQ(kAudioFile("", "/audio", body, "").run(&param, 1), 0);
        EXPECT_EQ(param.strBody, body);
    }
}

TEST_F(AudioFileInfoTest, UrlStartingWithAZeroByteIsRefusedAsEmpty)
{
    RequestParam param;
    testing_support::LogRecorder logs;
    EXPECT_EQ(kAudioFile("", "\0/audio"s, "", "").run(&param, 1), -1);
    const testing_support::LogLines expected{{"src/UI/APIModule/APIModule", "APIModule::CAPIModule::GetRequestParam", 6,
                                              "GetRequestParam failed! strUrl can not be empty."},
                                             {"src/UI/APIModule/BRMS/BRMSModule",
                                              "APIModule::CBRMSModule::PacketGetAudioFileInfo", 6,
                                              "PacketGetAudioFileInfo failed."}};
    EXPECT_EQ(logs.Take(), expected);
}

const Parse kPlans = MakeParse(NAMED(CBRMSModule::ParseGetPageSummaryAlarmPlans));
const Parse kLinks = MakeParse(NAMED(CBRMSModule::ParseGetAlarmLinkControlList));
const Parse kLayer = MakeParse(NAMED(CBRMSModule::ParseGetAlarmLayerDetail));
const Parse kFiles = MakeParse(NAMED(CBRMSModule::ParseGetAlarmHostFileInfo));
const Parse kAudio = MakeParse(NAMED(CBRMSModule::ParseGetAudioFileInfo));
const Parse kPluginLog = MakeParse(NAMED(CBRMSModule::ParseGetPluginLogType));
const Parse kEvents = MakeParse(NAMED(CBRMSModule::ParseGetGeneralEvents));

const Readings kChannel{Text("channelId"), Text("channelName")};

const char* const kLayerBefore = R"({"layerId": "y0", "layerName": "n0", "layerPicture": "p0", "locationX": 1.5,
                                     "locationY": 2.5, "width": 3.5, "height": 4.5, "angle": 5.5})";

const std::vector<ParseRow> kParses = Joined<ParseRow>({
    Variations(kPlans, {Records<SummaryAlarmPlan>("pageData", {Text("id"), Text("planName")}, kItself)},
               R"({"totalCount": 2, "pageData": [{"id": "p1", "planName": "Doors"},
                                                 {"id": "p2", "planName": "Gates"}]})"),
    Variations(kLinks,
               {Records<AlarmLinkChannel>("linkAudioLightChannels", kChannel),
                Records<AlarmLinkChannel>("linkAlarmOutputChannels", kChannel),
                Records<AlarmLinkAudioChannel>("linkAudioChannels",
                                               {Text("channelId"), Text("channelName"), Text("fileIds")})},
               R"({"linkAlarmOutputChannels": [{"channelId": "o1", "channelName": "Output 1"},
                                               {"channelId": "o2", "channelName": "Output 2"}],
                   "linkAudioLightChannels": [{"channelId": "l1", "channelName": "Light 1"},
                                              {"channelId": "l2", "channelName": "Light 2"}],
                   "linkAudioChannels": [{"channelId": "a1", "channelName": "Speaker 1", "fileIds": "1,2"},
                                         {"channelId": "a2", "channelName": "Speaker 2", "fileIds": ""}]})"),
    Variations(kLayer,
               {Text("layerId"), Text("layerName"), Text("layerPicture"), Double("height"), Double("width"),
                Double("locationX"), Double("locationY"), Double("angle")},
               R"({"layerId": "y1", "layerName": "Ground floor", "layerPicture": "/pictures/1.png",
                   "locationX": 10.25, "locationY": -3.5, "width": 1920, "height": 1080.5, "angle": 270})"),
    Variations(kFiles,
               {Text("alarmCode"),
                Records<AlarmRecordFile>("files", {Int("fileType"), Text("filePath"), Text("ssId"), Text("channelId"),
                                                   Int64("recordTime"), Int("fileTimeLength"), Int64("fileLength")})},
               R"({"alarmCode": "{A-1}", "files": [
                   {"fileType": 1, "filePath": "/a.dav", "ssId": "s1", "channelId": "c1",
                    "recordTime": 1700000000000, "fileTimeLength": 30, "fileLength": 5000000000},
                   {"fileType": 2, "filePath": "/a.jpg", "ssId": "s2", "channelId": "c2",
                    "recordTime": 1700000000001, "fileTimeLength": 0, "fileLength": 40960}]})"),
    Variations(kAudio, {Text("fileUrl"), Text("taskProgress")},
               R"({"taskProgress": "100", "fileUrl": "/files/1.wav"})"),
    Variations(kPluginLog,
               {Records<PluginLogTypeGroupInfo>(
                   "results",
                   {Text("groupId"), Text("groupName"), Int("sort"),
                    Records<PluginLogEventType>("eventTypes", {Text("eventType"), Text("eventTypeName"), Int("sort")})},
                   kItself)},
               R"({"results": [
                   {"groupId": "g1", "groupName": "Login", "sort": 1, "eventTypes": [
                       {"eventType": "e1", "eventTypeName": "In", "sort": 11},
                       {"eventType": "e2", "eventTypeName": "Out", "sort": 12}]},
                   {"groupId": "g2", "groupName": "Video", "sort": 2, "eventTypes": [
                       {"eventType": "e3", "eventTypeName": "Play", "sort": 21},
                       {"eventType": "e4", "eventTypeName": "Stop", "sort": 22}]}]})"),
    Variations(kEvents, {Records<GeneralEventRsp>("results", {Text("id"), Text("eventName")}, kItself)},
               R"({"results": [{"id": "1", "eventName": "Door open"}, {"id": "2", "eventName": "Door closed"}]})"),
    Row("Plans_second_element_without_planName_keeps_the_first", kPlans,
        R"({"pageData": [{"id": "p1", "planName": "n1"}, {"id": "p2"}, {"id": "p3", "planName": "n3"}]})",
        R"([{"id": "p0", "planName": "n0"}])", R"([{"id": "p1", "planName": "n1"}])", MissingKey("planName")),
    Row("Plans_with_results_instead_of_pageData", kPlans, R"({"results": [{"id": "p1", "planName": "n1"}]})",
        R"([{"id": "p0", "planName": "n0"}])", "[]", MissingKey("pageData")),
    Row("Plans_empty_page_appends_nothing", kPlans, R"({"pageData": []})", R"([{"id": "p0", "planName": "n0"}])", "[]"),
    Row("Links_without_linkAudioChannels_have_the_first_two_lists", kLinks,
        R"({"linkAudioLightChannels": [{"channelId": "l1", "channelName": "L1"}],
            "linkAlarmOutputChannels": [{"channelId": "o1", "channelName": "O1"}]})",
        "{}", R"({"linkAlarmOutputChannels": [{"channelId": "o1", "channelName": "O1"}],
                  "linkAudioLightChannels": [{"channelId": "l1", "channelName": "L1"}]})",
        MissingKey("linkAudioChannels")),
    Row("Links_without_linkAudioLightChannels_have_none", kLinks,
        R"({"linkAlarmOutputChannels": [{"channelId": "o1", "channelName": "O1"}], "linkAudioChannels": []})", "{}",
        "{}", MissingKey("linkAudioLightChannels")),
    Row("Links_without_linkAlarmOutputChannels_have_the_lights", kLinks,
        R"({"linkAudioLightChannels": [{"channelId": "l1", "channelName": "L1"}], "linkAudioChannels": [
               {"channelId": "a1", "channelName": "A1", "fileIds": "1"}]})",
        "{}", R"({"linkAudioLightChannels": [{"channelId": "l1", "channelName": "L1"}]})",
        MissingKey("linkAlarmOutputChannels")),
    Row("Links_three_empty_lists", kLinks,
        R"({"linkAlarmOutputChannels": [], "linkAudioLightChannels": [], "linkAudioChannels": []})", "{}", "{}"),
    Row("Links_are_appended", kLinks,
        R"({"linkAlarmOutputChannels": [{"channelId": "o1", "channelName": "O1"}],
            "linkAudioLightChannels": [{"channelId": "l1", "channelName": "L1"}],
            "linkAudioChannels": [{"channelId": "a1", "channelName": "A1", "fileIds": "1,2"}]})",
        R"({"linkAlarmOutputChannels": [{"channelId": "o0", "channelName": "O0"}],
            "linkAudioLightChannels": [{"channelId": "l0", "channelName": "L0"}],
            "linkAudioChannels": [{"channelId": "a0", "channelName": "A0", "fileIds": "0"}]})",
        R"({"linkAlarmOutputChannels": [{"channelId": "o1", "channelName": "O1"}],
            "linkAudioLightChannels": [{"channelId": "l1", "channelName": "L1"}],
            "linkAudioChannels": [{"channelId": "a1", "channelName": "A1", "fileIds": "1,2"}]})"),
    Row("Layer_without_angle_has_the_seven_earlier_fields", kLayer,
        R"({"layerId": "y1", "layerName": "n1", "layerPicture": "p1", "locationX": 10.25, "locationY": -3.5,
            "width": 1920, "height": 1080})",
        kLayerBefore,
        R"({"layerId": "y1", "layerName": "n1", "layerPicture": "p1", "locationX": 10.25, "locationY": -3.5,
            "width": 1920.0, "height": 1080.0})",
        MissingKey("angle")),
    Row("Layer_without_width_has_the_height_and_no_location", kLayer,
        R"({"layerId": "y1", "layerName": "n1", "layerPicture": "p1", "locationX": 10.25, "locationY": -3.5,
            "height": 1080, "angle": 90})",
        kLayerBefore, R"({"layerId": "y1", "layerName": "n1", "layerPicture": "p1", "height": 1080.0})",
        MissingKey("width")),
    Row("Layer_numbers_as_texts_true_and_null", kLayer,
        R"({"layerId": 7, "layerName": null, "layerPicture": "", "locationX": "10.25", "locationY": "-3.5e2",
            "width": true, "height": null, "angle": "abc"})",
        kLayerBefore, R"({"layerId": "7", "layerName": "", "layerPicture": "", "locationX": 10.25, "locationY": -350.0,
                       "width": 1.0, "height": 0.0, "angle": 0.0})"),
    Row("Files_numbers_beyond_32_bits", kFiles, R"({"alarmCode": "A", "files": [
            {"fileType": -1, "filePath": "a\u0000b", "ssId": "\u00fc", "channelId": "",
             "recordTime": 9007199254740991, "fileTimeLength": 2147483647, "fileLength": -9007199254740991}]})",
        "{}", R"({"alarmCode": "A", "files": [{"fileType": -1, "filePath": "a\u0000b", "ssId": "\u00fc",
                                               "recordTime": 9007199254740991, "fileTimeLength": 2147483647,
                                               "fileLength": -9007199254740991}]})"),
    Row("Files_second_file_without_fileLength_keeps_code_and_first_file", kFiles, R"({"alarmCode": "A", "files": [
            {"fileType": 1, "filePath": "p1", "ssId": "s1", "channelId": "c1", "recordTime": "1700000000000",
             "fileTimeLength": "30", "fileLength": "5000000000"},
            {"fileType": 1, "filePath": "p2", "ssId": "s2", "channelId": "c2", "recordTime": 3,
             "fileTimeLength": 4}]})",
        R"({"alarmCode": "B"})",
        R"({"alarmCode": "A", "files": [{"fileType": 1, "filePath": "p1", "ssId": "s1", "channelId": "c1",
                                         "recordTime": 1700000000000, "fileTimeLength": 30,
                                         "fileLength": 5000000000}]})",
        MissingKey("fileLength")),
    Row("Files_without_files_have_the_code", kFiles, R"({"alarmCode": "A"})", R"({"alarmCode": "B"})",
        R"({"alarmCode": "A"})", MissingKey("files")),
    Row("Files_empty_list", kFiles, R"({"alarmCode": "A", "files": []})", R"({"alarmCode": "B"})",
        R"({"alarmCode": "A"})"),
    Row("Audio_without_taskProgress_has_the_fileUrl", kAudio, R"({"fileUrl": "/1.wav"})",
        R"({"taskProgress": "t", "fileUrl": "f"})", R"({"fileUrl": "/1.wav"})", MissingKey("taskProgress")),
    Row("Audio_without_fileUrl_has_nothing", kAudio, R"({"taskProgress": "100"})",
        R"({"taskProgress": "t", "fileUrl": "f"})", "{}", MissingKey("fileUrl")),
    Row("Audio_progress_that_is_a_number", kAudio, R"({"taskProgress": 50, "fileUrl": ""})",
        R"({"taskProgress": "t", "fileUrl": "f"})", R"({"taskProgress": "50", "fileUrl": ""})"),
    Row("PluginLog_group_with_no_event_types_is_appended", kPluginLog,
        R"({"results": [{"groupId": "g1", "groupName": "n1", "sort": 1, "eventTypes": []}]})", "[]",
        R"([{"groupId": "g1", "groupName": "n1", "sort": 1}])"),
    Row("PluginLog_type_without_sort_drops_its_group_and_keeps_earlier_ones", kPluginLog, R"({"results": [
            {"groupId": "g1", "groupName": "n1", "sort": "-1", "eventTypes": [
                {"eventType": "e1", "eventTypeName": "t1", "sort": "12"}]},
            {"groupId": "g2", "groupName": "n2", "sort": 2, "eventTypes": [
                {"eventType": "e2", "eventTypeName": "t2", "sort": 3}, {"eventType": "e3", "eventTypeName": "t3"}]},
            {"groupId": "g3", "groupName": "n3", "sort": 4, "eventTypes": []}]})",
        "[]", R"([{"groupId": "g1", "groupName": "n1", "sort": -1, "eventTypes": [
                   {"eventType": "e1", "eventTypeName": "t1", "sort": 12}]}])",
        MissingKey("sort")),
    Row("PluginLog_without_results_leaves_the_list_unchanged", kPluginLog, R"({"groups": []})",
        R"([{"groupId": "g0", "groupName": "n0", "eventTypes": [{"eventType": "e0", "eventTypeName": "t0"}]}])", "[]",
        MissingKey("results")),
    Row("Events_second_element_without_eventName_keeps_the_first", kEvents,
        R"({"results": [{"id": 1, "eventName": "n1"}, {"id": "2"}]})", R"([{"id": "0", "eventName": "n0"}])",
        R"([{"id": "1", "eventName": "n1"}])", MissingKey("eventName")),
    Row("Events_empty_results_append_nothing", kEvents, R"({"results": []})", R"([{"id": "0", "eventName": "n0"}])",
        "[]"),
    Row("Events_of_an_empty_object", kEvents, "{}", R"([{"id": "0", "eventName": "n0"}])", "[]", EmptyObject()),
});

INSTANTIATE_TEST_SUITE_P(AlarmEvent, ParseTest, testing::ValuesIn(kParses), RowName());

const RecordRow kRecords[] = {
    FieldsOf<GetPageSummaryAlarmPlansParam>("page pageSize keyword"),
    FieldsOf<SummaryAlarmPlan>("id planName"),
    FieldsOf<AlarmLinkChannel>("channelId channelName"),
    FieldsOf<AlarmLinkAudioChannel>("channelId channelName fileIds"),
    FieldsOf<AlarmLinkControl>("linkAlarmOutputChannels linkAudioLightChannels linkAudioChannels"),
    FieldsOf<AlarmLayerInfo>("layerId layerName layerPicture locationX locationY width height angle"),
    FieldsOf<AlarmRecordFile>("fileType filePath ssId channelId recordTime fileTimeLength fileLength"),
    FieldsOf<AlarmHostFileInfo>("alarmCode files"),
    FieldsOf<AudioFileInfo>("taskProgress fileUrl"),
    FieldsOf<PluginLogEventType>("eventType eventTypeName sort"),
    FieldsOf<PluginLogTypeGroupInfo>("groupId groupName sort eventTypes"),
    FieldsOf<GetGeneralEventsParam>("transportType matchType keyword"),
    FieldsOf<GeneralEventRsp>("id eventName"),
};

INSTANTIATE_TEST_SUITE_P(AlarmEvent, RecordTest, testing::ValuesIn(kRecords), RowName());

}  // namespace
