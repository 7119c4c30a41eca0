#include "ExplorerDesktop/ExplorerSelectionModel.h"

#include "ExplorerDesktop/CommandRunner.h"
#include "ExplorerDesktop/ExplorerItemModel.h"
#include "HostFrame/ExplorerPanel.h"
#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerEntitySelection.h"

#include <algorithm>
#include <iterator>

namespace aec::desktop
{

namespace
{

EntityIdSet difference(const EntityIdSet& from, const EntityIdSet& without)
{
    EntityIdSet result;
    std::ranges::set_difference(from, without, std::inserter(result, result.end()));
    return result;
}

} // namespace

CExplorerSelectionModel::CExplorerSelectionModel(CExplorerItemModel& model, host::CExplorerPanel& panel,
                                                 CCommandRunner& runner, QObject* parent)
    : QItemSelectionModel(&model, parent), model_(model), panel_(panel), runner_(runner)
{
    connect(&model_, &CExplorerItemModel::synchronized, this,
            &CExplorerSelectionModel::showExplorerSelection);
    connect(this, &QItemSelectionModel::selectionChanged, this,
            &CExplorerSelectionModel::passSelectionToExplorer);
    showExplorerSelection();
}

CExplorerSelectionModel::~CExplorerSelectionModel() = default;

EntityIdSet CExplorerSelectionModel::getSelectedEntities() const
{
    EntityIdSet entities;
    for (const QModelIndex& index : selectedIndexes())
        if (const CExplorerTreeNode* node = model_.nodeAt(index);
            node != nullptr && node->getKind() == CExplorerTreeNode::Kind::Entity)
            entities.insert(node->getEntity());
    return entities;
}

void CExplorerSelectionModel::showExplorerSelection()
{
    const EntityIdSet wanted =
        panel_.hasExplorer() ? panel_.getExplorer().getEntitySelection().getSelection() : EntityIdSet();
    if (wanted == getSelectedEntities())
        return;
    QItemSelection selection;
    for (const EntityId& entity : wanted)
        if (const QModelIndex index = model_.indexOfEntity(entity); index.isValid())
            selection.select(index, index);
    showing_ = true;
    select(selection, QItemSelectionModel::ClearAndSelect);
    showing_ = false;
}

void CExplorerSelectionModel::passSelectionToExplorer()
{
    // While the model follows the explorer, rows that go take their selection with them; the
    // explorer already knows, and is shown as a whole once the model has followed it.
    if (showing_ || model_.isSynchronizing() || !panel_.hasExplorer())
        return;
    const EntityIdSet selected = getSelectedEntities();
    const EntityIdSet& current = panel_.getExplorer().getEntitySelection().getSelection();
    const EntityIdSet toAdd = difference(selected, current);
    const EntityIdSet toRemove = difference(current, selected);
    if (toAdd.empty() && toRemove.empty())
        return;
    if (!runner_.run([this, &toAdd, &toRemove] { panel_.changeSelection(toAdd, toRemove); }))
        showExplorerSelection();
}

} // namespace aec::desktop
