#pragma once

#include "aec/AecApi.h"
#include "aec/EntityId.h"
#include "aec/Signals.h"

namespace aec
{

// The explorer's record of which entities are selected.
class AEC_INTERFACE IProjectExplorerEntitySelection
{
public:
    virtual ~IProjectExplorerEntitySelection() = default;

    // The selected entities in identifier order.
    virtual const EntityIdSet& getSelection() const = 0;
    // Replaces the selection; signals only a real change.
    virtual void setSelection(const EntityIdSet& selection) = 0;
    // Adds and removes at once; the two sets must be disjoint.
    virtual void changeSelection(const EntityIdSet& toAdd, const EntityIdSet& toRemove) = 0;
    // Emitted with (added, removed) after the selection changed.
    virtual SelectionChangedSignal& selectionChangedSignal() const = 0;
};

} // namespace aec
