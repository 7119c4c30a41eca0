#pragma once

#include "aec/AecApi.h"
#include "aec/ProjectExplorerGroupState.h"
#include "aec/Signals.h"

namespace aec
{

// Keeps a live record of an explorer's fold and grouping state and announces its changes.
class AEC_INTERFACE IProjectExplorerStateMonitor
{
public:
    virtual ~IProjectExplorerStateMonitor() = default;

    // The record, by group identifier.
    virtual const ProjectExplorerState& getGroupStates() const = 0;
    // Emitted once after every change of the record.
    virtual VoidSignal& stateChangedSignal() const = 0;
};

} // namespace aec
