#include "ExplorerDesktop/ExplorerTreeView.h"

#include "ExplorerDesktop/ExplorerItemModel.h"
#include "ExplorerDesktop/ExplorerSelectionModel.h"
#include "HostFrame/ExplorerPanel.h"

namespace aec::desktop
{

CExplorerTreeView::CExplorerTreeView(CExplorerItemModel& model, CExplorerSelectionModel& selection,
                                     host::CExplorerPanel& panel, QWidget* parent)
    : QTreeView(parent), model_(model)
{
    setModel(&model_);
    // The view made a selection model of its own in setModel; it dies with the view.
    setSelectionModel(&selection);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    // Renaming starts through the explorer (its "Rename" item, F2), never by a click on a name.
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setContextMenuPolicy(Qt::CustomContextMenu);

    connect(this, &QTreeView::expanded, &model_,
            [this](const QModelIndex& index) { model_.setExpanded(index, true); });
    connect(this, &QTreeView::collapsed, &model_,
            [this](const QModelIndex& index) { model_.setExpanded(index, false); });
    connect(&model_, &CExplorerItemModel::expandedChanged, this, &QTreeView::setExpanded);
    renameRequested_ =
        panel.renameRequestedSignal().connect([this](const EntityId& entity) { startRename(entity); });
    showFoldStates(QModelIndex());
}

CExplorerTreeView::~CExplorerTreeView()
{
    renameRequested_.disconnect();
}

bool CExplorerTreeView::startRename(const EntityId& entity)
{
    const QModelIndex index = model_.indexOfEntity(entity);
    if (!index.isValid() || !(model_.flags(index) & Qt::ItemIsEditable))
        return false;
    scrollTo(index);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    return edit(index, QAbstractItemView::AllEditTriggers, nullptr);
}

void CExplorerTreeView::showFoldStates(const QModelIndex& parent)
{
    for (int row = 0; row < model_.rowCount(parent); ++row)
    {
        const QModelIndex index = model_.index(row, 0, parent);
        if (model_.isExpanded(index))
            setExpanded(index, true);
        showFoldStates(index);
    }
}

} // namespace aec::desktop
