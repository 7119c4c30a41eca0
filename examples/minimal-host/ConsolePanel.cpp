#include "ConsolePanel.h"

#include "Text.h"

#include "Common/Check.h"
#include "Common/LogicalCompare.h"
#include "aec/Entity.h"
#include "aec/ObjectEvents.h"
#include "aec/Project.h"
#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerEntitySelection.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerGroupingModel.h"
#include "aec/ProjectExplorerGuiEventHandler.h"
#include "aec/ProjectExplorerSubgroup.h"
#include "aec/ProjectSessionManager.h"

#include <boost/range/begin.hpp>
#include <boost/range/distance.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace minimal_host
{

CConsolePanel::CConsolePanel(const aec::IProjectSessionManager& sessionManager)
    : sessionManager_(sessionManager)
{
}

CConsolePanel::~CConsolePanel() = default;

void CConsolePanel::attachExplorer(aec::IProjectExplorer& explorer)
{
    explorer_ = &explorer;
}

void CConsolePanel::setGuiEventHandler(std::unique_ptr<aec::IProjectExplorerGuiEventHandler> handler)
{
    eventHandler_ = std::move(handler);
}

void CConsolePanel::detachExplorer()
{
    eventHandler_.reset();
    explorer_ = nullptr;
}

void CConsolePanel::refresh() {}

void CConsolePanel::startRename(const aec::EntityId& entity)
{
    const aec::IEntity* const found = std::as_const(sessionManager_.getCurrentProject()).findEntity(entity);
    if (found != nullptr)
        fmt::print("Panel: rename \"{}\" in place\n", toUtf8(found->getName()));
}

void CConsolePanel::onObjectsChanged(std::uint32_t code, std::uint32_t /*value*/,
                                     const aec::EntityIdSet& /*changed*/, const aec::EntityIdSet& removed)
{
    if (code != aec::objectEventEntitiesChanged || explorer_ == nullptr)
        return;
    // Rebuilding every group is simple and always right. A host with large projects rebuilds only
    // the groups whose collections the event's value names (aec::touchesEntityCollection), and the
    // groups grouped by topic when topics changed.
    for (aec::IProjectExplorerGroup& group : explorer_->getGroups())
        group.rebuild();

    // The explorer leaves the selection to the panel: removed entities leave it here.
    const aec::EntityIdSet& selection = explorer_->getEntitySelection().getSelection();
    aec::EntityIdSet gone;
    std::ranges::set_intersection(selection, removed, std::inserter(gone, gone.end()));
    if (!gone.empty())
        eventHandler().onSelectionChanged({}, gone);
}

void CConsolePanel::chooseGrouping(int groupIndex, std::wstring_view displayName)
{
    const auto userInput = createUserInputScope();
    aec::IProjectExplorerGroupingModel& model = group(groupIndex).getGroupingModel();
    const std::vector<aec::GroupingOption> options = model.getGroupingOptions();
    const auto option = std::ranges::find(options, displayName, &aec::GroupingOption::displayName);
    COMMON_PRECONDITION(option != options.end());
    // The group rebuilds its subgroups at once.
    model.setGroupingKeyText(option->value);
}

void CConsolePanel::toggleGroup(int groupIndex)
{
    const auto userInput = createUserInputScope();
    eventHandler().toggleGroup(groupIndex);
}

void CConsolePanel::changeSelection(const aec::EntityIdSet& toAdd, const aec::EntityIdSet& toRemove)
{
    const auto userInput = createUserInputScope();
    eventHandler().onSelectionChanged(toAdd, toRemove);
}

void CConsolePanel::print() const
{
    COMMON_PRECONDITION(explorer_ != nullptr);
    for (const aec::IProjectExplorerGroup& group : std::as_const(*explorer_).getGroups())
    {
        if (!group.isExpanded())
        {
            std::ptrdiff_t count = 0;
            for (const aec::IProjectExplorerSubgroup& subgroup : group.getSubgroups())
                count += boost::distance(subgroup.getEntities());
            fmt::print("> {} ({})\n", toUtf8(group.getName()), count);
            continue;
        }
        fmt::print("v {}\n", toUtf8(group.getName()));
        for (const aec::IProjectExplorerSubgroup& subgroup : group.getSubgroups())
        {
            // A group without grouping has one subgroup without a name, which a panel leaves out.
            if (subgroup.getName().empty())
                printEntities(subgroup, 2);
            else if (!subgroup.isExpanded())
                fmt::print("  > {} ({})\n", toUtf8(subgroup.getName()),
                           boost::distance(subgroup.getEntities()));
            else
            {
                fmt::print("  v {}\n", toUtf8(subgroup.getName()));
                printEntities(subgroup, 4);
            }
        }
    }
}

aec::IProjectExplorerGuiEventHandler& CConsolePanel::eventHandler() const
{
    COMMON_PRECONDITION(eventHandler_ != nullptr);
    return *eventHandler_;
}

aec::IProjectExplorerGroup& CConsolePanel::group(int groupIndex) const
{
    COMMON_PRECONDITION(explorer_ != nullptr);
    const aec::GroupRange groups = explorer_->getGroups();
    COMMON_PRECONDITION(groupIndex >= 0 && groupIndex < boost::distance(groups));
    return *std::next(boost::begin(groups), groupIndex);
}

// Entities in natural name order, as the explorer orders subgroups.
void CConsolePanel::printEntities(const aec::IProjectExplorerSubgroup& subgroup, int indent) const
{
    const aec::IProject& project = sessionManager_.getCurrentProject();
    const aec::EntityIdSet& selection = explorer_->getEntitySelection().getSelection();
    using Row = std::pair<std::wstring, bool>; // name, selected
    std::vector<Row> rows;
    for (const aec::EntityId& id : subgroup.getEntities())
        if (const aec::IEntity* const entity = project.findEntity(id))
            rows.emplace_back(entity->getName(), selection.contains(id));
    std::ranges::sort(rows, common::LogicalLess(), &Row::first);
    for (const auto& [name, selected] : rows)
        fmt::print("{:{}}{} {}\n", "", indent, selected ? '*' : ' ', toUtf8(name));
}

} // namespace minimal_host
