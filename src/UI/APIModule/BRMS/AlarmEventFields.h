#pragma once

#include "AlarmEvent.h"

#include <boost/describe/class.hpp>

namespace APIModule {

// The fields of each record, in the order of their declaration.
BOOST_DESCRIBE_STRUCT(GetPageSummaryAlarmPlansParam, (), (page, pageSize, keyword))
BOOST_DESCRIBE_STRUCT(SummaryAlarmPlan, (), (id, planName))
BOOST_DESCRIBE_STRUCT(AlarmLinkChannel, (), (channelId, channelName))
BOOST_DESCRIBE_STRUCT(AlarmLinkAudioChannel, (), (channelId, channelName, fileIds))
BOOST_DESCRIBE_STRUCT(AlarmLinkControl, (), (linkAlarmOutputChannels, linkAudioLightChannels, linkAudioChannels))
BOOST_DESCRIBE_STRUCT(AlarmLayerInfo, (),
                      (layerId, layerName, layerPicture, locationX, locationY, width, height, angle))
BOOST_DESCRIBE_STRUCT(AlarmRecordFile, (),
                      (fileType, filePath, ssId, channelId, recordTime, fileTimeLength, fileLength))
BOOST_DESCRIBE_STRUCT(AlarmHostFileInfo, (), (alarmCode, files))
BOOST_DESCRIBE_STRUCT(AudioFileInfo, (), (taskProgress, fileUrl))
BOOST_DESCRIBE_STRUCT(PluginLogEventType, (), (eventType, eventTypeName, sort))
BOOST_DESCRIBE_STRUCT(PluginLogTypeGroupInfo, (), (groupId, groupName, sort, eventTypes))
BOOST_DESCRIBE_STRUCT(GetGeneralEventsParam, (), (transportType, matchType, keyword))
BOOST_DESCRIBE_STRUCT(GeneralEventRsp, (), (id, eventName))

}  // namespace APIModule
