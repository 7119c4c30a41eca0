#pragma once

#include "aec/EntityId.h"

#include <string>

namespace aec
{

// What the group maker returns for one subgroup: its name and its entities.
struct SubgroupDescriptor
{
    std::wstring name;
    EntityIdSet entities;
};

} // namespace aec
