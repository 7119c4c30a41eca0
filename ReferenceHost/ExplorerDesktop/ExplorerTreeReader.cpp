#include "ExplorerDesktop/ExplorerTreeReader.h"

#include "Common/Check.h"
#include "Common/LogicalCompare.h"
#include "aec/Entity.h"
#include "aec/Project.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerGroupInfo.h"
#include "aec/ProjectExplorerGroupingModel.h"
#include "aec/ProjectExplorerSubgroup.h"

#include <algorithm>
#include <iterator>

namespace aec::desktop
{

namespace
{

using Node = CExplorerTreeNode;

struct NamedEntity
{
    EntityId id;
    const std::wstring* name;
};

std::size_t countOf(const IProjectExplorerSubgroup& subgroup)
{
    return static_cast<std::size_t>(std::ranges::distance(subgroup.getEntities()));
}

} // namespace

bool showsFlat(const IProjectExplorerGroup& group)
{
    const auto subgroups = group.getSubgroups();
    return !group.getGroupingModel().getGroupingKeyText().has_value() &&
           std::ranges::distance(subgroups) == 1 && subgroups.begin()->getName().empty();
}

bool hasRenamableEntities(const IProjectExplorerGroup& group)
{
    const auto& groups = projectExplorerGroups();
    const auto info = std::ranges::find(groups, group.getId(), &ProjectExplorerGroupInfo::id);
    return info != groups.end() && (info->groupable || info->collection == EntityCollection::Topics);
}

std::unique_ptr<CExplorerTreeNode> readGroupShell(const IProjectExplorerGroup& group)
{
    std::size_t entityCount = 0;
    for (const IProjectExplorerSubgroup& subgroup : group.getSubgroups())
        entityCount += countOf(subgroup);
    return std::make_unique<Node>(Node::Kind::Group, group.getId().toWString(),
                                  Node::Display{group.getName(), entityCount, group.isExpanded(), false});
}

std::unique_ptr<CExplorerTreeNode> readSubgroupShell(const IProjectExplorerSubgroup& subgroup)
{
    const std::wstring& name = subgroup.getName();
    return std::make_unique<Node>(Node::Kind::Subgroup, name,
                                  Node::Display{name, countOf(subgroup), subgroup.isExpanded(), false});
}

void fillGroup(CExplorerTreeNode& shell, const IProjectExplorerGroup& group, const IProject& project)
{
    COMMON_PRECONDITION(shell.getChildCount() == 0);
    const bool renamable = hasRenamableEntities(group);
    if (showsFlat(group))
    {
        shell.insertChildren(0, readEntities(flatSubgroup(group), project, renamable));
        return;
    }
    for (const IProjectExplorerSubgroup& subgroup : group.getSubgroups())
    {
        std::unique_ptr<Node> subgroupNode = readSubgroupShell(subgroup);
        subgroupNode->insertChildren(0, readEntities(subgroup, project, renamable));
        shell.appendChild(std::move(subgroupNode));
    }
}

std::vector<std::unique_ptr<CExplorerTreeNode>> readEntities(const IProjectExplorerSubgroup& subgroup,
                                                             const IProject& project, bool renamable)
{
    std::vector<NamedEntity> entities;
    for (const EntityId& id : subgroup.getEntities())
        if (const IEntity* entity = project.findEntity(id))
            entities.push_back({id, &entity->getName()});
    // Equal names (to the user) keep a fixed order, so that a rebuild does not shuffle them.
    std::ranges::sort(entities,
                      [](const NamedEntity& left, const NamedEntity& right)
                      {
                          const int order = common::compareLogical(*left.name, *right.name);
                          return order != 0 ? order < 0 : left.id < right.id;
                      });
    std::vector<std::unique_ptr<Node>> nodes;
    nodes.reserve(entities.size());
    for (const NamedEntity& entity : entities)
        nodes.push_back(Node::makeEntity(entity.id, Node::Display{*entity.name, 0, false, renamable}));
    return nodes;
}

const IProjectExplorerSubgroup& flatSubgroup(const IProjectExplorerGroup& group)
{
    const auto subgroups = group.getSubgroups();
    COMMON_PRECONDITION(!subgroups.empty());
    return *subgroups.begin();
}

} // namespace aec::desktop
