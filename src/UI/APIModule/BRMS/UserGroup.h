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

/// Name and description of a user group to create or change.
struct AddUserGroupsParam {
    std::string groupName;  ///< "groupName": display name
    std::string memo;       ///< "memo": free description, sent even when empty
};

/// Users to move to one group.
struct MoveUserGroupsParam {
    std::string groupId;               ///< "groupId": their new group
    std::vector<std::string> userIds;  ///< "userIds": the users, sent in this order
};

}  // namespace APIModule
