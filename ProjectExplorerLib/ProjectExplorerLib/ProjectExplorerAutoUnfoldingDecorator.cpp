#include "ProjectExplorerLib/ProjectExplorerAutoUnfoldingDecorator.h"

#include "ProjectExplorerLib/StateChangeBatch.h"
#include "ProjectExplorerLib/SubgroupMembership.h"
#include "aec/ProjectExplorerEntitySelection.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerSubgroup.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <unordered_map>
#include <vector>

namespace project_explorer
{

struct CProjectExplorerAutoUnfoldingDecorator::WatchedGroup
{
    explicit WatchedGroup(aec::IProjectExplorerGroup& watchedGroup) : group(watchedGroup) {}

    aec::IProjectExplorerGroup& group;
    // Counts the group's rebuilds that made or destroyed subgroups, so that a loop over subgroups
    // notices when one of them may be gone.
    std::size_t rebuilds = 0;
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

void CProjectExplorerAutoUnfoldingDecorator::batchUnfoldsIn(CStateChangeBatch* batch) noexcept
{
    batch_ = batch;
}

void CProjectExplorerAutoUnfoldingDecorator::onSelectionChanged(const aec::EntityIdSet& added)
{
    if (added.empty())
        return;
    asOneChange(
        [this, &added]
        {
            for (const auto& watched : watchedGroups_)
                unfoldHolders(*watched, added, nullptr);
        });
}

template <class Unfolds>
void CProjectExplorerAutoUnfoldingDecorator::asOneChange(Unfolds&& unfolds)
{
    std::optional<CStateChangeBatch::CScope> batchScope;
    if (batch_ != nullptr)
        batchScope.emplace(*batch_);
    unfolds();
    if (batchScope)
        batchScope->end();
}

void CProjectExplorerAutoUnfoldingDecorator::unfoldHolders(WatchedGroup& watched, const aec::EntityIdSet& entities,
                                                           const SubgroupSet* candidates)
{
    // Asking each subgroup whether it holds any of the entities costs far less, for one entity and
    // for all of them alike, than finding the subgroup of each entity.
    std::vector<aec::IProjectExplorerSubgroup*> holders;
    for (aec::IProjectExplorerSubgroup& subgroup : watched.group.getSubgroups())
        if ((candidates == nullptr || candidates->contains(&subgroup)) && holdsAnyOf(subgroup, entities))
            holders.push_back(&subgroup);

    const std::size_t rebuilds = watched.rebuilds;
    for (aec::IProjectExplorerSubgroup* subgroup : holders)
    {
        // A listener of an unfold rebuilt the group, so the subgroups left may be gone; the current
        // ones are asked again (those already unfolded stay so and say nothing). A candidate's
        // address may since belong to a subgroup of that rebuild, which its own handling unfolded
        // already if it holds any of the entities.
        if (watched.rebuilds != rebuilds)
            return unfoldHolders(watched, entities, candidates);
        unfold(watched.group, *subgroup);
    }
}

void CProjectExplorerAutoUnfoldingDecorator::onSubgroupsChanged(WatchedGroup& watched)
{
    ++watched.rebuilds;
    const SubgroupSet made = reconnectSubgroups(watched);

    const aec::EntityIdSet& selection = getExplorer().getEntitySelection().getSelection();
    if (made.empty() || selection.empty())
        return;
    asOneChange([this, &watched, &selection, &made] { unfoldHolders(watched, selection, &made); });
}

void CProjectExplorerAutoUnfoldingDecorator::onEntitiesChanged(WatchedGroup& watched,
                                                               aec::IProjectExplorerSubgroup& subgroup,
                                                               const aec::EntityChangeset& changeset)
{
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
