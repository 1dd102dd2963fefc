#include "Rows.h"

namespace e2e {

std::vector<Row> DmsRows()
{
    const Json free = {{"channelId", "1000001$1$0$0"}};
    const Json locked = {{"channelId", "1000003$1$0$0"}};
    const Json both = R"(["1000001$1$0$0", "1000003$1$0$0"])"_json;
    const Json washBoth = R"({"data": {"ptzAuxControlXos": [{"channelId": "1000001$1$0$0", "command": 1},
                                                            {"channelId": "1000003$1$0$0", "command": 1}]}})"_json;
    const auto succeeded = [](const Json& /*state*/) {
        return R"({"result": "0", "userName": "", "userLevel": "", "lowerDomain": ""})"_json;
    };
    const auto refused = [](const Json& state) {
        return With(state.at("dms").at("lockUsers").at("1000003$1$0$0"), {{"result", "1"}});
    };
    const auto wash = [](const Json& channel) { return Json{{"data", With(channel, {{"command", 1}})}}; };
    return {
        WritesAndReads("DMS.WashOpen", free, {Accepted("DMS.WashOpen", Json::object(), wash(free))}, succeeded),
        WritesAndReads("DMS.WashOpen Locked", locked, {Accepted("DMS.WashOpen", Json::object(), wash(locked))},
                       refused),
        WritesAndReads(
            "DMS.BatchWashOpen", {{"channelIds", both}}, {Accepted("DMS.BatchWashOpen", Json::object(), washBoth)},
            [](const Json& /*state*/) { return R"({"result": "1", "msg": "1 channels switched, 1 locked"})"_json; }),
        WritesAndReads("DMS.SetHomePosition", free, {Accepted("DMS.SetHomePosition", free, {})}, succeeded),
        WritesAndReads("DMS.SetHomePosition Locked", locked, {Accepted("DMS.SetHomePosition", locked, {})}, refused),
        WritesAndReads("DMS.GotoHomePosition", free, {Accepted("DMS.GotoHomePosition", free, {})}, succeeded),
        WritesAndReads("DMS.GotoHomePosition Locked", locked, {Accepted("DMS.GotoHomePosition", locked, {})}, refused),
    };
}

std::vector<Row> IamsRows()
{
    return {Writes("IAMS.SetAnalysisTaskUploadFailed", {{"taskIds", {"703", "701"}}},
                   {StateAt("/iams/tasks/0/uploadFailed", true), StateAt("/iams/tasks/2/uploadFailed", true),
                    Accepted("IAMS.SetAnalysisTaskUploadFailed", Json::object(), {{"ids", {"703", "701"}}})})};
}

static const Keys& SimpleLotKeys()
{
    static const Keys keys = {"id",
                              "parkingLotName",
                              "orgCode",
                              "orgName",
                              "parentParkingLotId",
                              "parentParkingLotName",
                              "parkingLotMode",
                              "enableParkingSpaceStatistics",
                              "parkingSpaceStatisticsType",
                              "positions"};
    return keys;
}

static Json SimpleLot(const Json& lot)
{
    Json simple = Pick(lot, SimpleLotKeys());
    for (Json& position : simple.at("positions")) {
        position["points"] =
            PickEach(position.at("points"), {"id", "pointName", "remark", "refPointId", "direction", "mode"});
    }
    return simple;
}

