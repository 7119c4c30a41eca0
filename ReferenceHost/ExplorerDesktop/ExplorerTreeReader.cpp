#include "ExplorerDesktop/ExplorerTreeReader.h"

#include "Common/LogicalCompare.h"
#include "aec/Entity.h"
#include "aec/Project.h"
#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerGroupInfo.h"
#include "aec/ProjectExplorerSubgroup.h"

#include <algorithm>
#include <vector>

namespace aec::desktop
{

namespace
{

using Node = CExplorerTreeNode;

bool isGroupable(const IProjectExplorerGroup& group)
{
    const auto& groups = projectExplorerGroups();
    const auto info = std::ranges::find(groups, group.getId(), &ProjectExplorerGroupInfo::id);
    return info != groups.end() && info->groupable;
}

struct NamedEntity
{
    EntityId id;
    const std::wstring* name;
};

std::unique_ptr<Node> readSubgroup(const IProjectExplorerSubgroup& subgroup, const IProject& project,
                                   bool renamable)
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

    const std::wstring& name = subgroup.getName();
    auto node =
        std::make_unique<Node>(Node::Kind::Subgroup, name,
                               Node::Display{name.empty() ? std::wstring(ungroupedSubgroupName) : name,
                                             entities.size(), subgroup.isExpanded(), false});
    for (const NamedEntity& entity : entities)
        node->appendChild(Node::makeEntity(entity.id, Node::Display{*entity.name, 0, false, renamable}));
    return node;
}

} // namespace

std::unique_ptr<CExplorerTreeNode> readExplorerTree(const IProjectExplorer& explorer, const IProject& project)
{
    auto root = std::make_unique<Node>(Node::Kind::Root, std::wstring(), Node::Display{});
    for (const IProjectExplorerGroup& group : explorer.getGroups())
    {
        const bool renamable = isGroupable(group);
        auto groupNode =
            std::make_unique<Node>(Node::Kind::Group, group.getId().toWString(), Node::Display{});
        std::size_t entityCount = 0;
        for (const IProjectExplorerSubgroup& subgroup : group.getSubgroups())
        {
            std::unique_ptr<Node> subgroupNode = readSubgroup(subgroup, project, renamable);
            entityCount += subgroupNode->getDisplay().entityCount;
            groupNode->appendChild(std::move(subgroupNode));
        }
        groupNode->setDisplay(Node::Display{group.getName(), entityCount, group.isExpanded(), false});
        root->appendChild(std::move(groupNode));
    }
    return root;
}

} // namespace aec::desktop
