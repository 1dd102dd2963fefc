#include "Families.h"

namespace emulator::families {

HandlerTable Omms()
{
    return {
        {"OMMS.GetAlertTypes", List("/omms/alertTypes")},
        {"OMMS.GetChannelInfo", ReadElement(kChannels)},
        {"OMMS.GetDeviceInfo", ReadElement(kDevices)},
    };
}

}  // namespace emulator::families
