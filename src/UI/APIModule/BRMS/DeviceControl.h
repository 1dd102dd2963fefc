#pragma once

#include "../APIModuleGlobal.h"

#include <string>
#include <vector>

namespace APIModule {

/// The files that one IP speaker plays. All three fields are sent as strings.
struct IPSpeakerChannel {
    std::string channelId;  ///< "channelId": the speaker's channel
    std::string fileIds;    ///< "fileIds": identifiers of the audio files in the server's format, such as "12,13"
    std::string playCount;  ///< "playCount": number of repetitions, as a string, such as "3"
};

/// A command to IP speakers.
struct IPSpeakerControl {
    std::vector<IPSpeakerChannel> channels;  ///< "channels": the speakers
    int command = 0;                         ///< "command": the server's code, such as 1
};

/// A channel on which a command failed.
struct ChannelControlRsp {
    std::string channelId;  ///< "channelId": the channel
    int errorCode = 0;      ///< "errorCode": the server's error code, such as 5
};

}  // namespace APIModule
