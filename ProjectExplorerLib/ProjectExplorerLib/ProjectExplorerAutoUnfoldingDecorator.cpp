#include "ProjectExplorerLib/ProjectExplorerAutoUnfoldingDecorator.h"

#include "ProjectExplorerLib/SubgroupLookup.h"

#include "aec/ProjectExplorerEntitySelection.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerSubgroup.h"

#include <algorithm>
#include <unordered_map>

namespace project_explorer
{

struct CProjectExplorerAutoUnfoldingDecorator::WatchedGroup
{
    explicit WatchedGroup(aec::IProjectExplorerGroup& watchedGroup) : group(watchedGroup), lookup(watchedGroup) {}

    aec::IProjectExplorerGroup& group;
    CSubgroupLookup lookup;
    boost::signals2::scoped_connection subgroupsChanged;
    // A connection that no longer reads as connected belongs to a subgroup that died; its address
    // may since have been taken by a new subgroup, which must then count as new.
    std::unordered_map<const aec::IProjectExplorerSubgroup*, boost::signals2::scoped_connection> subgroupConnections;
};

CProjectExplorerAutoUnfoldingDecorator::CProjectExplorerAutoUnfoldingDecorator(
    std::unique_ptr<aec::IProjectExplorer> explorer)
    : CProjectExplorerBaseDecorator(std::move(explorer))
{
    selectionConnection_ = getExplorer().getEntitySelection().selectionChangedSignal().connect(
        [this](const aec::EntityIdSet& added, const aec::EntityIdSet&) { onSelectionChanged(added); });

    for (aec::IProjectExplorerGroup& group : getExplorer().getGroups())
    {
        WatchedGroup& watched = *watchedGroups_.emplace_back(std::make_unique<WatchedGroup>(group));
        watched.subgroupsChanged = group.subgroupsChangedSignal().connect([this, &watched] { onSubgroupsChanged(watched); });
        reconnectSubgroups(watched);
    }
}

CProjectExplorerAutoUnfoldingDecorator::~CProjectExplorerAutoUnfoldingDecorator()
{
    selectionConnection_.disconnect();
    watchedGroups_.clear();
}

CProjectExplorerAutoUnfoldingDecorator::SubgroupSet
CProjectExplorerAutoUnfoldingDecorator::reconnectSubgroups(WatchedGroup& watched)
{
    // What is left in `previous` at the end belongs to subgroups that are gone; it disconnects
    // when `previous` dies.
    auto previous = std::move(watched.subgroupConnections);
    watched.subgroupConnections.clear();

    SubgroupSet made;
    for (aec::IProjectExplorerSubgroup& subgroup : watched.group.getSubgroups())
    {
        auto kept = previous.extract(&subgroup);
        if (kept && kept.mapped().connected())
        {
            watched.subgroupConnections.insert(std::move(kept));
            continue;
        }
        watched.subgroupConnections.emplace(
            &subgroup, subgroup.entitiesChangedSignal().connect([this, &watched, &subgroup](const aec::EntityChangeset& changeset) {
                onEntitiesChanged(watched, subgroup, changeset);
            }));
        made.insert(&subgroup);
    }
    return made;
}

void CProjectExplorerAutoUnfoldingDecorator::onSelectionChanged(const aec::EntityIdSet& added)
{
    if (added.empty())
        return;
    for (const auto& watched : watchedGroups_)
    {
        for (const aec::EntityId& entity : added)
        {
            if (aec::IProjectExplorerSubgroup* holder = watched->lookup.findHolder(entity))
                unfold(watched->group, *holder);
        }
    }
}

void CProjectExplorerAutoUnfoldingDecorator::onSubgroupsChanged(WatchedGroup& watched)
{
    watched.lookup.invalidate();
    SubgroupSet made = reconnectSubgroups(watched);

    const aec::EntityIdSet& selection = getExplorer().getEntitySelection().getSelection();
    if (made.empty() || selection.empty())
        return;

    std::vector<aec::IProjectExplorerSubgroup*> toUnfold;
    for (const aec::EntityId& entity : selection)
    {
        // Taking a subgroup out of `made` lists each one once, however many selected entities it holds.
        aec::IProjectExplorerSubgroup* holder = watched.lookup.findHolder(entity);
        if (holder != nullptr && made.erase(holder) > 0)
            toUnfold.push_back(holder);
    }
    for (aec::IProjectExplorerSubgroup* subgroup : toUnfold)
        unfold(watched.group, *subgroup);
}

void CProjectExplorerAutoUnfoldingDecorator::onEntitiesChanged(WatchedGroup& watched,
                                                               aec::IProjectExplorerSubgroup& subgroup,
                                                               const aec::EntityChangeset& changeset)
{
    watched.lookup.invalidate();

    const aec::EntityIdSet& selection = getExplorer().getEntitySelection().getSelection();
    const aec::EntityIdSet& added = changeset.getAdded();
    if (std::any_of(added.begin(), added.end(), [&selection](const aec::EntityId& entity) { return selection.contains(entity); }))
        unfold(watched.group, subgroup);
}

void CProjectExplorerAutoUnfoldingDecorator::unfold(aec::IProjectExplorerGroup& group,
                                                    aec::IProjectExplorerSubgroup& subgroup)
{
    // The group lives as long as the explorer while a listener of the subgroup might rebuild it,
    // so the subgroup goes first.
    subgroup.setExpanded(true);
    group.setExpanded(true);
}

} // namespace project_explorer
