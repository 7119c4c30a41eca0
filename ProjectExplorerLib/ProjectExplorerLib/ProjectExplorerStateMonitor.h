#pragma once

#include "aec/ProjectExplorerStateMonitor.h"

#include <boost/signals2/connection.hpp>

#include <map>
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

    void addGroupState(const aec::IProjectExplorerGroup& group);
    void addSubgroupState(const aec::IProjectExplorerGroup& group, const aec::IProjectExplorerSubgroup& subgroup);
    void refreshSubgroupStates(const aec::IProjectExplorerGroup& group);
    void recordGrouping(const aec::IProjectExplorerGroup& group);

    const aec::IProjectExplorer& explorer_;
    aec::ProjectExplorerState groupStates_;
    Connections connections_;
    // Per group, the connections to its current subgroups; replaced whenever they are recorded
    // anew, so a kept subgroup is never watched twice.
    std::map<common::UUID, Connections> subgroupConnections_;
    mutable aec::VoidSignal stateChanged_;
};

} // namespace project_explorer
