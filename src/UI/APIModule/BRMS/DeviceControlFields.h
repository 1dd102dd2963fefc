#pragma once

#include "DeviceControl.h"

#include <boost/describe/class.hpp>

namespace APIModule {

// The fields of each record, in the order of their declaration.
BOOST_DESCRIBE_STRUCT(IPSpeakerChannel, (), (channelId, fileIds, playCount))
BOOST_DESCRIBE_STRUCT(IPSpeakerControl, (), (channels, command))
BOOST_DESCRIBE_STRUCT(ChannelControlRsp, (), (channelId, errorCode))

}  // namespace APIModule
