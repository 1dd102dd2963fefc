// Wash function and home position of PTZ channels.
#include "support/Bind.h"
#include "support/Family.h"

#include <DMS/DMSModule.h>
#include <DMS/PtzFields.h>

namespace {

using namespace family_testing;
using namespace std::string_literals;
using namespace APIModule;

const BodyPack<std::string> kWashOpen(NAMED(CDMSModule::PackeWashOpen), Method_Post, "/admin/API/DMS/Ptz/AuxControl",
                                      {Server::One});
const BodyPack<std::vector<std::string>&> kBatchWashOpen(NAMED(CDMSModule::PackeBatchWashOpen), Method_Post,
                                                         "/admin/API/DMS/Ptz/AuxBatchControl", {Server::One});
const UrlPack<std::string> kSetHomePack(NAMED(CDMSModule::PackeSetHomePosition), Method_Post,
                                        "/brms/api/v1.1/ptz/channel/");
const UrlPack<std::string> kGotoHomePack(NAMED(CDMSModule::PackeGotoHomePosition), Method_Post,
                                         "/brms/api/v1.1/ptz/channel/",
                                         {Server::OfCaller, "PackeSetHomePosition failed.",
                                          "PackeSetHomePosition success."});

const PackRow kPacks[] = {
    kWashOpen("WashOpen_command_is_the_number_1", "1000001$1$0$0",
              R"({"data": {"channelId": "1000001$1$0$0", "command": 1}})"),
    kWashOpen("WashOpen_empty_text", "", R"({"data": {"channelId": "", "command": 1}})"),
    kWashOpen("WashOpen_zero_byte_is_kept", "a\0b"s, R"({"data": {"channelId": "a\u0000b", "command": 1}})"),
    kWashOpen("WashOpen_utf8_quote_and_marker", "\xC3\xBC \xE4\xB8\xAD \"%1\\",
              R"({"data": {"channelId": "\u00fc \u4e2d \"%1\\", "command": 1}})"),
    kWashOpen("WashOpen_invalid_utf8", "x\xFF", R"({"data": {"channelId": "x\ufffd", "command": 1}})"),
    kBatchWashOpen("BatchWashOpen_two_channels_in_order", {"b", "a"},
                   R"({"data": {"ptzAuxControlXos": [{"channelId": "b", "command": 1},
                                                   {"channelId": "a", "command": 1}]}})"),
    kBatchWashOpen("BatchWashOpen_empty_list_is_sent", {}, R"({"data": {"ptzAuxControlXos": []}})"),
    kBatchWashOpen("BatchWashOpen_texts_are_sent_unchanged", {"", "a\0b"s, "\xC3\xBC\"%1", "x\xFF", "same", "same"},
                   R"({"data": {"ptzAuxControlXos": [{"channelId": "", "command": 1},
                                                   {"channelId": "a\u0000b", "command": 1},
                                                   {"channelId": "\u00fc\"%1", "command": 1},
                                                   {"channelId": "x\ufffd", "command": 1},
                                                   {"channelId": "same", "command": 1},
                                                   {"channelId": "same", "command": 1}]}})"),
    kSetHomePack("SetHomePosition", "1000001$1$0$0", "1000001$1$0$0/home-position/configure"),
    kSetHomePack("SetHomePosition_bytes_are_latin1", "\xC3\xBC\xFF",
                 "\xC3\x83\xC2\xBC\xC3\xBF/home-position/configure"),
    kSetHomePack("SetHomePosition_ends_at_a_zero_byte", "a\0b"s, "a/home-position/configure"),
    kSetHomePack("SetHomePosition_empty_text", "", "/home-position/configure"),
    kSetHomePack("SetHomePosition_nothing_is_escaped", "a b/%1?%20&\"", "a b/%1?%20&\"/home-position/configure"),
    kGotoHomePack("GotoHomePosition_logs_the_texts_of_SetHomePosition", "1000001$1$0$0",
                  "1000001$1$0$0/home-position/goto"),
    kGotoHomePack("GotoHomePosition_bytes_are_latin1", "\xC3\xBC\xFF", "\xC3\x83\xC2\xBC\xC3\xBF/home-position/goto"),
    kGotoHomePack("GotoHomePosition_ends_at_a_zero_byte", "a\0b"s, "a/home-position/goto"),
    kGotoHomePack("GotoHomePosition_empty_text", "", "/home-position/goto"),
    kGotoHomePack("GotoHomePosition_nothing_is_escaped", "a b/%1?%20&\"", "a b/%1?%20&\"/home-position/goto"),
};

