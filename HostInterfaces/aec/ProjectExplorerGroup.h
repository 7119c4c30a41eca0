#pragma once

#include "aec/AecApi.h"
#include "aec/Ranges.h"
#include "aec/Signals.h"

#include "Common/UUID.h"

#include <string>

namespace aec
{

class IProjectExplorerGroupingModel;

// A top-level group: owns its grouping model and its subgroups, and rebuilds the subgroups when
// the model changes.
class AEC_INTERFACE IProjectExplorerGroup
{
public:
    virtual ~IProjectExplorerGroup() = default;

    // The group's fixed identifier.
    virtual common::UUID getId() const = 0;
    // The group's display name.
    virtual const std::wstring& getName() const = 0;
    // The model that says how the group is split into subgroups.
    virtual IProjectExplorerGroupingModel& getGroupingModel() = 0;
    // The grouping model, read-only.
    virtual const IProjectExplorerGroupingModel& getGroupingModel() const = 0;
    // The subgroups in display order; invalid after the next rebuild.
    virtual SubgroupRange getSubgroups() = 0;
    // The subgroups in display order, read-only; invalid after the next rebuild.
    virtual ConstSubgroupRange getSubgroups() const = 0;
    // Whether the group is unfolded.
    virtual bool isExpanded() const = 0;
    // Folds or unfolds the group; signals only a real change.
    virtual void setExpanded(bool expanded) = 0;
    // Recomputes the subgroups from the project, keeping subgroups whose name survives.
    virtual void rebuild() = 0;
    // Emitted when a rebuild made or destroyed at least one subgroup.
    virtual VoidSignal& subgroupsChangedSignal() const = 0;
    // Emitted when the unfolded flag changes.
    virtual VoidSignal& expandedChangedSignal() const = 0;
};

} // namespace aec
