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
    // Before the model follows the explorer too: rows that go unselected take no selection with
    // them, and a view repaints its selection once rather than after every removed run.
    connect(&model_, &CExplorerItemModel::aboutToSynchronize, this,
            &CExplorerSelectionModel::showExplorerSelection);
    connect(&model_, &CExplorerItemModel::synchronized, this,
            &CExplorerSelectionModel::showExplorerSelection);
    connect(this, &QItemSelectionModel::selectionChanged, this,
            &CExplorerSelectionModel::passSelectionToExplorer);
    showExplorerSelection();
}

CExplorerSelectionModel::~CExplorerSelectionModel() = default;

EntityIdSet CExplorerSelectionModel::getSelectedEntities() const
{
    // By ranges rather than selectedIndexes(), which would make an index of every selected row.
    EntityIdSet entities;
    for (const QItemSelectionRange& range : selection())
    {
        const CExplorerTreeNode* const parent = model_.nodeAt(range.parent());
        const CExplorerTreeNode& container = parent != nullptr ? *parent : model_.rootNode();
        for (int row = range.top(); row <= range.bottom() && row < container.getChildCount(); ++row)
            if (const CExplorerTreeNode& node = container.getChild(row);
                node.getKind() == CExplorerTreeNode::Kind::Entity)
                entities.insert(node.getEntity());
    }
    return entities;
}

void CExplorerSelectionModel::showExplorerSelection()
{
    const EntityIdSet wanted =
        panel_.hasExplorer() ? panel_.getExplorer().getEntitySelection().getSelection() : EntityIdSet();
    if (wanted == getSelectedEntities())
        return;
    showing_ = true;
    select(rangesOf(wanted), QItemSelectionModel::ClearAndSelect);
    showing_ = false;
}

QItemSelection CExplorerSelectionModel::rangesOf(const EntityIdSet& entities) const
{
    // The rows of each container, in order, become runs of adjacent rows: a view asks a selection
    // about every row it paints, and a selection of one range per row makes each question slow.
    std::vector<std::pair<const CExplorerTreeNode*, int>> rows;
    rows.reserve(entities.size());
    for (const EntityId& entity : entities)
        if (const QModelIndex index = model_.indexOfEntity(entity); index.isValid())
            rows.emplace_back(model_.nodeAt(index)->getParent(), index.row());
    std::ranges::sort(rows);

    QItemSelection selection;
    for (std::size_t first = 0; first < rows.size();)
    {
        std::size_t last = first;
        while (last + 1 < rows.size() && rows[last + 1].first == rows[first].first &&
               rows[last + 1].second == rows[last].second + 1)
            ++last;
        const QModelIndex parent = model_.indexOf(*rows[first].first);
        selection.append(QItemSelectionRange(model_.index(rows[first].second, 0, parent),
                                             model_.index(rows[last].second, 0, parent)));
        first = last + 1;
    }
    return selection;
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
