#pragma once

#include "aec/ProjectExplorerStateMonitor.h"

#include <boost/signals2/connection.hpp>

#include <map>
#include <unordered_map>
#include <vector>

namespace aec
{
class IProjectExplorer;
class IProjectExplorerGroup;
class IProjectExplorerSubgroup;
} // namespace aec

namespace project_explorer
{

// Keeps a live record of what the user made of an explorer's tree: each group's grouping and
// fold state and each subgroup's fold state, and announces every change of it. A subgroup has
// only a name, so the record knows it by the name-based UUID of that name in its group.
class CProjectExplorerStateMonitor final : public aec::IProjectExplorerStateMonitor
{
public:
    // Records every group at once; the explorer must outlive the monitor.
    explicit CProjectExplorerStateMonitor(const aec::IProjectExplorer& explorer);
    ~CProjectExplorerStateMonitor() override;

    const aec::ProjectExplorerState& getGroupStates() const override;
    aec::VoidSignal& stateChangedSignal() const override;

private:
    using Connections = std::vector<boost::signals2::scoped_connection>;
    // What the monitor keeps of one subgroup it watches: the identifier it is recorded under and
    // the connections to its two signals.
    struct SubgroupWatch
    {
        common::UUID id;
        boost::signals2::scoped_connection expandedChanged;
        boost::signals2::scoped_connection entitiesChanged;
    };
    using SubgroupWatches = std::unordered_map<const aec::IProjectExplorerSubgroup*, SubgroupWatch>;

    void addGroupState(const aec::IProjectExplorerGroup& group);
    // Records the subgroup; `previous` holds the watches of the group's subgroups before the
    // rebuild, of which a subgroup that the rebuild kept takes its own back.
    void addSubgroupState(const aec::IProjectExplorerGroup& group,
                          const aec::IProjectExplorerSubgroup& subgroup, SubgroupWatches& previous);
    void refreshSubgroupStates(const aec::IProjectExplorerGroup& group);
    void recordGrouping(const aec::IProjectExplorerGroup& group);

    const aec::IProjectExplorer& explorer_;
    aec::ProjectExplorerState groupStates_;
    Connections connections_;
    // Per group, the watches of its current subgroups. A rebuild keeps most subgroups, and those
    // keep their identifiers and connections: naming and connecting each subgroup anew at every
    // rebuild cost more than the rebuild's own work on a group of thousands of subgroups.
    std::map<common::UUID, SubgroupWatches> subgroupWatches_;
    mutable aec::VoidSignal stateChanged_;
};

} // namespace project_explorer
