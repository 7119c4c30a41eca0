#include "ProjectExplorerLib/ProjectExplorerStateMonitor.h"

#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerGroupingModel.h"
#include "aec/ProjectExplorerSubgroup.h"

#include "Common/Check.h"
#include "Common/NameBasedUuid.h"

#include <stdexcept>
#include <utility>

namespace project_explorer
{

CProjectExplorerStateMonitor::CProjectExplorerStateMonitor(const aec::IProjectExplorer& explorer) : explorer_(explorer)
{
    for (const aec::IProjectExplorerGroup& group : explorer_.getGroups())
        addGroupState(group);
}

CProjectExplorerStateMonitor::~CProjectExplorerStateMonitor()
{
    subgroupWatches_.clear();
    connections_.clear();
}

const aec::ProjectExplorerState& CProjectExplorerStateMonitor::getGroupStates() const
{
    return groupStates_;
}

aec::VoidSignal& CProjectExplorerStateMonitor::stateChangedSignal() const
{
    return stateChanged_;
}

void CProjectExplorerStateMonitor::addGroupState(const aec::IProjectExplorerGroup& group)
{
    const common::UUID groupId = group.getId();
    COMMON_INVARIANT(!groupStates_.contains(groupId));
    aec::ProjectExplorerGroupState& state = groupStates_[groupId];

    recordGrouping(group);
    connections_.emplace_back(group.getGroupingModel().changedSignal().connect([this, &group] {
        recordGrouping(group);
        stateChanged_();
    }));

    connections_.emplace_back(group.subgroupsChangedSignal().connect([this, &group] {
        refreshSubgroupStates(group);
        stateChanged_();
    }));
    refreshSubgroupStates(group);

    state.expanded = group.isExpanded();
    connections_.emplace_back(group.expandedChangedSignal().connect([this, &group, groupId] {
        groupStates_.at(groupId).expanded = group.isExpanded();
        stateChanged_();
    }));
}

void CProjectExplorerStateMonitor::addSubgroupState(const aec::IProjectExplorerGroup& group,
                                                    const aec::IProjectExplorerSubgroup& subgroup,
                                                    SubgroupWatches& previous)
{
    const common::UUID groupId = group.getId();
    const auto groupState = groupStates_.find(groupId);
    if (groupState == groupStates_.end())
        throw std::out_of_range("invalid map<K, T> key");

    // A watch whose connection reads as disconnected belongs to a subgroup that died; its address
    // may since belong to a new subgroup, which is then named and connected as new.
    auto kept = previous.extract(&subgroup);
    const bool keptAlive = kept && kept.mapped().expandedChanged.connected();
    const common::UUID subgroupId =
        keptAlive ? kept.mapped().id : common::makeNameBasedUuid(groupId, subgroup.getName());
    std::map<common::UUID, bool>& subgroupStates = groupState->second.subgroupExpanded;
    COMMON_INVARIANT(!subgroupStates.contains(subgroupId));
    subgroupStates.emplace(subgroupId, subgroup.isExpanded());

    SubgroupWatches& watches = subgroupWatches_[groupId];
    if (keptAlive)
    {
        watches.insert(std::move(kept));
        return;
    }
    SubgroupWatch& watch = watches[&subgroup];
    watch.id = subgroupId;
    watch.expandedChanged = subgroup.expandedChangedSignal().connect(
        [this, &subgroup, groupId, subgroupId]
        {
            groupStates_.at(groupId).subgroupExpanded.at(subgroupId) = subgroup.isExpanded();
            stateChanged_();
        });
    // A change of a subgroup's entities is no part of the record; the connection only keeps the
    // subgroup's signals watched alike.
    watch.entitiesChanged = subgroup.entitiesChangedSignal().connect([](const aec::EntityChangeset&) {});
}

void CProjectExplorerStateMonitor::refreshSubgroupStates(const aec::IProjectExplorerGroup& group)
{
    const common::UUID groupId = group.getId();
    groupStates_.at(groupId).subgroupExpanded.clear();
    // What is left in `previous` at the end belongs to subgroups that are gone; it disconnects
    // when `previous` dies.
    SubgroupWatches previous = std::exchange(subgroupWatches_[groupId], {});
    for (const aec::IProjectExplorerSubgroup& subgroup : group.getSubgroups())
        addSubgroupState(group, subgroup, previous);
}

void CProjectExplorerStateMonitor::recordGrouping(const aec::IProjectExplorerGroup& group)
{
    const aec::IProjectExplorerGroupingModel& model = group.getGroupingModel();
    const aec::PropertyAssignmentKey key = model.getGroupingKey();

    aec::ProjectExplorerGroupState& state = groupStates_.at(group.getId());
    state.sortOrder = static_cast<std::uint32_t>(model.getSortOrder());
    state.groupingPath = key.getPath();
    state.groupingProperty = key.getProperty();
}

} // namespace project_explorer
