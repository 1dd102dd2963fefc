// Parking lots, their organisations and the vehicles captured there.
#include "support/Bind.h"
#include "support/Family.h"

#include <IPMS/IPMSModule.h>
#include <IPMS/ParkingFields.h>

namespace {

using namespace family_testing;
using namespace std::string_literals;
using namespace APIModule;

const UrlPack<const std::string&, int> kSimplePack(NAMED(CIPMSModule::PacketGetSimpleParkingLots), Method_Get,
                                                   "/ipms/api/v1.1/parking-lot/summary/list?parkingLotIds=");
const UrlPack<const std::string&, const std::string&, int> kDetailPack(
    NAMED(CIPMSModule::PacketGetDetailParkingLots), Method_Get,
    "/ipms/api/v1.1/parking-lot/detail/list?parkingLotIds=");
const BodyPack<const UpdateVehicleCaptureRecordInfo&> kCapture(NAMED(CIPMSModule::PacketUpdateVehicleCaptureRecord),
                                                               Method_Put,
                                                               "/ipms/api/v1.1/fusion/vehicle-capture/record");

const PackRow kPacks[] = {
    kSimplePack("GetSimpleParkingLots", "11,12", 2, "11,12&mode=2"),
    kSimplePack("GetSimpleParkingLots_mode_minus_1", "11", -1, "11&mode=-1"),
    kSimplePack("GetSimpleParkingLots_all", "", 0, "&mode=0"),
    kSimplePack("GetSimpleParkingLots_nothing_is_escaped", "a b&c#\"\xC3\xBC", 2147483647,
                "a b&c#\"\xC3\xBC&mode=2147483647"),
    kSimplePack("GetSimpleParkingLots_zero_byte_is_kept", "a\0b"s, 1, "a\0b&mode=1"s),
    kSimplePack("GetSimpleParkingLots_invalid_utf8", "x\xFF", 1, "x\xEF\xBF\xBD&mode=1"),
    kSimplePack("GetSimpleParkingLots_marker_2_in_the_ids_is_replaced", "a%2b", 5, "a5b&mode=5"),
    kSimplePack("GetSimpleParkingLots_marker_1_in_the_ids_is_replaced_by_the_mode", "a%1b", 5, "a5b&mode=%2"),
    kSimplePack("GetSimpleParkingLots_encoded_comma_is_replaced_by_the_mode", "1%2C2", -1, "1-1C2&mode=-1"),
    kSimplePack("GetSimpleParkingLots_percent_codes_of_two_digits_are_kept", "a%26%23%25", 5, "a%26%23%25&mode=5"),
    kDetailPack("GetDetailParkingLots_mode_precedes_orgCode", "11,12", "001", 2, "11,12&mode=2&orgCode=001"),
    kDetailPack("GetDetailParkingLots_mode_minus_1", "11", "001001", -1, "11&mode=-1&orgCode=001001"),
    kDetailPack("GetDetailParkingLots_all", "", "", 0, "&mode=0&orgCode="),
    kDetailPack("GetDetailParkingLots_nothing_is_escaped", "a b&c", "\xE4\xB8\xAD#\"", 1,
                "a b&c&mode=1&orgCode=\xE4\xB8\xAD#\""),
    kDetailPack("GetDetailParkingLots_zero_bytes_are_kept", "a\0b"s, "\0"s, 1, "a\0b&mode=1&orgCode=\0"s),
    kDetailPack("GetDetailParkingLots_invalid_utf8", "x\xFF", "\xC3", 1, "x\xEF\xBF\xBD&mode=1&orgCode=\xEF\xBF\xBD"),
    kDetailPack("GetDetailParkingLots_markers_in_the_ids_are_replaced", "a%2b%3", "c", 5, "a5bc&mode=5&orgCode=c"),
    kDetailPack("GetDetailParkingLots_marker_in_orgCode_is_kept", "a", "%3%1", 5, "a&mode=5&orgCode=%3%1"),
    {"GetParkingOrganization", NAMED(CIPMSModule::PacketGetParkingOrganization), Method_Get,
     "/ipms/api/v1.1/organization/list"},
    kCapture("UpdateVehicleCaptureRecord", {"55", "AB 123"}, R"({"id": "55", "plateNo": "AB 123"})"),
    kCapture("UpdateVehicleCaptureRecord_fresh", {}, R"({"id": "", "plateNo": ""})"),
    kCapture("UpdateVehicleCaptureRecord_zero_bytes_are_kept", {"5\0"s, "a\0b"s},
             R"({"id": "5\u0000", "plateNo": "a\u0000b"})"),
    kCapture("UpdateVehicleCaptureRecord_utf8_quote_and_marker",
             {"%1\"\\", "\xE4\xBA\xAC"
                        "A-123\xFF"},
             R"({"id": "%1\"\\", "plateNo": "\u4eacA-123\ufffd"})"),
};

