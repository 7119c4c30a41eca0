#pragma once

#include "ExplorerDesktop/ExplorerTreeNode.h"

#include <memory>
#include <string_view>

namespace aec
{
class IProject;
class IProjectExplorer;
} // namespace aec

namespace aec::desktop
{

// What the tree shows for the one subgroup of a group without grouping, whose name is empty.
inline constexpr std::wstring_view ungroupedSubgroupName = L"All";

// Reads the explorer's tree as it stands now into nodes under a new root: its groups in the
// explorer's order, each with its subgroups in their order, each with its entities in natural order
// of their names (the explorer keeps them in identifier order, which means nothing to a user).
// Entities that the project no longer has are left out. Only the entities of the host's seven
// groupable groups are renamable: they are the host's renamable types.
std::unique_ptr<CExplorerTreeNode> readExplorerTree(const IProjectExplorer& explorer,
                                                    const IProject& project);

} // namespace aec::desktop
