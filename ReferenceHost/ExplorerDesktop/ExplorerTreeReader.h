#pragma once

#include "ExplorerDesktop/ExplorerTreeNode.h"

#include <memory>
#include <vector>

namespace aec
{
class IProject;
class IProjectExplorerGroup;
class IProjectExplorerSubgroup;
} // namespace aec

namespace aec::desktop
{

// Reads parts of the explorer's tree as it stands now into nodes, so that the item model reads only
// what it has to compare. Groups and subgroups come as shells (their display, no children) and are
// filled on demand.
//
// A group without grouping has one subgroup without a name; its entities are shown right under
// the group ("flat"), since a level that splits nothing is only in the user's way.

// Whether the group shows its entities without a subgroup level.
bool showsFlat(const IProjectExplorerGroup& group);
// The entities of the host's seven groupable groups are renamable through the explorer, the topics
// through the host's own topic editor; linked models and images are named after their files.
bool hasRenamableEntities(const IProjectExplorerGroup& group);

std::unique_ptr<CExplorerTreeNode> readGroupShell(const IProjectExplorerGroup& group);
std::unique_ptr<CExplorerTreeNode> readSubgroupShell(const IProjectExplorerSubgroup& subgroup);
// Gives a group shell its subgroups with their entities, or its entities when it shows flat.
void fillGroup(CExplorerTreeNode& shell, const IProjectExplorerGroup& group, const IProject& project);

// The subgroup's entities in natural order of their names (the explorer keeps them in identifier
// order, which means nothing to a user). Entities that the project no longer has are left out.
std::vector<std::unique_ptr<CExplorerTreeNode>> readEntities(const IProjectExplorerSubgroup& subgroup,
                                                             const IProject& project, bool renamable);
// The only subgroup of a group that shows flat.
const IProjectExplorerSubgroup& flatSubgroup(const IProjectExplorerGroup& group);

} // namespace aec::desktop