INSTANTIATE_TEST_SUITE_P(Parking, PackTest, testing::ValuesIn(kPacks), RowName());

const Parse kSimple = MakeParse(NAMED(CIPMSModule::ParseGetSimpleParkingLots));
const Parse kDetail = MakeParse(NAMED(CIPMSModule::ParseGetDetailParkingLots));
const Parse kOrganization = MakeParse(NAMED(CIPMSModule::ParseGetParkingOrganization));

const Readings kSimplePoint = {Text("id"),         Text("pointName"), Text("remark"),
                               Text("refPointId"), Int("direction"),  Int("mode")};
const Readings kSimplePosition = {Text("id"), Text("positionName"), Text("remark"),
                                  Records<SimpleParkingPointInfo>("points", kSimplePoint)};
const Readings kSimpleLot =
    InOrder(Text("id"), Text("parkingLotName"), Text("orgCode"), Text("orgName"), Text("parentParkingLotId"),
            Text("parentParkingLotName"), Int("parkingLotMode"), Int("enableParkingSpaceStatistics"),
            Int("parkingSpaceStatisticsType"), Records<SimpleParkingPositionInfo>("positions", kSimplePosition));

const Readings kChannel = {Text("channelId"), Int("channelType")};
const Readings kDetailPoint =
    InOrder(Text("id"), Text("pointName"), Text("remark"), Text("refPointId"), Text("refPointName"), Int("direction"),
            Int("mode"), Records<ParkingChannelInfo>("channels", kChannel),
            Records<ParkingChannelInfo>("refChannels", kChannel));
const Readings kDetailPosition = {Text("id"), Text("positionName"), Text("remark"),
                                  Records<DetailParkingPointInfo>("points", kDetailPoint)};
const Readings kDetailLot =
    InOrder(Text("id"), Text("parkingLotName"), Text("orgCode"), Text("orgName"), Text("parentParkingLotId"),
            Text("parentParkingLotName"), Int("parkingLotMode"), Int("enableParkingSpaceStatistics"),
            Int("parkingSpaceStatisticsType"), Int("issueVehicles"), Int("issueStatus"), Int("totalParkingSpaceCount"),
            Int("idleParkingSpaceCount"), Records<DetailParkingPositionInfo>("positions", kDetailPosition));

const char* const kTwoSimpleLots = R"({"results": [
    {"id": "11", "parkingLotName": "North", "orgCode": "001", "orgName": "Root", "parentParkingLotId": "1",
     "parentParkingLotName": "Campus", "parkingLotMode": 1, "enableParkingSpaceStatistics": 1,
     "parkingSpaceStatisticsType": 2, "positions": [
        {"id": "p1", "positionName": "Gate A", "remark": "main", "points": [
            {"id": "e1", "pointName": "Entry", "remark": "left", "refPointId": "x1", "direction": 1, "mode": 3},
            {"id": "e2", "pointName": "Exit", "remark": "right", "refPointId": "e1", "direction": 2, "mode": 4}]},
        {"id": "p2", "positionName": "Gate B", "remark": "rear", "points": []}]},
    {"id": "12", "parkingLotName": "South", "orgCode": "002", "orgName": "Branch", "parentParkingLotId": "11",
     "parentParkingLotName": "North", "parkingLotMode": 2, "enableParkingSpaceStatistics": 0,
     "parkingSpaceStatisticsType": 3, "positions": [
        {"id": "p3", "positionName": "Gate C", "remark": "c", "points": [
            {"id": "e3", "pointName": "Entry C", "remark": "d", "refPointId": "x3", "direction": 1, "mode": 5}]}]}]})";

