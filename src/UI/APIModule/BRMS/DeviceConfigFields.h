#pragma once

#include "DeviceConfig.h"

#include <boost/describe/class.hpp>

namespace APIModule {

// The fields of each record, in the order of their declaration.
BOOST_DESCRIBE_STRUCT(NetworkConfig, (), (deviceCode, ip, mask, gateway, dns))
BOOST_DESCRIBE_STRUCT(EncodeConfig, (),
                      (channelId, streamType, bitRate, bitRateControl, compression, enable, frameRate, iFrameInterval,
                       height, width))
BOOST_DESCRIBE_STRUCT(EncodeFormat, (), (frameRateMax, videoHeight, videoWidth))
BOOST_DESCRIBE_STRUCT(EncodeCompressionCapability, (), (compression, formats))
BOOST_DESCRIBE_STRUCT(EncodeCapability, (), (supportCompressions, encodeCapabilities))
BOOST_DESCRIBE_STRUCT(ImageConfig, (), (channelId, brightness, saturation, contrast, sharpness))
BOOST_DESCRIBE_STRUCT(MultiCastStream, (), (multicastIp, multicastPort, streamType, status))
BOOST_DESCRIBE_STRUCT(MultiCastConfigInfo, (), (channelId, status, streams))
BOOST_DESCRIBE_STRUCT(MultiCastStreamStatus, (), (channelId, streamType, status))

}  // namespace APIModule
