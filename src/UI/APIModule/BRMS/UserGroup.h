#pragma once

#include "../APIModuleGlobal.h"

#include <string>
#include <vector>

namespace APIModule {

/// A user group as the server reports it.
struct UserConfigUserGroups {
    std::string id;         ///< "id": identifier that the server assigned
    std::string groupName;  ///< "groupName": display name
    std::string memo;       ///< "memo": free description
};

/// What a user group is created with or changed to.
struct AddUserGroupsParam {
    std::string groupName;  ///< "groupName": display name
    std::string memo;       ///< "memo": free description, sent when it is empty, too
};

/// Users that are to move into one group.
struct MoveUserGroupsParam {
    std::string groupId;               ///< "groupId": the group that they move to
    std::vector<std::string> userIds;  ///< "userIds": the users, sent in this order
};

}  // namespace APIModule
