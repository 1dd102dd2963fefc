#pragma once

#include "UserGroup.h"

#include <boost/describe/class.hpp>

namespace APIModule {

// The fields of each record, in the order of their declaration.
BOOST_DESCRIBE_STRUCT(UserConfigUserGroups, (), (id, groupName, memo))
BOOST_DESCRIBE_STRUCT(AddUserGroupsParam, (), (groupName, memo))
BOOST_DESCRIBE_STRUCT(MoveUserGroupsParam, (), (groupId, userIds))

}  // namespace APIModule
