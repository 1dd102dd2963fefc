// Warnings of the platform's servers.
#include "support/Family.h"

#include <BRMS/BRMSModule.h>
#include <BRMS/ServerWarningFields.h>

namespace {

using namespace family_testing;
using namespace APIModule;

const PackRow kPacks[] = {
    {"CheckHotSpareWarning", NAMED(CBRMSModule::PacketCheckHotSpareWarning), Method_Get,
     "/brms/api/v1.1/system/hot-spare/switch/warning"},
    {"GetBasicServiceWarm", NAMED(CBRMSModule::PacketGetBasicServiceWarm), Method_Get,
     "/brms/api/v1.1/system/only-startup-basic-service/warning"},
    {"GetDiskWarm", NAMED(CBRMSModule::PacketGetDiskWarm), Method_Get, "/brms/api/v1.1/system/warn/disk/list"},
    {"GetMemoryOutOfServerList", NAMED(CBRMSModule::PacketGetMemoryOutOfServerList), Method_Get,
     "/brms/api/v1.1/system/out/memory/server/list"},
    {"GetNetWorks", NAMED(CBRMSModule::PacketGetNetWorks), Method_Get, "/brms/api/v1.1/system/network/list"},
};

INSTANTIATE_TEST_SUITE_P(ServerWarning, PackTest, testing::ValuesIn(kPacks), RowName());

const Parse kHotSpare = MakeParse(NAMED(CBRMSModule::ParseCheckHotSpareWarning));
const Parse kBasicService = MakeParse(NAMED(CBRMSModule::ParseGetBasicServiceWarm));
const Parse kDisk = MakeParse(NAMED(CBRMSModule::ParseGetDiskWarm));
const Parse kMemory = MakeParse(NAMED(CBRMSModule::ParseGetMemoryOutOfServerList));
const Parse kNetWorks = MakeParse(NAMED(CBRMSModule::ParseGetNetWorks));

const std::vector<ParseRow> kParses = Joined<ParseRow>({
    Variations(kHotSpare, {Bool("warningHappened"), Int64("warningTime"), Text("warningContent")},
               R"({"warningHappened": true, "warningTime": 1700000000123, "warningContent": "switched to spare"})"),
    Variations(kBasicService, {Bool("warningHappened", kItself)}, R"({"warningHappened": true})"),
    Variations(kDisk,
               {Records<DiskWarmParam>(
                   "results",
                   {Text("serverIp"), Int("serverType"), Records<WarnDisk>("warnDisks", {Text("path"), Int("slot")})},
                   kItself)},
               R"({"results": [
                   {"serverIp": "10.0.0.1", "serverType": 2,
                    "warnDisks": [{"path": "/dev/sda", "slot": 1}, {"path": "/dev/sdb", "slot": 2}]},
                   {"serverIp": "10.0.0.2", "serverType": 3,
                    "warnDisks": [{"path": "/dev/sdc", "slot": 3}, {"path": "/dev/sdd", "slot": 4}]}]})"),
    Variations(kMemory, {Records<std::string>("results", {Text("serverIp", kItself)}, kItself)},
               R"({"results": [{"serverIp": "10.0.0.1"}, {"serverIp": "10.0.0.2"}]})"),
    Variations(kNetWorks, {Records<NetWorkItem>("results", {Text("netWorkName"), Int("netWorkValue")}, "netWorks")},
               R"({"results": [{"netWorkName": "LAN", "netWorkValue": 1},
                               {"netWorkName": "WAN", "netWorkValue": 2}]})"),
    Row("HotSpare_without_warningContent_fills_the_first_two_fields", kHotSpare,
        R"({"warningHappened": true, "warningTime": 1700000000123})",
        R"({"warningTime": 5, "warningContent": "before"})",
        R"({"warningHappened": true, "warningTime": 1700000000123})", MissingKey("warningContent")),
    Row("HotSpare_time_of_a_text", kHotSpare,
        R"({"warningHappened": "0", "warningTime": "9007199254740993", "warningContent": null})",
        R"({"warningHappened": true, "warningTime": 5, "warningContent": "before"})",
        R"({"warningHappened": false, "warningTime": 9007199254740993, "warningContent": ""})"),
    Row("Disk_without_slot_drops_its_server_with_the_disk_before_it", kDisk,
        R"({"results": [{"serverIp": "10.0.0.1", "serverType": 2,
                         "warnDisks": [{"path": "/dev/sda", "slot": 1}, {"path": "/dev/sdb"}]}]})",
        "[]", "[]", MissingKey("slot")),
    Row("Disk_complete_disk_is_stored_with_its_server", kDisk,
        R"({"results": [{"serverIp": "10.0.0.1", "serverType": 2,
                         "warnDisks": [{"path": "/dev/sda", "slot": 1}]}]})",
        "[]", R"([{"serverIp": "10.0.0.1", "serverType": 2, "warnDisks": [{"path": "/dev/sda", "slot": 1}]}])"),
    Row("Disk_second_server_without_serverType_keeps_the_first", kDisk,
        R"({"results": [{"serverIp": "10.0.0.1", "serverType": 2, "warnDisks": [{"path": "a", "slot": 1}]},
                        {"serverIp": "10.0.0.2", "warnDisks": []},
                        {"serverIp": "10.0.0.3", "serverType": 2, "warnDisks": []}]})",
        "[]", R"([{"serverIp": "10.0.0.1", "serverType": 2, "warnDisks": [{"path": "a", "slot": 1}]}])",
        MissingKey("serverType")),
    Row("Disk_server_without_disks_is_appended_after_existing_elements", kDisk,
        R"({"results": [{"serverIp": "10.0.0.1", "serverType": 2, "warnDisks": []}]})",
        R"([{"serverIp": "before", "serverType": 1, "warnDisks": [{"path": "a", "slot": 1}]}])",
        R"([{"serverIp": "10.0.0.1", "serverType": 2}])"),
    Row("Disk_element_that_is_not_an_object_is_read_as_an_empty_object", kDisk, R"({"results": [7]})", "[]", "[]",
        EmptyObject()),
    Row("Disk_results_that_are_not_a_list_are_read_as_an_empty_list", kDisk, R"({"results": {"serverIp": "a"}})", "[]",
        "[]"),
    Row("Memory_of_an_empty_list_leaves_the_vector_unchanged", kMemory, R"({"results": []})", R"(["before"])", "[]"),
    Row("Memory_stops_at_the_first_element_without_address", kMemory,
        R"({"results": [{"serverIp": "10.0.0.1"}, {"ip": "10.0.0.2"}, {"serverIp": "10.0.0.3"}]})", R"(["before"])",
        R"(["10.0.0.1"])", MissingKey("serverIp")),
    Row("NetWorks_second_without_value", kNetWorks,
        R"({"results": [{"netWorkName": "LAN", "netWorkValue": "1"}, {"netWorkName": "WAN"}]})",
        R"({"netWorks": [{"netWorkName": "before", "netWorkValue": 9}]})",
        R"({"netWorks": [{"netWorkName": "LAN", "netWorkValue": 1}]})", MissingKey("netWorkValue")),
});

INSTANTIATE_TEST_SUITE_P(ServerWarning, ParseTest, testing::ValuesIn(kParses), RowName());

const RecordRow kRecords[] = {
    FieldsOf<CheckHostSpareWarning>("warningHappened warningTime warningContent"),
    FieldsOf<WarnDisk>("path slot"),
    FieldsOf<DiskWarmParam>("serverIp serverType warnDisks"),
    FieldsOf<NetWorkItem>("netWorkName netWorkValue"),
    FieldsOf<NetWorksParam>("netWorks"),
};

INSTANTIATE_TEST_SUITE_P(ServerWarning, RecordTest, testing::ValuesIn(kRecords), RowName());

}  // namespace
