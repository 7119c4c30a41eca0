#include "ProjectExplorerLib/ProjectExplorerEntitySelection.h"

#include "ProjectExplorerLib/EntitySets.h"

#include "Common/Check.h"

#include <algorithm>

namespace project_explorer
{

CProjectExplorerEntitySelection::CProjectExplorerEntitySelection() = default;

CProjectExplorerEntitySelection::~CProjectExplorerEntitySelection() = default;

const aec::EntityIdSet& CProjectExplorerEntitySelection::getSelection() const
{
    return selection_;
}

void CProjectExplorerEntitySelection::setSelection(const aec::EntityIdSet& selection)
{
    if (selection == selection_)
        return;

    const aec::EntityIdSet added = entitiesNotIn(selection, selection_);
    const aec::EntityIdSet removed = entitiesNotIn(selection_, selection);
    COMMON_CHECK(!added.empty() || !removed.empty());

    // Listeners read the selection, so it is replaced before they hear of the change.
    selection_ = selection;
    selectionChanged_(added, removed);
}

void CProjectExplorerEntitySelection::changeSelection(const aec::EntityIdSet& toAdd, const aec::EntityIdSet& toRemove)
{
    const bool disjoint = std::none_of(toAdd.begin(), toAdd.end(),
                                       [&toRemove](const aec::EntityId& entity) { return toRemove.contains(entity); });
    COMMON_PRECONDITION(disjoint);

    aec::EntityIdSet result = entitiesNotIn(selection_, toRemove);
    result.insert(toAdd.begin(), toAdd.end());
    setSelection(result);
}

aec::SelectionChangedSignal& CProjectExplorerEntitySelection::selectionChangedSignal() const
{
    return selectionChanged_;
}

} // namespace project_explorer
