#pragma once

#include "aec/EntityId.h"

#include <utility>
#include <vector>

namespace aec
{
class IProjectExplorerGroup;
class IProjectExplorerSubgroup;
} // namespace aec

namespace project_explorer
{

// Finds the subgroup of a group that holds an entity with one binary search, where asking every
// subgroup would cost as many tests as the group has subgroups. The table is made from the group
// on first use after invalidate(): its owner invalidates it whenever the group's subgroups or
// their entities change, which costs no more than the rebuild that changed them.
class CSubgroupLookup
{
public:
    // The group must outlive the lookup.
    explicit CSubgroupLookup(aec::IProjectExplorerGroup& group);

    void invalidate() noexcept;
    // The subgroup that holds the entity, or null when no subgroup of the group does.
    aec::IProjectExplorerSubgroup* findHolder(const aec::EntityId& entity);

private:
    void build();

    aec::IProjectExplorerGroup& group_;
    std::vector<std::pair<aec::EntityId, aec::IProjectExplorerSubgroup*>> holders_;
    bool valid_ = false;
};

} // namespace project_explorer
