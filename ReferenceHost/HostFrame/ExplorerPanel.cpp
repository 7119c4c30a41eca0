#include "HostFrame/ExplorerPanel.h"

#include "Common/Check.h"
#include "aec/ObjectEvents.h"
#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerEntitySelection.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerGroupInfo.h"
#include "aec/ProjectExplorerGroupingModel.h"
#include "aec/ProjectExplorerGuiEventHandler.h"

#include <algorithm>
#include <iterator>

namespace aec::host
{

namespace
{

// The host's description of the group, or null for a group the host does not know.
const ProjectExplorerGroupInfo* findGroupInfo(const IProjectExplorerGroup& group)
{
    const auto& groups = projectExplorerGroups();
    const auto found = std::ranges::find(groups, group.getId(), &ProjectExplorerGroupInfo::id);
    return found == groups.end() ? nullptr : &*found;
}

} // namespace

CExplorerPanel::CExplorerPanel() = default;

CExplorerPanel::~CExplorerPanel()
{
    explorerConnections_.clear();
    eventHandler_.reset();
    treeChanged_.disconnect_all_slots();
    renameRequested_.disconnect_all_slots();
}

void CExplorerPanel::attachExplorer(IProjectExplorer& explorer)
{
    detachExplorer();
    explorer_ = &explorer;
    ++contentStamp_;
    connectToExplorer();
    treeChanged_();
}

void CExplorerPanel::setGuiEventHandler(std::unique_ptr<IProjectExplorerGuiEventHandler> handler)
{
    COMMON_PRECONDITION(explorer_ != nullptr);
    COMMON_PRECONDITION(handler != nullptr);
    eventHandler_ = std::move(handler);
}

void CExplorerPanel::detachExplorer()
{
    if (explorer_ == nullptr)
        return;
    explorerConnections_.clear();
    eventHandler_.reset();
    explorer_ = nullptr;
    ++contentStamp_;
    treeChanged_();
}

void CExplorerPanel::refresh()
{
    changeTree([] {});
}

void CExplorerPanel::startRename(const EntityId& entity)
{
    renameRequested_(entity);
}

void CExplorerPanel::onObjectsChanged(std::uint32_t code, std::uint32_t value, const EntityIdSet& /*changed*/,
                                      const EntityIdSet& removed)
{
    if (code != objectEventEntitiesChanged || explorer_ == nullptr)
        return;
    changeTree(
        [this, value, &removed]
        {
            for (IProjectExplorerGroup& group : explorer_->getGroups())
                if (needsRebuild(group, value))
                {
                    ++groupContentStamps_[group.getId()];
                    group.rebuild();
                }

            const EntityIdSet& selection = explorer_->getEntitySelection().getSelection();
            EntityIdSet gone;
            std::ranges::set_intersection(selection, removed, std::inserter(gone, gone.end()));
            if (!gone.empty())
                eventHandler().onSelectionChanged({}, gone);
        });
}

void CExplorerPanel::toggleGroup(int groupIndex)
{
    IProjectExplorerGuiEventHandler& handler = eventHandler();
    const auto userInput = createUserInputScope();
    changeTree([&handler, groupIndex] { handler.toggleGroup(groupIndex); });
}

void CExplorerPanel::toggleSubgroup(int groupIndex, int subgroupIndex)
{
    IProjectExplorerGuiEventHandler& handler = eventHandler();
    const auto userInput = createUserInputScope();
    changeTree([&handler, groupIndex, subgroupIndex] { handler.toggleSubgroup(groupIndex, subgroupIndex); });
}

void CExplorerPanel::changeSelection(const EntityIdSet& toAdd, const EntityIdSet& toRemove)
{
    IProjectExplorerGuiEventHandler& handler = eventHandler();
    const auto userInput = createUserInputScope();
    changeTree([&handler, &toAdd, &toRemove] { handler.onSelectionChanged(toAdd, toRemove); });
}

void CExplorerPanel::changeAsOne(const std::function<void()>& operations)
{
    changeTree(operations);
}

bool CExplorerPanel::hasExplorer() const noexcept
{
    return explorer_ != nullptr;
}

IProjectExplorer& CExplorerPanel::getExplorer()
{
    COMMON_PRECONDITION(explorer_ != nullptr);
    return *explorer_;
}

const IProjectExplorer& CExplorerPanel::getExplorer() const
{
    COMMON_PRECONDITION(explorer_ != nullptr);
    return *explorer_;
}

std::uint64_t CExplorerPanel::getContentStamp(const IProjectExplorerGroup& group) const
{
    // Both parts only grow, so their sum grows whenever either does.
    const auto found = groupContentStamps_.find(group.getId());
    return contentStamp_ + (found == groupContentStamps_.end() ? 0 : found->second);
}

CExplorerPanel::TreeChangedSignal& CExplorerPanel::treeChangedSignal() noexcept
{
    return treeChanged_;
}

CExplorerPanel::RenameRequestedSignal& CExplorerPanel::renameRequestedSignal() noexcept
{
    return renameRequested_;
}

void CExplorerPanel::changeTree(const std::function<void()>& change)
{
    ++changeDepth_;
    try
    {
        change();
    }
    catch (...)
    {
        // A rebuild that failed half way may still have changed the tree.
        if (--changeDepth_ == 0)
            treeChanged_();
        throw;
    }
    if (--changeDepth_ == 0)
        treeChanged_();
}

void CExplorerPanel::explorerChanged()
{
    // Inside one of the panel's own operations the operation says it once at its end.
    if (changeDepth_ == 0)
        treeChanged_();
}

void CExplorerPanel::connectToExplorer()
{
    // Groups and their grouping models live as long as the explorer, so these connections stay
    // valid however often the groups rebuild; subgroups change only through their group (a
    // rebuild) or through a selection, both of which are heard here.
    const auto slot = [this]
    {
        explorerChanged();
    };
    for (IProjectExplorerGroup& group : explorer_->getGroups())
    {
        explorerConnections_.emplace_back(group.expandedChangedSignal().connect(slot));
        explorerConnections_.emplace_back(group.subgroupsChangedSignal().connect(slot));
        explorerConnections_.emplace_back(group.getGroupingModel().changedSignal().connect(slot));
    }
    explorerConnections_.emplace_back(explorer_->getEntitySelection().selectionChangedSignal().connect(
        [this](const EntityIdSet&, const EntityIdSet&) { explorerChanged(); }));
}

bool CExplorerPanel::needsRebuild(const IProjectExplorerGroup& group, std::uint32_t collections) const
{
    const ProjectExplorerGroupInfo* const info = findGroupInfo(group);
    if (info == nullptr)
        // A group the host does not describe may show anything.
        return true;
    if (touchesEntityCollection(collections, info->collection))
        return true;
    // Grouped by topic, a group's subgroups are named after topics, so renaming, adding or removing
    // a topic may rename, add or remove them.
    return info->groupable && group.getGroupingModel().getGroupingKeyText().has_value() &&
           touchesEntityCollection(collections, EntityCollection::Topics);
}

IProjectExplorerGuiEventHandler& CExplorerPanel::eventHandler()
{
    COMMON_PRECONDITION(explorer_ != nullptr);
    COMMON_PRECONDITION(eventHandler_ != nullptr);
    return *eventHandler_;
}

} // namespace aec::host
