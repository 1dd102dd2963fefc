// Records have their fields in the order in which the interface lists them, and their descriptions know each of them.
#include "support/Records.h"

#include "support/Rows.h"

#include <BRMS/AccountAccessFields.h>
#include <BRMS/AlarmEventFields.h>
#include <BRMS/DeviceConfigFields.h>
#include <BRMS/DeviceControlFields.h>
#include <BRMS/QuickCommandFields.h>
#include <BRMS/ServerWarningFields.h>
#include <BRMS/SystemConfigFields.h>
#include <BRMS/UserGroupFields.h>
#include <DMS/PtzFields.h>
#include <IPMS/ParkingFields.h>
#include <OBMS/AccessControlFields.h>
#include <OBMS/CardIntercomFields.h>
#include <OMMS/MaintenanceFields.h>
#include <RequestParamFields.h>

#include <algorithm>
#include <memory>
#include <utility>

namespace {

using namespace APIModule;
using namespace family_testing;

using Fields = std::vector<std::pair<const void*, std::string>>;

/// The fields of a record as its description lists them.
template <typename Record>
Fields Described()
{
    static const auto pRecord = std::make_unique<Record>();
    Fields fields;
    ForEachField<Record>([&fields](auto field) { fields.emplace_back(&((*pRecord).*field.pointer), field.name); });
    return fields;
}

std::string Names(const Fields& fields)
{
    std::string names;
    for (const auto& field : fields) {
        names += (names.empty() ? "" : " ") + field.second;
    }
    return names;
}

struct RecordRow {
    std::string name;
    std::string declared;  ///< the fields as the interface lists them
    Fields described;
};

template <typename Record>
RecordRow Row(const std::string& name, const std::string& declared)
{
    return {name, declared, Described<Record>()};
}

const RecordRow kRecords[] = {
    Row<RequestParam>("RequestParam",
                      "nPort nTimeout bHttps bCompress eMethod strIp strUrl strBody strToken strSequence "
                      "bExcludeUserInput"),

    Row<GetChannelWebTunnelRsp>("GetChannelWebTunnelRsp", "https port ip username token"),
    Row<PermissionResourceCollectionResp>("PermissionResourceCollectionResp", "menuFunctionCodes localConfigItemCodes"),
    Row<FunctionChannelCheck>("FunctionChannelCheck", "channelId functionCode"),
    Row<FunctionChannelCheckResult>("FunctionChannelCheckResult", "authorized"),
    Row<DeviceCategoryParamReq>("DeviceCategoryParamReq", "keyword orgCode domain permitted sourceType containChild"),
    Row<DeviceCategoryQueryResult>("DeviceCategoryQueryResult", "deviceCategory deviceCount"),

    Row<GetPageSummaryAlarmPlansParam>("GetPageSummaryAlarmPlansParam", "page pageSize keyword"),
    Row<SummaryAlarmPlan>("SummaryAlarmPlan", "id planName"),
    Row<AlarmLinkChannel>("AlarmLinkChannel", "channelId channelName"),
    Row<AlarmLinkAudioChannel>("AlarmLinkAudioChannel", "channelId channelName fileIds"),
    Row<AlarmLinkControl>("AlarmLinkControl", "linkAlarmOutputChannels linkAudioLightChannels linkAudioChannels"),
    Row<AlarmLayerInfo>("AlarmLayerInfo", "layerId layerName layerPicture locationX locationY width height angle"),
    Row<AlarmRecordFile>("AlarmRecordFile", "fileType filePath ssId channelId recordTime fileTimeLength fileLength"),
    Row<AlarmHostFileInfo>("AlarmHostFileInfo", "alarmCode files"),
    Row<AudioFileInfo>("AudioFileInfo", "taskProgress fileUrl"),
    Row<PluginLogEventType>("PluginLogEventType", "eventType eventTypeName sort"),
    Row<PluginLogTypeGroupInfo>("PluginLogTypeGroupInfo", "groupId groupName sort eventTypes"),
    Row<GetGeneralEventsParam>("GetGeneralEventsParam", "transportType matchType keyword"),
    Row<GeneralEventRsp>("GeneralEventRsp", "id eventName"),

    Row<NetworkConfig>("NetworkConfig", "deviceCode ip mask gateway dns"),
    Row<EncodeConfig>(
        "EncodeConfig",
        "channelId streamType bitRate bitRateControl compression enable frameRate iFrameInterval height width"),
    Row<EncodeFormat>("EncodeFormat", "frameRateMax videoHeight videoWidth"),
    Row<EncodeCompressionCapability>("EncodeCompressionCapability", "compression formats"),
    Row<EncodeCapability>("EncodeCapability", "supportCompressions encodeCapabilities"),
    Row<ImageConfig>("ImageConfig", "channelId brightness saturation contrast sharpness"),
    Row<MultiCastStream>("MultiCastStream", "multicastIp multicastPort streamType status"),
    Row<MultiCastConfigInfo>("MultiCastConfigInfo", "channelId status streams"),
    Row<MultiCastStreamStatus>("MultiCastStreamStatus", "channelId streamType status"),

    Row<IPSpeakerChannel>("IPSpeakerChannel", "channelId fileIds playCount"),
    Row<IPSpeakerControl>("IPSpeakerControl", "channels command"),
    Row<ChannelControlRsp>("ChannelControlRsp", "channelId errorCode"),

    Row<QuickCommandHttpUrl>("QuickCommandHttpUrl", "method url body seq"),
    Row<QuickCommand>("QuickCommand",
                      "id quickCommandName enableShortcutKeys shortcutKeys executeMode remark httpUrls"),

    Row<CheckHostSpareWarning>("CheckHostSpareWarning", "warningHappened warningTime warningContent"),
    Row<WarnDisk>("WarnDisk", "path slot"),
    Row<DiskWarmParam>("DiskWarmParam", "serverIp serverType warnDisks"),
    Row<NetWorkItem>("NetWorkItem", "netWorkName netWorkValue"),
    Row<NetWorksParam>("NetWorksParam", "netWorks"),

    Row<TimeSyncConfig>("TimeSyncConfig",
                        "enable startTime interval deviceOnlineTimeSync enableNtp ntpIp ntpPort ntpSyncInterval"),
    Row<RemoteLogConfigInfo>("RemoteLogConfigInfo", "enable ip port platformId"),
    Row<LocalSettingQueryResult>("LocalSettingQueryResult", "apply settingType settingVersion settingContent"),

    Row<UserConfigUserGroups>("UserConfigUserGroups", "id groupName memo"),
    Row<AddUserGroupsParam>("AddUserGroupsParam", "groupName memo"),
    Row<MoveUserGroupsParam>("MoveUserGroupsParam", "groupId userIds"),

    Row<PtzWashStatus>("PtzWashStatus", "result userName userLevel lowerDomain"),
    Row<PtzBatchWashStatus>("PtzBatchWashStatus", "result msg"),
    Row<PtzPositionResetReq>("PtzPositionResetReq", "result userName userLevel lowerDomain"),

    Row<SimpleParkingPointInfo>("SimpleParkingPointInfo", "id pointName remark refPointId direction mode"),
    Row<SimpleParkingPositionInfo>("SimpleParkingPositionInfo", "id positionName remark points"),
    Row<SimpleParkingLotInfoRsp>(
        "SimpleParkingLotInfoRsp",
        "id parkingLotName orgCode orgName parentParkingLotId parentParkingLotName parkingLotMode "
        "enableParkingSpaceStatistics parkingSpaceStatisticsType positions"),
    Row<ParkingChannelInfo>("ParkingChannelInfo", "channelId channelType"),
    Row<DetailParkingPointInfo>("DetailParkingPointInfo",
                                "id pointName remark refPointId refPointName direction mode channels refChannels"),
    Row<DetailParkingPositionInfo>("DetailParkingPositionInfo", "id positionName remark points"),
    Row<DatailParkingLotInfoRsp>(
        "DatailParkingLotInfoRsp",
        "id parkingLotName orgCode orgName parentParkingLotId parentParkingLotName parkingLotMode "
        "enableParkingSpaceStatistics parkingSpaceStatisticsType issueVehicles issueStatus totalParkingSpaceCount "
        "idleParkingSpaceCount positions"),
    Row<OrganizationInfoRsp>("OrganizationInfoRsp", "orgCode orgName parentOrgCode hasChild hasAuthority"),
    Row<UpdateVehicleCaptureRecordInfo>("UpdateVehicleCaptureRecordInfo", "id plateNo"),

    Row<GetPageAccessAuthorizePersonsReq>("GetPageAccessAuthorizePersonsReq",
                                          "page pageSize containChild keyword deviceCode orgCode pointIds"),
    Row<PersonOrgInfo>("PersonOrgInfo", "orgCode orgName"),
    Row<AccessAuthorizePersonInfo>("AccessAuthorizePersonInfo", "personId personName orgCode orgName orgInfos"),
    Row<GetPageAccessAuthorizePersonsResp>("GetPageAccessAuthorizePersonsResp", "totalCount pageData"),
    Row<GetManagePersonReq>("GetManagePersonReq", "deviceCode"),
    Row<ManagePersonInfo>("ManagePersonInfo", "personId personName orgCode orgName errorCode orgInfos"),
    Row<SetManagePersonReq>("SetManagePersonReq", "deviceCode personIds"),
    Row<GetPointAccessRules>("GetPointAccessRules", "pointId ruleType hasOfflinePoint"),
    Row<RuleInfo>("RuleInfo", "ruleId ruleName ruleType hasOfflinePoint"),

    Row<AcsCardConfigParam>("AcsCardConfigParam", "enableDesfire enableReadEncryptContent"),
    Row<ConfigDesFireFailureReq>("ConfigDesFireFailureReq", "page pageSize keyword"),
    Row<DesfireFailureInfo>("DesfireFailureInfo", "id deviceCode deviceName deviceIp reason"),
    Row<GetPageConfigDesfireFailureResp>("GetPageConfigDesfireFailureResp", "totalCount pageData"),
    Row<DeleteAddressBookParam>("DeleteAddressBookParam", "deleteAll vtoDeviceCode vthDeviceCodes"),

    Row<AlertInfoResp>("AlertInfoResp", "alertTypeId alertTypeName"),
    Row<ChannelInfoResp>(
        "ChannelInfoResp",
        "channelName channelId channelType deviceCode deviceName deviceCategory deviceCategoryName orgCode "
        "orgName onlineStatus channelStatus abnormalReason channelIp channelMac deviceIp macAddress "
        "deviceRecordDays configRecordDays deviceRecordWholenessStatus motionDetectPlan patchPlan recordPlan "
        "updateDate"),
    Row<DeviceInfoResp>(
        "DeviceInfoResp",
        "deviceCode deviceName deviceIp deviceSn status statusName offlineReason deviceCategory "
        "deviceCategoryName deviceType deviceTypeName manufacturer manufacturerName faultStatus faultStatusName "
        "updateTime addType orgCode orgName faultReason mac softwareVersion subnetMask deviceModel"),
};

class RecordTest : public testing::TestWithParam<RecordRow> {};

TEST_P(RecordTest, DescribesItsFieldsInTheOrderOfTheInterface)
{
    EXPECT_EQ(Names(GetParam().described), GetParam().declared);
}

TEST_P(RecordTest, DeclaresItsFieldsInTheOrderOfTheInterface)
{
    Fields inMemory = GetParam().described;
    std::sort(inMemory.begin(), inMemory.end());
    EXPECT_EQ(Names(inMemory), GetParam().declared);
}

INSTANTIATE_TEST_SUITE_P(Records, RecordTest, testing::ValuesIn(kRecords), testing_support::RowName());

}  // namespace