const char* const kTwoDetailLots = R"({"results": [
    {"id": "11", "parkingLotName": "North", "orgCode": "001", "orgName": "Root", "parentParkingLotId": "1",
     "parentParkingLotName": "Campus", "parkingLotMode": 1, "enableParkingSpaceStatistics": 1,
     "parkingSpaceStatisticsType": 2, "issueVehicles": 3, "issueStatus": 4, "totalParkingSpaceCount": 200,
     "idleParkingSpaceCount": 17, "positions": [
        {"id": "p1", "positionName": "Gate 1", "remark": "main", "points": [
            {"id": "e1", "pointName": "Point 1", "remark": "left 1", "refPointId": "x1", "refPointName": "Ref 1",
             "direction": 1, "mode": 11,
             "channels": [{"channelId": "c1", "channelType": 1}, {"channelId": "c2", "channelType": 2}],
             "refChannels": [{"channelId": "r1", "channelType": 3}, {"channelId": "r2", "channelType": 4}]},
            {"id": "e2", "pointName": "Point 2", "remark": "left 2", "refPointId": "x2", "refPointName": "Ref 2",
             "direction": 2, "mode": 12,
             "channels": [{"channelId": "c3", "channelType": 5}],
             "refChannels": []}]},
        {"id": "p2", "positionName": "Gate 2", "remark": "rear", "points": []}]},
    {"id": "12", "parkingLotName": "South", "orgCode": "002", "orgName": "Branch", "parentParkingLotId": "11",
     "parentParkingLotName": "North", "parkingLotMode": 2, "enableParkingSpaceStatistics": 0,
     "parkingSpaceStatisticsType": 3, "issueVehicles": 5, "issueStatus": 6, "totalParkingSpaceCount": 20,
     "idleParkingSpaceCount": 8, "positions": [
        {"id": "p3", "positionName": "Gate 3", "remark": "main", "points": [
            {"id": "e3", "pointName": "Point 3", "remark": "left 3", "refPointId": "x3", "refPointName": "Ref 3",
             "direction": 0, "mode": 13,
             "channels": [{"channelId": "c4", "channelType": 6}],
             "refChannels": [{"channelId": "r4", "channelType": 7}]}]}]}]})";

const char* const kLotBefore = R"([{"id": "before", "parkingLotMode": 1, "enableParkingSpaceStatistics": 2,
                                    "parkingSpaceStatisticsType": 3}])";
const char* const kDetailLotBefore =
    R"([{"id": "before", "parkingLotMode": 1, "enableParkingSpaceStatistics": 2, "parkingSpaceStatisticsType": 3,
         "issueVehicles": 4, "issueStatus": 5, "totalParkingSpaceCount": 6, "idleParkingSpaceCount": 7}])";
const char* const kOrganizationBefore = R"([{"orgCode": "before", "hasChild": 3, "hasAuthority": 4}])";

