#pragma once

#include "../APIModuleGlobal.h"

#include <string>
#include <vector>

namespace APIModule {

/// Network settings of one device.
struct NetworkConfig {
    std::string deviceCode;  ///< the device; part of the URL, neither sent in a body nor filled by a Parse
    std::string ip;          ///< "ip": address
    std::string mask;        ///< "mask": subnet mask
    std::string gateway;     ///< "gateway": address of the gateway
    std::string dns;         ///< "dns": address of the name server
};

/// Video encoding of one stream of a channel. Codes and units are the server's.
struct EncodeConfig {
    std::string channelId;   ///< neither sent nor filled; the channel is part of the URL
    int streamType = 0;      ///< "streamType": which stream, such as 1
    int bitRate = 0;         ///< "bitRate": bit rate, such as 4096
    int bitRateControl = 0;  ///< "bitRateControl": code of the bit-rate control, such as 1
    int compression = 0;     ///< "compression": code of the compression, such as 3
    int enable = 0;          ///< "enable": whether the stream is on, as the server's number, such as 1
    int frameRate = 0;       ///< "frameRate": frame rate, such as 25
    int iFrameInterval = 0;  ///< "iFrameInterval": interval between I-frames, such as 50
    int height = 0;          ///< "height": picture height, such as 1080
    int width = 0;           ///< "width": picture width, such as 1920
};

/// A picture format that an encoder supports.
struct EncodeFormat {
    int frameRateMax = 0;  ///< "frameRateMax": highest frame rate, in the server's unit, such as 25
    int videoHeight = 0;   ///< "videoHeight": picture height
    int videoWidth = 0;    ///< "videoWidth": picture width
};

/// The picture formats that an encoder supports with one compression.
struct EncodeCompressionCapability {
    int compression = 0;                ///< "compression": code of the compression
    std::vector<EncodeFormat> formats;  ///< "formats": the picture formats
};

/// Encoding capability of one stream.
struct EncodeCapability {
    std::vector<int> supportCompressions;  ///< "supportCompressions": codes, sent as decimal strings
    std::vector<EncodeCompressionCapability> encodeCapabilities;  ///< "encodeCapabilities": formats by compression
};

/// Image adjustment of one channel. The server defines the ranges; values are such as 50.
struct ImageConfig {
    std::string channelId;  ///< the channel; part of the URL, neither sent in a body nor filled by a Parse
    int brightness = 0;     ///< "brightness"
    int saturation = 0;     ///< "saturation"
    int contrast = 0;       ///< "contrast"
    int sharpness = 0;      ///< "sharpness"
};

/// Multicast of one stream of a channel.
struct MultiCastStream {
    std::string multicastIp;    ///< "multicastIp": the group's address
    std::string multicastPort;  ///< "multicastPort": the group's port, as a string
    int streamType = 1;         ///< "streamType": which stream, the server's code
    bool status = false;        ///< "status": multicast of the stream is on
};

/// Multicast of one channel.
struct MultiCastConfigInfo {
    std::string channelId;                 ///< the channel; part of the URL, not filled by a Parse
    bool status = false;                   ///< "status": multicast of the channel is on
    std::vector<MultiCastStream> streams;  ///< "streams": its streams
};

/// Multicast switch of one stream.
struct MultiCastStreamStatus {
    std::string channelId;  ///< the channel; part of the URL
    int streamType = 0;     ///< "streamType": which stream, the server's code
    bool status = false;    ///< "status": multicast of the stream is on
};

}  // namespace APIModule
