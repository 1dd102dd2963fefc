#pragma once

#include "../APIModuleGlobal.h"

#include <string>
#include <vector>

namespace APIModule {

/// The requested page of alarm plans. All fields are part of the URL.
struct GetPageSummaryAlarmPlansParam {
    int page = 0;         ///< "page": page number, counted from 1; 0 also means the first page
    int pageSize = 0;     ///< "pageSize": plans per page
    std::string keyword;  ///< "keyword": part of the plan's name, empty for all plans; inserted into the URL unencoded
};

/// An alarm plan in a list.
struct SummaryAlarmPlan {
    std::string id;        ///< "id": identifier
    std::string planName;  ///< "planName": display name
};

/// A channel that an alarm triggers.
struct AlarmLinkChannel {
    std::string channelId;    ///< "channelId": the channel
    std::string channelName;  ///< "channelName": its display name
};

/// An audio channel that an alarm triggers.
struct AlarmLinkAudioChannel {
    std::string channelId;    ///< "channelId": the channel
    std::string channelName;  ///< "channelName": its display name
    std::string fileIds;      ///< "fileIds": the audio files to play in the server's format, such as "12,13"
};

/// The channels that an alarm triggers.
struct AlarmLinkControl {
    std::vector<AlarmLinkChannel> linkAlarmOutputChannels;  ///< "linkAlarmOutputChannels": alarm outputs
    std::vector<AlarmLinkChannel> linkAudioLightChannels;   ///< "linkAudioLightChannels": audio-light alarms
    std::vector<AlarmLinkAudioChannel> linkAudioChannels;   ///< "linkAudioChannels": audio channels
};

/// A map layer and the position of an alarm resource on it, in the server's units. In the contract's example the
/// picture is 1920 wide and 1080 high; the resource is at 412.5, 233.25 and rotated by 90.
struct AlarmLayerInfo {
    std::string layerId;       ///< "layerId": the layer
    std::string layerName;     ///< "layerName": its display name
    std::string layerPicture;  ///< "layerPicture": its picture as the server refers to it, such as
                               ///< "/layers/21/plan.png"
    double locationX = 0.0;    ///< "locationX": horizontal position of the resource on the layer
    double locationY = 0.0;    ///< "locationY": vertical position of the resource on the layer
    double width = 0.0;        ///< "width": width of the picture
    double height = 0.0;       ///< "height": height of the picture
    double angle = 0.0;        ///< "angle": rotation of the resource on the layer
};

/// A recorded file of an alarm.
struct AlarmRecordFile {
    int fileType = 0;        ///< "fileType": kind of file, the server's code, such as 1
    std::string filePath;    ///< "filePath": path of the file on its storage server
    std::string ssId;        ///< "ssId": the storage server that holds it
    std::string channelId;   ///< "channelId": the channel that was recorded
    int64 recordTime = 0;    ///< "recordTime": time of the recording, in the server's unit, such as 1718094600
    int fileTimeLength = 0;  ///< "fileTimeLength": duration, in the server's unit, such as 30
    int64 fileLength = 0;    ///< "fileLength": size of the file, in the server's unit, such as 15728640
};

/// The recorded files of one alarm record.
struct AlarmHostFileInfo {
    std::string alarmCode;               ///< "alarmCode": code of the alarm
    std::vector<AlarmRecordFile> files;  ///< "files": its files
};

/// The state of an audio file task.
struct AudioFileInfo {
    std::string taskProgress;  ///< "taskProgress": progress of the task as a string, such as "100"
    std::string fileUrl;       ///< "fileUrl": location of the file, such as "/audio/files/12.wav"
};

/// An event type of plug-in logs.
struct PluginLogEventType {
    std::string eventType;      ///< "eventType": code of the type
    std::string eventTypeName;  ///< "eventTypeName": its display name
    int sort = 0;               ///< "sort": its position within the group
};

/// A group of event types of plug-in logs.
struct PluginLogTypeGroupInfo {
    std::string groupId;                         ///< "groupId": the group
    std::string groupName;                       ///< "groupName": its display name
    int sort = 0;                                ///< "sort": its position among the groups
    std::vector<PluginLogEventType> eventTypes;  ///< "eventTypes": its event types
};

/// Filter of the general events. The server never receives it: a GET is sent without a body.
struct GetGeneralEventsParam {
    std::string transportType;  ///< "transportType": the server's code of the transport
    std::string matchType;      ///< "matchType": the server's code of the match mode
    std::string keyword;        ///< "keyword": text to match
};

/// A general event.
struct GeneralEventRsp {
    std::string id;         ///< "id": identifier
    std::string eventName;  ///< "eventName": display name
};

}  // namespace APIModule