const std::vector<ParseRow> kParses = Joined<ParseRow>({
    Variations(kSimple, {Records<SimpleParkingLotInfoRsp>("results", kSimpleLot, kItself)}, kTwoSimpleLots),
    Variations(kDetail, {Records<DatailParkingLotInfoRsp>("results", kDetailLot, kItself)}, kTwoDetailLots),
    Variations(
        kOrganization,
        {Records<OrganizationInfoRsp>(
            "results", {Text("orgCode"), Text("orgName"), Text("parentOrgCode"), Int("hasChild"), Int("hasAuthority")},
            kItself)},
        R"({"results": [{"orgCode": "001", "orgName": "Root", "parentOrgCode": "", "hasChild": 1, "hasAuthority": 1},
                        {"orgCode": "001001", "orgName": "Branch", "parentOrgCode": "001", "hasChild": 0,
                         "hasAuthority": 0}]})"),
    Row("Simple_of_an_empty_list_leaves_the_vector_unchanged", kSimple, R"({"results": []})", kLotBefore, "[]"),
    Row("Detail_of_an_empty_list_leaves_the_vector_unchanged", kDetail, R"({"results": []})", kDetailLotBefore, "[]"),
    Row("Organization_of_an_empty_list_leaves_the_vector_unchanged", kOrganization, R"({"results": []})",
        kOrganizationBefore, "[]"),
    Row("Simple_without_results_leaves_the_vector_unchanged", kSimple, R"({"result": []})", kLotBefore, "[]",
        MissingKey("results")),
    Row("Detail_of_an_empty_object_leaves_the_vector_unchanged", kDetail, "{}", kDetailLotBefore, "[]", EmptyObject()),
    Row("Simple_results_of_null_count_as_an_empty_list", kSimple, R"({"results": null})", kLotBefore, "[]"),
    Row("Simple_element_that_is_not_an_object_is_read_as_an_empty_object", kSimple, R"({"results": ["11"]})",
        kLotBefore, "[]", EmptyObject()),
    Row("Simple_first_point_of_the_second_lot_without_mode_keeps_the_first_lot", kSimple, R"({"results": [
            {"id": "11", "parkingLotName": "North", "orgCode": "001", "orgName": "Root", "parentParkingLotId": "",
             "parentParkingLotName": "", "parkingLotMode": 1, "enableParkingSpaceStatistics": 1,
             "parkingSpaceStatisticsType": 2, "positions": []},
            {"id": "12", "parkingLotName": "South", "orgCode": "002", "orgName": "Branch", "parentParkingLotId": "11",
             "parentParkingLotName": "North", "parkingLotMode": 2, "enableParkingSpaceStatistics": 0,
             "parkingSpaceStatisticsType": 3, "positions": [{"id": "p", "positionName": "Gate", "remark": "", "points": [
                 {"id": "e", "pointName": "Entry", "remark": "", "refPointId": "", "direction": 1}]}]}]})",
        "[]", R"([{"id": "11", "parkingLotName": "North", "orgCode": "001", "orgName": "Root", "parkingLotMode": 1,
                   "enableParkingSpaceStatistics": 1, "parkingSpaceStatisticsType": 2}])",
        MissingKey("mode")),
    Row("Detail_first_point_of_the_second_lot_without_mode_keeps_the_first_lot", kDetail, R"({"results": [
            {"id": "11", "parkingLotName": "North", "orgCode": "001", "orgName": "Root", "parentParkingLotId": "",
             "parentParkingLotName": "", "parkingLotMode": 1, "enableParkingSpaceStatistics": 1,
             "parkingSpaceStatisticsType": 2, "issueVehicles": 3, "issueStatus": 4, "totalParkingSpaceCount": 5,
             "idleParkingSpaceCount": 6, "positions": []},
            {"id": "12", "parkingLotName": "South", "orgCode": "002", "orgName": "Branch", "parentParkingLotId": "11",
             "parentParkingLotName": "North", "parkingLotMode": 2, "enableParkingSpaceStatistics": 0,
             "parkingSpaceStatisticsType": 3, "issueVehicles": 3, "issueStatus": 4, "totalParkingSpaceCount": 5,
             "idleParkingSpaceCount": 6, "positions": [{"id": "p", "positionName": "Gate", "remark": "", "points": [
                 {"id": "e", "pointName": "Entry", "remark": "", "refPointId": "", "refPointName": "", "direction": 1,
                  "channels": [], "refChannels": []}]}]}]})",
        "[]", R"([{"id": "11", "parkingLotName": "North", "orgCode": "001", "orgName": "Root", "parkingLotMode": 1,
                   "enableParkingSpaceStatistics": 1, "parkingSpaceStatisticsType": 2, "issueVehicles": 3,
                   "issueStatus": 4, "totalParkingSpaceCount": 5, "idleParkingSpaceCount": 6}])",
        MissingKey("mode")),
    Row("Simple_lot_is_appended_without_the_detailed_fields", kSimple, R"({"results": [
            {"id": "11", "parkingLotName": "\u00fc", "orgCode": 1, "orgName": "a\u0000b", "parentParkingLotId": null,
             "parentParkingLotName": "", "parkingLotMode": "2", "enableParkingSpaceStatistics": true,
             "parkingSpaceStatisticsType": "x", "issueVehicles": 3, "positions": [
                 {"id": "p", "positionName": "Gate", "remark": "", "points": [
                     {"id": "e", "pointName": "Entry", "remark": "", "refPointId": "", "refPointName": "not read",
                      "direction": -1, "mode": null, "channels": [{"channelId": "c", "channelType": 1}]}]}]}]})",
        kLotBefore,
        R"([{"id": "11", "parkingLotName": "\u00fc", "orgCode": "1", "orgName": "a\u0000b", "parkingLotMode": 2,
             "enableParkingSpaceStatistics": 1, "parkingSpaceStatisticsType": 0,
             "positions": [{"id": "p", "positionName": "Gate", "points": [
                 {"id": "e", "pointName": "Entry", "direction": -1, "mode": 0}]}]}])"),
    Row("Detail_point_with_empty_channels_and_refChannels_gives_two_empty_vectors", kDetail, R"({"results": [
            {"id": "11", "parkingLotName": "North", "orgCode": "001", "orgName": "Root", "parentParkingLotId": "",
             "parentParkingLotName": "", "parkingLotMode": 1, "enableParkingSpaceStatistics": 1,
             "parkingSpaceStatisticsType": 2, "issueVehicles": 3, "issueStatus": 4, "totalParkingSpaceCount": 5,
             "idleParkingSpaceCount": 6, "positions": [{"id": "p", "positionName": "Gate", "remark": "", "points": [
                 {"id": "e", "pointName": "Entry", "remark": "", "refPointId": "", "refPointName": "", "direction": 1,
                  "mode": 2, "channels": [], "refChannels": []}]}]}]})",
        "[]", R"([{"id": "11", "parkingLotName": "North", "orgCode": "001", "orgName": "Root", "parkingLotMode": 1,
                   "enableParkingSpaceStatistics": 1, "parkingSpaceStatisticsType": 2, "issueVehicles": 3,
                   "issueStatus": 4, "totalParkingSpaceCount": 5, "idleParkingSpaceCount": 6,
                   "positions": [{"id": "p", "positionName": "Gate", "points": [
                       {"id": "e", "pointName": "Entry", "direction": 1, "mode": 2}]}]}])"),
    Row("Detail_point_without_refChannels_drops_its_lot", kDetail, R"({"results": [
            {"id": "11", "parkingLotName": "North", "orgCode": "001", "orgName": "Root", "parentParkingLotId": "",
             "parentParkingLotName": "", "parkingLotMode": 1, "enableParkingSpaceStatistics": 1,
             "parkingSpaceStatisticsType": 2, "issueVehicles": 3, "issueStatus": 4, "totalParkingSpaceCount": 5,
             "idleParkingSpaceCount": 6, "positions": [{"id": "p", "positionName": "Gate", "remark": "", "points": [
                 {"id": "e", "pointName": "Entry", "remark": "", "refPointId": "", "refPointName": "", "direction": 1,
                  "mode": 2, "channels": [{"channelId": "c", "channelType": 1}]}]}]}]})",
        kDetailLotBefore, "[]", MissingKey("refChannels")),
    Row("Organization_flags_are_numbers", kOrganization,
        R"({"results": [{"orgCode": "001", "orgName": "Root", "parentOrgCode": "", "hasChild": 2,
                         "hasAuthority": true}]})",
        kOrganizationBefore, R"([{"orgCode": "001", "orgName": "Root", "hasChild": 2, "hasAuthority": 1}])"),
    Row("Organization_second_without_hasAuthority_keeps_the_first", kOrganization,
        R"({"results": [{"orgCode": "001", "orgName": "Root", "parentOrgCode": "", "hasChild": 1, "hasAuthority": 0},
                        {"orgCode": "002", "orgName": "Branch", "parentOrgCode": "001", "hasChild": 0},
                        {"orgCode": "003", "orgName": "Site", "parentOrgCode": "001", "hasChild": 0,
                         "hasAuthority": 0}]})",
        "[]", R"([{"orgCode": "001", "orgName": "Root", "hasChild": 1, "hasAuthority": 0}])",
        MissingKey("hasAuthority")),
});

