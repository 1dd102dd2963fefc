#pragma once

#include "../Handlers.h"

/// What the platform does for each call of a family: one table a family, on the state of the seed file of its name.
namespace emulator::families {

HandlerTable Brms();
HandlerTable Dms();
HandlerTable Iams();
HandlerTable Ipms();
HandlerTable Obms();
HandlerTable Omms();

/// Devices and channels, which several families share (seed file inventory.json).
inline const Collection kDevices{"/inventory/devices", "deviceCode"};
inline const Collection kChannels{"/inventory/channels", "channelId"};

}  // namespace emulator::families
