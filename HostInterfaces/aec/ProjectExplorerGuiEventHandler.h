#pragma once

#include "aec/AecApi.h"
#include "aec/EntityId.h"

#include <memory>

namespace aec
{

class IProjectExplorer;

// Turns what the user does in the panel into changes of the explorer.
class AEC_INTERFACE IProjectExplorerGuiEventHandler
{
public:
    virtual ~IProjectExplorerGuiEventHandler() = default;

    // The user selected and deselected entities in the panel.
    virtual void onSelectionChanged(const EntityIdSet& toAdd, const EntityIdSet& toRemove) = 0;
    // Flips the unfolded flag of the group at the index.
    virtual void toggleGroup(int groupIndex) = 0;
    // Flips the unfolded flag of the subgroup at the indices.
    virtual void toggleSubgroup(int groupIndex, int subgroupIndex) = 0;
};

// Makes the GUI event handler of an explorer.
class AEC_INTERFACE IProjectExplorerGuiEventHandlerFactory
{
public:
    virtual ~IProjectExplorerGuiEventHandlerFactory() = default;

    // A handler bound to the explorer, which must outlive it.
    virtual std::unique_ptr<IProjectExplorerGuiEventHandler> createHandler(IProjectExplorer& explorer) const = 0;
};

} // namespace aec