INSTANTIATE_TEST_SUITE_P(Parking, ParseTest, testing::ValuesIn(kParses), RowName());

const RecordRow kRecords[] = {
    FieldsOf<SimpleParkingPointInfo>("id pointName remark refPointId direction mode"),
    FieldsOf<SimpleParkingPositionInfo>("id positionName remark points"),
    FieldsOf<SimpleParkingLotInfoRsp>(
        "id parkingLotName orgCode orgName parentParkingLotId parentParkingLotName parkingLotMode "
        "enableParkingSpaceStatistics parkingSpaceStatisticsType positions"),
    FieldsOf<ParkingChannelInfo>("channelId channelType"),
    FieldsOf<DetailParkingPointInfo>("id pointName remark refPointId refPointName direction mode channels refChannels"),
    FieldsOf<DetailParkingPositionInfo>("id positionName remark points"),
    FieldsOf<DatailParkingLotInfoRsp>(
        "id parkingLotName orgCode orgName parentParkingLotId parentParkingLotName parkingLotMode "
        "enableParkingSpaceStatistics parkingSpaceStatisticsType issueVehicles issueStatus totalParkingSpaceCount "
        "idleParkingSpaceCount positions"),
    FieldsOf<OrganizationInfoRsp>("orgCode orgName parentOrgCode hasChild hasAuthority"),
    FieldsOf<UpdateVehicleCaptureRecordInfo>("id plateNo"),
};

INSTANTIATE_TEST_SUITE_P(Parking, RecordTest, testing::ValuesIn(kRecords), RowName());

}  // namespace
