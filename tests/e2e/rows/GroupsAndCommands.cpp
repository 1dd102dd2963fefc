#include "Rows.h"

namespace e2e {

static Expectation Groups()
{
    return At("/brms/userGroups");
}

std::vector<Row> UserGroupRows()
{
    const Json group = R"({"groupName": "Gäste & Lieferanten #3", "memo": "50% \"Süd\", nur werktags"})"_json;
    return {
        Reads("BRMS.GetUserGroupList", {{"keyword", ""}}, Groups()),
        Reads("BRMS.GetUserGroupList Keyword", {{"keyword", "guards"}},
              [](const Json& state) { return PageOf(Groups()(state), 1, 2); }),
        Reads("BRMS.GetUserGroupList KeywordBeyondAscii", {{"keyword", "Müller"}},
              [](const Json& state) { return Json::array({Element(Groups()(state), "id", "15")}); }),
        WritesAndReads("BRMS.AddUserGroup", {{"group", group}},
                       {ReadBack("BRMS.GetUserGroup", {{"groupId", "17"}}, With(group, {{"id", "17"}})),
                        StateAt("/brms/userGroups/5", With(group, {{"id", "17"}}))},
                       [](const Json& state) { return Groups()(state).back().at("id"); }),
        Writes("BRMS.UpdateUserGroup", {{"groupId", "13"}, {"group", group}},
               {ReadBack("BRMS.GetUserGroup", {{"groupId", "13"}}, With(group, {{"id", "13"}}))}),
        Writes("BRMS.MoveUserGroup", {{"move", {{"groupId", "13"}, {"userIds", {"38", "31"}}}}},
               {StateAt("/brms/users/0/groupId", "13"), StateAt("/brms/users/7/groupId", "13"),
                Accepted("BRMS.MoveUserGroup", Json::object(), {{"groupId", "13"}, {"userIds", {"38", "31"}}})}),
        Writes("BRMS.ClearUserGroup", {{"groupId", "12"}},
               {StateAt("/brms/users/0/groupId", ""), StateAt("/brms/users/1/groupId", ""),
                Accepted("BRMS.ClearUserGroup", {{"groupId", "12"}}, {})}),
        Writes("BRMS.DeleteUserGroup", {{"groupIds", {"15", "12"}}},
               {ReadBack("BRMS.GetUserGroupList", {{"keyword", ""}}, R"([
              {"id": "13", "groupName": "Guards night shift", "memo": ""},
              {"id": "14", "groupName": "Reception", "memo": "Visitors & deliveries"},
              {"id": "16", "groupName": "Administrators", "memo": "All rights"}])"_json),
                StateAt("/brms/users/5/groupId", "")}),
    };
}

/// A command in the list of all commands, which reads neither mode nor requests.
static Json Summary(const Json& command)
{
    return With(command, {{"executeMode", 0}, {"httpUrls", Json::array()}});
}

/// A command in the list of a plan, which reads only the name and the requests without their bodies.
static Json OfAPlan(const Json& command)
{
    return {{"id", ""},
            {"quickCommandName", command.at("quickCommandName")},
            {"enableShortcutKeys", false},
            {"shortcutKeys", ""},
            {"executeMode", 0},
            {"remark", ""},
            {"httpUrls", Each(command.at("httpUrls"), [](const Json& request) {
                 return With(request, {{"body", ""}});
             })}};
}

std::vector<Row> QuickCommandRows()
{
    const Expectation commands = At("/brms/quickCommands");
    const Json added = R"({
        "quickCommandName": "Schranke öffnen", "enableShortcutKeys": true, "shortcutKeys": "Ctrl+Shift+Ö",
        "executeMode": 2, "remark": "Tor & Hof #1", "httpUrls": [
            {"method": 1, "url": "http://192.168.30.9/gate?side=a&open=1#top", "body": "{\"gate\": \"Süd\"}", "seq": "1"},
            {"method": 3, "url": "http://192.168.30.9/lock/4", "body": "", "seq": "2"}]})"_json;
    const Json changed = With(added, {{"id", "6"}});
    const Json stored = With(added, {{"id", "9"}});
    return {
        Writes("BRMS.AddQuickCommand", {{"command", added}},
               {ReadBack("BRMS.GetQuickCommands", {{"keyword", "Schranke"}}, Json::array({Summary(stored)})),
                ReadBack("BRMS.GetQuickCommand", {{"id", "9"}}, stored), StateAt("/brms/quickCommands/4", stored)}),
        Writes("BRMS.UpdateQuickCommand", {{"command", changed}},
               {ReadBack("BRMS.GetQuickCommand", {{"id", "6"}}, changed),
                ReadBack("BRMS.GetAlarmPlanQuickCommands", {{"planId", "3"}},
                         Json::array({OfAPlan({{"quickCommandName", "Open main gate"},
                                               {"httpUrls", R"([{"method": 2, "url": "http://192.168.30.5/gate/open",
                                                           "body": "", "seq": "1"}])"_json}}),
                                      OfAPlan(changed)}))}),
        Writes("BRMS.DelQuickCommand", {{"ids", {"8", "5", "7"}}},
               {ReadBack("BRMS.GetQuickCommands", {{"keyword", ""}}, R"([
              {"id": "6", "quickCommandName": "Evacuate hall", "enableShortcutKeys": true,
               "shortcutKeys": "Ctrl+Alt+E", "executeMode": 0, "remark": "Speakers, then doors", "httpUrls": []}
              ])"_json),
                ReadBack("BRMS.GetAlarmPlanQuickCommands", {{"planId", "17"}}, Json::array())}),
        Reads("BRMS.GetQuickCommands", {{"keyword", ""}},
              [commands](const Json& state) { return Each(commands(state), Summary); }),
        Reads("BRMS.GetQuickCommands Keyword", {{"keyword", "yard"}},
              [commands](const Json& state) { return Json::array({Summary(Element(commands(state), "id", "7"))}); }),
        Reads("BRMS.GetAlarmPlanQuickCommands", {{"planId", "9"}},
              [commands](const Json& state) {
                  return Each(Element(state.at("brms").at("alarmPlans"), "id", "9").at("quickCommandIds"),
                              [&](const Json& id) { return OfAPlan(Element(commands(state), "id", id)); });
              }),
    };
}

}  // namespace e2e