INSTANTIATE_TEST_SUITE_P(Ptz, PackTest, testing::ValuesIn(kPacks), RowName());

const Parse kWash = MakeParse(NAMED(CDMSModule::ParseWashOpen));
const Parse kBatchWash = MakeParse(NAMED(CDMSModule::ParseBatchWashOpen));
const Parse kSetHome = MakeParse(NAMED(CDMSModule::ParseSetHomePosition));
const Parse kGotoHome = MakeParse(NAMED(CDMSModule::ParseGotoHomePosition));

/// The user is read from "lockUser" only after "result".
const Readings kStatus = {Found("lockUser"), Text("result"),
                          Object("lockUser", {Text("userName"), Text("userLevel"), Text("lowerDomain")})};
const char* const kWholeStatus = R"({"lockUser": {"userName": "operator", "userLevel": "3", "lowerDomain": "0"},
                                     "result": "locked"})";

constexpr const char* kBefore = R"({"result": "r", "userName": "n", "userLevel": "l", "lowerDomain": "d"})";

/// The three Parses that read a lock follow the same steps.
std::vector<ParseRow> StatusRows(const std::string& name, const Parse& parse)
{
    return {
        Row(name + "_without_lockUser_fails_though_result_is_there", parse, R"({"result": "0"})", "{}", "{}",
            MissingKey("lockUser")),
        Row(name + "_empty_lockUser_leaves_empty_user_fields", parse, R"({"lockUser": {}, "result": "0"})", "{}",
            R"({"result": "0"})"),
        Row(name + "_empty_lockUser_leaves_the_user_fields_as_they_were", parse, R"({"lockUser": {}, "result": "0"})",
            kBefore, R"({"result": "0"})"),
        Row(name + "_null_lockUser_counts_as_empty", parse, R"({"lockUser": null, "result": "0"})", kBefore,
            R"({"result": "0"})"),
        Row(name + "_lockUser_without_userLevel_leaves_result_and_userName", parse,
            R"({"lockUser": {"userName": "operator", "lowerDomain": "0"}, "result": "locked"})", "{}",
            R"({"result": "locked", "userName": "operator"})", MissingKey("userLevel")),
        Row(name + "_without_result_fails_before_the_user_is_read", parse,
            R"({"lockUser": {"userName": "operator", "userLevel": "3", "lowerDomain": "0"}})", kBefore, "{}",
            MissingKey("result")),
        Row(name + "_numbers_become_texts", parse,
            R"({"lockUser": {"userName": 12, "userLevel": 3, "lowerDomain": true}, "result": 0})", kBefore,
            R"({"result": "0", "userName": "12", "userLevel": "3", "lowerDomain": "true"})"),
        Row(name + "_of_an_empty_object", parse, "{}", kBefore, "{}", EmptyObject()),
    };
}

const std::vector<ParseRow> kParses = Joined<ParseRow>({
    Variations(kWash, kStatus, kWholeStatus),
    Variations(kBatchWash, {Text("result"), Text("msg")}, R"({"result": "0", "msg": "done"})"),
    Variations(kSetHome, kStatus, kWholeStatus),
    Variations(kGotoHome, kStatus, kWholeStatus),
    StatusRows("Wash", kWash),
    StatusRows("SetHome", kSetHome),
    StatusRows("GotoHome", kGotoHome),
    Row("BatchWash_without_msg_fills_result", kBatchWash, R"({"result": "0"})", R"({"result": "r", "msg": "m"})",
        R"({"result": "0"})", MissingKey("msg")),
    Row("BatchWash_without_result_leaves_msg_unchanged", kBatchWash, R"({"msg": "done"})",
        R"({"result": "r", "msg": "m"})", "{}", MissingKey("result")),
    Row("BatchWash_texts_with_zero_byte_and_utf8", kBatchWash, R"({"result": "a\u0000b", "msg": "\u00fc\u4e2d"})", "{}",
        R"({"result": "a\u0000b", "msg": "\u00fc\u4e2d"})"),
});

INSTANTIATE_TEST_SUITE_P(Ptz, ParseTest, testing::ValuesIn(kParses), RowName());

const RecordRow kRecords[] = {
    FieldsOf<PtzWashStatus>("result userName userLevel lowerDomain"),
    FieldsOf<PtzBatchWashStatus>("result msg"),
    FieldsOf<PtzPositionResetReq>("result userName userLevel lowerDomain"),
};

INSTANTIATE_TEST_SUITE_P(Ptz, RecordTest, testing::ValuesIn(kRecords), RowName());

}  // namespace
