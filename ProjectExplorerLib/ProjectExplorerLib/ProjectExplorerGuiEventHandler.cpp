#include "ProjectExplorerLib/ProjectExplorerGuiEventHandler.h"

#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerEntitySelection.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerSubgroup.h"

#include "Common/Check.h"

#include <boost/range/begin.hpp>
#include <boost/range/distance.hpp>

#include <iterator>

namespace project_explorer
{

CProjectExplorerGuiEventHandler::CProjectExplorerGuiEventHandler(aec::IProjectExplorer& explorer)
    : explorer_(explorer)
{
}

CProjectExplorerGuiEventHandler::~CProjectExplorerGuiEventHandler() = default;

void CProjectExplorerGuiEventHandler::onSelectionChanged(const aec::EntityIdSet& toAdd,
                                                         const aec::EntityIdSet& toRemove)
{
    explorer_.getEntitySelection().changeSelection(toAdd, toRemove);
}

void CProjectExplorerGuiEventHandler::toggleGroup(int groupIndex)
{
    aec::IProjectExplorerGroup& group = findGroup(groupIndex);
    group.setExpanded(!group.isExpanded());
}

void CProjectExplorerGuiEventHandler::toggleSubgroup(int groupIndex, int subgroupIndex)
{
    aec::IProjectExplorerSubgroup& subgroup = findSubgroup(groupIndex, subgroupIndex);
    subgroup.setExpanded(!subgroup.isExpanded());
}

// The ranges are type-erased forward ranges: counting and stepping both walk them, and no index
// is cached, because the next rebuild of a group invalidates its subgroups.
aec::IProjectExplorerGroup& CProjectExplorerGuiEventHandler::findGroup(int groupIndex)
{
    const aec::GroupRange groups = explorer_.getGroups();
    COMMON_PRECONDITION(groupIndex >= 0);
    COMMON_PRECONDITION(groupIndex < boost::distance(groups));
    return *std::next(boost::begin(groups), groupIndex);
}

aec::IProjectExplorerSubgroup& CProjectExplorerGuiEventHandler::findSubgroup(int groupIndex,
                                                                             int subgroupIndex)
{
    const aec::SubgroupRange subgroups = findGroup(groupIndex).getSubgroups();
    COMMON_PRECONDITION(subgroupIndex >= 0);
    COMMON_PRECONDITION(subgroupIndex < boost::distance(subgroups));
    return *std::next(boost::begin(subgroups), subgroupIndex);
}

} // namespace project_explorer
