#include "Families.h"

namespace emulator::families
{
namespace
{

const Place kSettings("/brms/localSettings");
const Place kLastSetting("/brms/lastSettingType");

Json& SettingEntry(Json& state, int type)
{
    Json& entry = state.at(kSettings)[std::to_string(type)];
    if (entry.is_null())
    {
        entry = Json{{"apply", false}, {"settingType", type}, {"settingVersion", 0}, {"settingContent", ""}};
    }
    return entry;
}

Json ReadSetting(const Call& call)
{
    const int type = call.query.at("settingType");
    call.state[kLastSetting] = type;
    return SettingEntry(call.state, type);
}

/// The call names no type: it changes the setting that was read last, the first one when none was.
Json WriteSetting(const Call& call)
{
    Json& entry = SettingEntry(call.state, call.state.value(kLastSetting, 1));
    entry.update(BodyAsRead(call));
    entry["settingVersion"] = entry.at("settingVersion").get<std::int64_t>() + 1;
    return Json::object();
}

}  // namespace

HandlerTable Brms()
{
    return {
        {"BRMS.GetTimeSyncConfig", ReadDocument("/brms/timeSync")},
        {"BRMS.SetTimeSyncConfig", WriteDocument("/brms/timeSync")},
        {"BRMS.ImmediatelySyncTime", Accept()},
        {"BRMS.GetRemoteLogConfig", ReadDocument("/brms/remoteLog")},
        {"BRMS.SetRemoteLogConfig", WriteDocument("/brms/remoteLog")},
        {"BRMS.GetDeviceLoginModel", ReadDocument("/brms/deviceLoginModel")},
        {"BRMS.SetDeviceLoginModel", WriteDocument("/brms/deviceLoginModel")},
        {"BRMS.GetPushAppMsgConfig", ReadDocument("/brms/pushMessage")},
        {"BRMS.SetPushAppMsgConfig", WriteDocument("/brms/pushMessage")},
        {"BRMS.GetSupportDataBaseType", ReadDocument("/brms/databaseTypes")},
        {"BRMS.GetLocalSetting", ReadSetting},
        {"BRMS.UpdateLocalSetting", WriteSetting},
        {"BRMS.GetAIPrivacyConfig", ReadDocument("/brms/aiPrivacy")},
        {"BRMS.UpdateAIPrivacyConfig", WriteDocument("/brms/aiPrivacy")},
    };
}

}  // namespace emulator::families
