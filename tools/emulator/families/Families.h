#pragma once

#include "../Handlers.h"

/// The handlers of each family, which work on the state from the seed file of the same name.
namespace emulator::families {

HandlerTable Brms();
HandlerTable Dms();
HandlerTable Iams();
HandlerTable Ipms();
HandlerTable Obms();
HandlerTable Omms();

/// Devices and channels, shared by several families (seed file inventory.json).
inline const Collection kDevices{"/inventory/devices", "deviceCode"};
inline const Collection kChannels{"/inventory/channels", "channelId"};

}  // namespace emulator::families