std::vector<Row> IpmsRows()
{
    const Json plate = {{"id", "88002"}, {"plateNo", "MÜ-NC 9001"}};
    return {
        Reads("IPMS.GetSimpleParkingLots", {{"parkingLotIds", ""}, {"mode", 0}},
              [](const Json& state) { return Each(state.at("ipms").at("parkingLots"), SimpleLot); }),
        Reads("IPMS.GetSimpleParkingLots Listed", {{"parkingLotIds", "4,1"}, {"mode", 0}},
              [](const Json& state) {
                  const Json& lots = state.at("ipms").at("parkingLots");
                  return Json::array({SimpleLot(Element(lots, "id", "1")), SimpleLot(Element(lots, "id", "4"))});
              }),
        Reads("IPMS.GetDetailParkingLots", {{"parkingLotIds", ""}, {"orgCode", ""}, {"mode", 0}},
              At("/ipms/parkingLots")),
        Reads("IPMS.GetDetailParkingLots OfAnOrganisation", {{"parkingLotIds", ""}, {"orgCode", "001"}, {"mode", 1}},
              [](const Json& state) {
                  return Where(state.at("ipms").at("parkingLots"),
                               [](const Json& lot) { return lot.at("orgCode") == "001"; });
              }),
        Reads("IPMS.GetParkingOrganization", {}, At("/ipms/organisations")),
        Writes("IPMS.UpdateVehicleCaptureRecord", {{"info", plate}},
               {StateAt("/ipms/captureRecords/1", plate),
                Accepted("IPMS.UpdateVehicleCaptureRecord", Json::object(), plate)}),
    };
}

static Json AuthorizedPersons(const Json& persons)
{
    return PickEach(persons, {"personId", "personName", "orgCode", "orgName", "orgInfos"});
}

static Json ManagingPersons(const Json& state, const std::string& deviceCode)
{
    const Json& obms = state.at("obms");
    return Each(obms.at("managedPersons").at(deviceCode), [&obms](const Json& id) {
        const Json person = Element(obms.at("persons"), "personId", id);
        return With(Pick(person, {"personId", "personName", "orgCode", "orgName", "orgInfos"}),
                    {{"errorCode", obms.at("managedErrors").value(id.get<std::string>(), "0")}});
    });
}

