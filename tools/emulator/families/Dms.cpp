#include "Families.h"

namespace emulator::families {
namespace {

/// The user who has locked the channel; empty for an unlocked channel.
Json LockUserOf(const Call& call, const std::string& channelId)
{
    return call.state.at(StatePath("/dms/lockUsers")).value(channelId, Json::object());
}

/// A locked channel ignores the command: result "1".
Json Command(const Call& call, const std::string& channelId)
{
    kChannels.find(call.state, channelId);
    RecordAccepted(call);
    const Json lockUser = LockUserOf(call, channelId);
    return Json{{"lockUser", lockUser}, {"result", lockUser.empty() ? "0" : "1"}};
}

Json Wash(const Call& call)
{
    return Command(call, call.body.at("data").at("channelId"));
}

Json CommandNamed(const Call& call)
{
    return Command(call, PathValue(call));
}

Json WashBatch(const Call& call)
{
    const Json& commands = call.body.at("data").at("ptzAuxControlXos");
    std::size_t locked = 0;
    for (const Json& command : commands) {
        const std::string channelId = command.at("channelId");
        kChannels.find(call.state, channelId);
        locked += LockUserOf(call, channelId).empty() ? 0 : 1;
    }
    RecordAccepted(call);
    const std::string switched = std::to_string(commands.size() - locked) + " channels switched";
    return Json{{"result", locked == 0 ? "0" : "1"},
                {"msg", locked == 0 ? switched : switched + ", " + std::to_string(locked) + " locked"}};
}

}  // namespace

HandlerTable Dms()
{
    return {
        {"DMS.WashOpen", Wash},
        {"DMS.BatchWashOpen", WashBatch},
        {"DMS.SetHomePosition", CommandNamed},
        {"DMS.GotoHomePosition", {CommandNamed, "/dms/lockUsers/{}", "/properties/lockUser/oneOf/1"}},
    };
}

}  // namespace emulator::families
