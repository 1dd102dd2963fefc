#pragma once

#include "../APIModuleGlobal.h"

#include <string>
#include <vector>

namespace APIModule {

/// What one IP speaker is to play. All three travel as texts.
struct IPSpeakerChannel {
    std::string channelId;  ///< "channelId": the speaker's channel
    std::string fileIds;    ///< "fileIds": identifiers of the audio files in the server's format, such as "12,13"
    std::string playCount;  ///< "playCount": how often to play, kept as text, such as "3"
};

/// A command to IP speakers.
struct IPSpeakerControl {
    std::vector<IPSpeakerChannel> channels;  ///< "channels": the speakers
    int command = 0;                         ///< "command": what they are to do, the server's code, such as 1
};

/// A channel on which a command failed.
struct ChannelControlRsp {
    std::string channelId;  ///< "channelId": the channel
    int errorCode = 0;      ///< "errorCode": the server's error code, such as 5
};

}  // namespace APIModule