std::vector<Row> ObmsRows()
{
    const Json cardConfig = {{"enableDesfire", false}, {"enableReadEncryptContent", true}};
    const Json manager = R"([{"personId": "5012", "personName": "Kira Petrova", "orgCode": "001001",
                              "orgName": "Site North", "orgInfos": [], "errorCode": "0"}])"_json;
    const Json someContacts = R"({"mode": "2", "vtoDeviceCode": "1000051",
                                  "vthDeviceCodes": ["1000054", "1000052"]})"_json;
    const Json allContacts = R"({"mode": "1", "vtoDeviceCode": "1000051", "vthDeviceCodes": []})"_json;
    const Json rulesOfGate = {{"pointId", "61"}, {"ruleType", "1"}, {"hasOfflinePoint", 1}};
    return {
        Reads("OBMS.GetPageAccessAuthorizePersons", {{"req", {{"page", 2}, {"pageSize", 5}}}},
              [](const Json& state) {
                  const Json& persons = state.at("obms").at("persons");
                  return Json{{"totalCount", persons.size()}, {"pageData", AuthorizedPersons(PageOf(persons, 2, 5))}};
              }),
        Reads("OBMS.GetPageAccessAuthorizePersons Filtered",
              {{"req", R"({"page": 1, "pageSize": 10, "containChild": true, "keyword": "a", "deviceCode": "1000042",
                      "orgCode": "001001", "pointIds": ["62", "63"]})"_json}},
              [](const Json& state) {
                  const Json& persons = state.at("obms").at("persons");
                  const Json found = {Element(persons, "personId", "5002"), Element(persons, "personId", "5004"),
                                      Element(persons, "personId", "5012")};
                  return Json{{"totalCount", 3}, {"pageData", AuthorizedPersons(found)}};
              }),
        Reads("OBMS.GetManagePersons", {{"req", {{"deviceCode", "1000041"}}}},
              [](const Json& state) { return ManagingPersons(state, "1000041"); }),
        Writes("OBMS.SetManagePersons", {{"req", R"({"deviceCode": "1000042", "personIds": ["5012"]})"_json}},
               {ReadBack("OBMS.GetManagePersons", {{"req", {{"deviceCode", "1000042"}}}}, manager),
                StateAt("/obms/managedPersons/1000042", Json::array({"5012"}))}),
        Reads("OBMS.GetPointRules", {{"req", rulesOfGate}},
              [](const Json& state) {
                  const Json rules = Element(state.at("obms").at("points"), "pointId", "61").at("rules");
                  return Json::array({Element(rules, "ruleId", "10")});
              }),
        Reads("OBMS.GetPointRules All", {{"req", With(rulesOfGate, {{"ruleType", ""}, {"hasOfflinePoint", -1}})}},
              [](const Json& state) { return Element(state.at("obms").at("points"), "pointId", "61").at("rules"); }),
        Writes("OBMS.PersonResetAntiPass", {{"personId", "5006"}},
               {Accepted("OBMS.PersonResetAntiPass", {{"personId", "5006"}}, {})}),
        Writes("OBMS.UpdateConfigDesfireInfo", {{"param", cardConfig}},
               {ReadBack("OBMS.GetConfigDesfireInfo", {}, cardConfig), StateAt("/obms/desfire", cardConfig)}),
        Reads("OBMS.GetPageConfigDesfireFailInfo", {{"req", {{"page", 2}, {"pageSize", 3}}}},
              [](const Json& state) {
                  const Json& failures = state.at("obms").at("desfireFailures");
                  return Json{{"totalCount", failures.size()}, {"pageData", PageOf(failures, 2, 3)}};
              }),
        Reads("OBMS.GetPageConfigDesfireFailInfo Keyword",
              {{"req", {{"page", 1}, {"pageSize", 3}, {"keyword", "server room"}}}},
              [](const Json& state) {
                  const Json found = Json::array({Element(state.at("obms").at("desfireFailures"), "id", "303")});
                  return Json{{"totalCount", 1}, {"pageData", found}};
              }),
        Writes("OBMS.ReissueConfigDesfire", {},
               {ReadBack("OBMS.GetPageConfigDesfireFailInfo", {{"req", {{"page", 1}, {"pageSize", 20}}}},
                         R"({"totalCount": 0, "pageData": []})"_json),
                Accepted("OBMS.ReissueConfigDesfire", Json::object(), {})}),
        Writes("OBMS.DeleteAddressBooks", {{"param", R"({"deleteAll": false, "vtoDeviceCode": "1000051",
                        "vthDeviceCodes": ["1000054", "1000052"]})"_json}},
               {StateAt("/obms/contacts/1000051", Json::array({"1000053"})),
                Accepted("OBMS.DeleteAddressBooks", Json::object(), someContacts)}),
        Writes("OBMS.DeleteAddressBooks All",
               {{"param", R"({"deleteAll": true, "vtoDeviceCode": "1000051", "vthDeviceCodes": ["1000052"]})"_json}},
               {StateAt("/obms/contacts/1000051", Json::array()),
                Accepted("OBMS.DeleteAddressBooks", Json::object(), allContacts)}),
        WritesAndReads("OBMS.AlarmHostZoneSnapShot", {{"zoneId", "72"}, {"action", 4}},
                       {Accepted("OBMS.AlarmHostZoneSnapShot", {{"zoneId", "72"}}, {{"action", 4}})},
                       [](const Json& state) { return "snapshot-72-" + state.at("numbers").at("snapshot").dump(); }),
    };
}

std::vector<Row> OmmsRows()
{
    // Removes keys that only other calls read.
    const auto without = [](Json object, const Keys& keys) {
        for (const std::string& key : keys) {
            object.erase(key);
        }
        return object;
    };
    return {
        Reads("OMMS.GetAlertTypes", {}, At("/omms/alertTypes")),
        // Makes the values of all fields different.
        Reads("OMMS.GetChannelInfo", {{"channelId", "1000002$1$0$1"}},
              [without](const Json& state) {
                  return without(Element(state.at("inventory").at("channels"), "channelId", "1000002$1$0$1"),
                                 {"enableWeb"});
              },
              {{"/inventory/channels/7/deviceCategory", 4}, {"/inventory/channels/7/recordPlan", "Weekend"}}),
        Reads("OMMS.GetDeviceInfo", {{"deviceCode", "1000044"}},
              [without](const Json& state) {
                  return without(Element(state.at("inventory").at("devices"), "deviceCode", "1000044"),
                                 {"domain", "sourceType", "permitted", "enableWeb"});
              },
              {{"/inventory/devices/13/manufacturer", "3"}}),
    };
}

}  // namespace e2e
