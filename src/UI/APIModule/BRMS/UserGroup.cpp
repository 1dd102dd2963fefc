#include "BRMSModule_p.h"
#include "UserGroupFields.h"

namespace APIModule {

static QString GroupBody(const AddUserGroupsParam& group)
{
    return Body({{"groupName", Text(group.groupName)}, {"memo", Text(group.memo)}});
}

int CBRMSModule::PacketGetUserGroupList(void* pReqParamData, const std::string& keyword, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get,
                Url(QStringLiteral("/brms/api/v1.1/user/group/list?keyword=%1"), Text(keyword)), nServerId);
}

int CBRMSModule::ParseGetUserGroupList(const QJsonObject& data, std::vector<UserConfigUserGroups>& groups)
{
    return ReadFields(data, {{"results", groups}});
}

int CBRMSModule::PacketGetUserGroup(void* pReqParamData, const std::string& groupId, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get, Url(QStringLiteral("/brms/api/v1.1/user/group/%1"), Text(groupId)),
                nServerId);
}

int CBRMSModule::ParseGetUserGroup(const QJsonObject& data, UserConfigUserGroups& group)
{
    return ReadRecord(data, group);
}

int CBRMSModule::PacketAddUserGroup(void* pReqParamData, const AddUserGroupsParam& group, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Post, QStringLiteral("/brms/api/v1.1/user/group"), nServerId,
                GroupBody(group));
}

int CBRMSModule::ParseAddUserGroup(const QJsonObject& data, std::string& groupId)
{
    return ReadFields(data, {{"id", groupId}});
}

int CBRMSModule::PacketUpdateUserGroup(void* pReqParamData, const std::string& groupId, const AddUserGroupsParam& group,
                                       int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Put, Url(QStringLiteral("/brms/api/v1.1/user/group/%1"), Text(groupId)),
                nServerId, GroupBody(group));
}

int CBRMSModule::PacketMoveUserGroup(void* pReqParamData, const MoveUserGroupsParam& move, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Post, QStringLiteral("/brms/api/v1.1/user/group/move/batch"), nServerId,
                Body({{"userIds", TextList(move.userIds)}, {"groupId", Text(move.groupId)}}));
}

int CBRMSModule::PacketClearUserGroup(void* pReqParamData, const std::string& groupId, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Post,
                Url(QStringLiteral("/brms/api/v1.1/user/group/%1/clear"), Text(groupId)), nServerId);
}

int CBRMSModule::PacketDeleteUserGroup(void* pReqParamData, const std::vector<std::string>& groupIds, int nServerId)
{
    // The public interface requires the log lines of the clear call here.
    return Pack(pReqParamData, kBrms, Method_Delete,
                Url(QStringLiteral("/brms/api/v1.1/user/group?ids=%1"), JoinedTexts(groupIds)), nServerId, QString(),
                LogTexts{"PacketClearUserGroup failed.", "PacketClearUserGroup success."});
}

}  // namespace APIModule
