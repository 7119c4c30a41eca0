#pragma once

#include "Common/ID.h"

#include <set>
#include <vector>

namespace aec
{

// The identifier of a project entity, and the two containers the explorer hands them around in.
using EntityId = common::ID<common::tagGlobalEntityId>;
using EntityIdSet = std::set<EntityId>;
using EntityIdList = std::vector<EntityId>;

} // namespace aec
