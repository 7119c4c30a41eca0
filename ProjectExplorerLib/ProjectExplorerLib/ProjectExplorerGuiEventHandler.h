#pragma once

#include "aec/ProjectExplorerGuiEventHandler.h"

namespace aec
{
class IProjectExplorerGroup;
class IProjectExplorerSubgroup;
} // namespace aec

namespace project_explorer
{

// Turns the panel's positional addresses (a group's index, a subgroup's index within its group)
// into the explorer's objects and changes them. It keeps no state besides the explorer: the
// explorer's model and selection signal the changes back to the panel.
class CProjectExplorerGuiEventHandler final : public aec::IProjectExplorerGuiEventHandler
{
public:
    // The explorer must outlive the handler.
    explicit CProjectExplorerGuiEventHandler(aec::IProjectExplorer& explorer);
    ~CProjectExplorerGuiEventHandler() override;

    // Hands both sets unchanged to the explorer's selection.
    void onSelectionChanged(const aec::EntityIdSet& toAdd, const aec::EntityIdSet& toRemove) override;
    // The index must name a group; nothing changes when it does not.
    void toggleGroup(int groupIndex) override;
    // A bad group index is reported before a bad subgroup index; nothing changes on either.
    void toggleSubgroup(int groupIndex, int subgroupIndex) override;

private:
    aec::IProjectExplorerGroup& findGroup(int groupIndex);
    aec::IProjectExplorerSubgroup& findSubgroup(int groupIndex, int subgroupIndex);

    aec::IProjectExplorer& explorer_;
};

} // namespace project_explorer
