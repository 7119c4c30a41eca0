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

    // The outcome of setting (selection minus toRemove) united with toAdd, reached through the two
    // differences alone: a click on one entity in a selection of a hundred thousand then costs a few
    // look-ups instead of copies and comparisons of the whole set. Removed entities move out of the
    // selection without being copied.
    const aec::EntityIdSet added = entitiesNotIn(toAdd, selection_);
    const aec::EntityIdSet removed = takeEntities(selection_, toRemove);
    if (added.empty() && removed.empty())
        return;

    // Listeners read the selection, so it is changed before they hear of the change.
    if (selection_.empty())
        selection_ = added; // copies the tree whole, without a descent per entity
    else
        selection_.insert(added.begin(), added.end());
    selectionChanged_(added, removed);
}

aec::SelectionChangedSignal& CProjectExplorerEntitySelection::selectionChangedSignal() const
{
    return selectionChanged_;
}

} // namespace project_explorer
