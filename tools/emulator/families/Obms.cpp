#include "Families.h"

#include <algorithm>

namespace emulator::families {
namespace {

const Collection kPersons{"/obms/persons", "personId"};
const Collection kPoints{"/obms/points", "pointId"};
const Collection kZones{"/obms/zones", "zoneId"};
constexpr const char* kManaged = "/obms/managedPersons";

bool Holds(const Json& list, const Json& value)
{
    return std::find(list.begin(), list.end(), value) != list.end();
}

bool AtDevice(const Json& person, const Call& call)
{
    const std::string device = ValueOf(call, "deviceCode");
    return device.empty() || Holds(person.at("deviceCodes"), device);
}

bool AtOneOfThePoints(const Json& person, const Call& call)
{
    const Json& points = call.body.at("pointIds");
    return points.empty() || std::any_of(points.begin(), points.end(),
                                         [&](const Json& point) { return Holds(person.at("pointIds"), point); });
}

Json ReadManagedPersons(const Call& call)
{
    kDevices.find(call.state, PathValue(call));
    const Json& errors = call.state.at(StatePath("/obms/managedErrors"));
    Json results = Json::array();
    const auto ids = call.state.at(StatePath(kManaged)).value(PathValue(call), std::vector<std::string>());
    for (const std::string& id : ids) {
        Json person = kPersons.find(call.state, id);
        person["errorCode"] = errors.value(id, "0");
        results.push_back(std::move(person));
    }
    return Json{{"results", results}};
}

Json WriteManagedPersons(const Call& call)
{
    kDevices.find(call.state, PathValue(call));
    for (const Json& id : call.body.at("personIds")) {
        kPersons.find(call.state, id);
    }
    call.state.at(StatePath(kManaged))[PathValue(call)] = call.body.at("personIds");
    return Json::object();
}

Json ReadPointRules(const Call& call)
{
    const std::string type = ValueOf(call, "ruleType");
    const int offline = call.query.at("hasOfflinePoint");
    Json results = Json::array();
    for (const Json& rule : kPoints.find(call.state, PathValue(call)).at("rules")) {
        const bool hasOffline = rule.at("hasOfflinePoint");
        const bool wanted = (offline != 0 && offline != 1) || hasOffline == (offline == 1);
        if (wanted && (type.empty() || rule.at("ruleType") == type)) {
            results.push_back(rule);
        }
    }
    return Json{{"results", results}};
}

/// Reissuing always succeeds, so it clears the failures.
Json ReissueCards(const Call& call)
{
    call.state.at(StatePath("/obms/desfireFailures")) = Json::array();
    return RecordAccepted(call);
}

/// Mode 1 deletes all contacts of the outdoor station, mode 2 only the listed indoor stations.
Json DeleteContacts(const Call& call)
{
    const std::string station = call.body.at("vtoDeviceCode");
    kDevices.find(call.state, station);
    Json left = Json::array();
    for (const Json& contact : call.state.at(StatePath("/obms/contacts")).value(station, Json::array())) {
        if (call.body.at("mode") == "2" && !Holds(call.body.at("vthDeviceCodes"), contact)) {
            left.push_back(contact);
        }
    }
    call.state.at(StatePath("/obms/contacts"))[station] = left;
    return RecordAccepted(call);
}

Json TakeZoneSnapshot(const Call& call)
{
    kZones.find(call.state, PathValue(call));
    RecordAccepted(call);
    return Json{{"session", "snapshot-" + PathValue(call) + "-" + NextNumber(call, "snapshot")}};
}

}  // namespace

HandlerTable Obms()
{
    return {
        {"OBMS.GetPageAccessAuthorizePersons",
         Page(kPersons.list, {HasKeyword({"personName", "personId"}), InOrganisation(), AtDevice, AtOneOfThePoints})},
        {"OBMS.GetManagePersons", ReadManagedPersons},
        {"OBMS.SetManagePersons", WriteManagedPersons},
        {"OBMS.GetPointRules", {ReadPointRules, "/obms/points/[]/rules/[]", "/properties/results/items"}},
        {"OBMS.PersonResetAntiPass", AcceptFor(kPersons)},
        {"OBMS.GetConfigDesfireInfo", ReadDocument("/obms/desfire")},
        {"OBMS.UpdateConfigDesfireInfo", WriteDocument("/obms/desfire")},
        {"OBMS.GetPageConfigDesfireFailInfo",
         Page("/obms/desfireFailures", {HasKeyword({"deviceName", "deviceCode", "deviceIp"})})},
        {"OBMS.ReissueConfigDesfire", ReissueCards},
        {"OBMS.DeleteAddressBooks", DeleteContacts},
        {"OBMS.AlarmHostZoneSnapShot", TakeZoneSnapshot},
    };
}

}  // namespace emulator::families
