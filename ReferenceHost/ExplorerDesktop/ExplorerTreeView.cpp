#include "ExplorerDesktop/ExplorerTreeView.h"

#include "ExplorerDesktop/CommandRunner.h"
#include "ExplorerDesktop/EntityDragData.h"
#include "ExplorerDesktop/ExplorerFilterModel.h"
#include "ExplorerDesktop/ExplorerItemModel.h"
#include "ExplorerDesktop/ExplorerSelectionModel.h"
#include "ExplorerDesktop/FilteredSelectionModel.h"
#include "ExplorerDesktop/TopicDropHandler.h"
#include "HostFrame/ExplorerPanel.h"

#include <QApplication>
#include <QDrag>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPersistentModelIndex>
#include <algorithm>
#include <utility>
#include <vector>

namespace aec::desktop
{

namespace
{

bool isFoldable(const QModelIndex& index)
{
    const auto kind = static_cast<CExplorerTreeNode::Kind>(index.data(CExplorerItemModel::KindRole).toInt());
    return kind == CExplorerTreeNode::Kind::Group || kind == CExplorerTreeNode::Kind::Subgroup;
}

// The groups and subgroups from `index` down (the whole tree for the invalid index), each before
// the rows below it.
void collectFoldable(const QAbstractItemModel& model, const QModelIndex& index,
                     std::vector<QPersistentModelIndex>& found)
{
    if (index.isValid())
    {
        if (!isFoldable(index))
            return;
        found.emplace_back(index);
    }
    for (int row = 0; row < model.rowCount(index); ++row)
        collectFoldable(model, model.index(row, 0, index), found);
}

} // namespace

CExplorerTreeView::CExplorerTreeView(CExplorerItemModel& model, CExplorerSelectionModel& selection,
                                     host::CExplorerPanel& panel, CCommandRunner& runner, QWidget* parent)
    : QTreeView(parent), model_(model), selection_(selection), panel_(panel), runner_(runner)
{
    setModel(&model_);
    useSelectionModel(selection_);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    // Renaming starts through the explorer (its "Rename" item, F2), never by a click on a name.
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setContextMenuPolicy(Qt::CustomContextMenu);

    // While filtering, folds are the view's own and never reach the explorer.
    connect(this, &QTreeView::expanded, &model_,
            [this](const QModelIndex& index)
            {
                if (!isFiltering())
                    model_.setExpanded(index, true);
            });
    connect(this, &QTreeView::collapsed, &model_,
            [this](const QModelIndex& index)
            {
                if (!isFiltering())
                    model_.setExpanded(index, false);
            });
    connect(&model_, &CExplorerItemModel::expandedChanged, this,
            [this](const QModelIndex& index, bool expanded)
            {
                if (!isFiltering())
                    setExpanded(index, expanded);
            });
    renameRequested_ =
        panel_.renameRequestedSignal().connect([this](const EntityId& entity) { startRename(entity); });
    showFoldStates(QModelIndex());
}

CExplorerTreeView::~CExplorerTreeView()
{
    renameRequested_.disconnect();
}

bool CExplorerTreeView::startRename(const EntityId& entity)
{
    const QModelIndex index = fromItemModel(model_.indexOfEntity(entity));
    if (!index.isValid() || !(index.flags() & Qt::ItemIsEditable))
        return false;
    scrollTo(index);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    return edit(index, QAbstractItemView::AllEditTriggers, nullptr);
}

void CExplorerTreeView::setNameFilter(const QString& filter)
{
    if (CNameMatcher(filter).isEmpty())
    {
        if (isFiltering())
            stopFiltering();
        return;
    }
    if (isFiltering())
        filter_->setNameFilter(filter);
    else
        startFiltering(filter);
    expandAll();
}

QModelIndex CExplorerTreeView::toItemModel(const QModelIndex& viewIndex) const
{
    if (filter_ != nullptr && viewIndex.model() == filter_)
        return filter_->mapToSource(viewIndex);
    return viewIndex;
}

QModelIndex CExplorerTreeView::fromItemModel(const QModelIndex& itemIndex) const
{
    return filter_ != nullptr ? filter_->mapFromSource(itemIndex) : itemIndex;
}

void CExplorerTreeView::unfoldAll(const QModelIndex& itemIndex)
{
    if (!isFiltering())
    {
        foldThroughExplorer(itemIndex, true);
        return;
    }
    if (itemIndex.isValid())
        expandRecursively(fromItemModel(itemIndex));
    else
        expandAll();
}

void CExplorerTreeView::foldAll(const QModelIndex& itemIndex)
{
    if (!isFiltering())
    {
        foldThroughExplorer(itemIndex, false);
        return;
    }
    std::vector<QPersistentModelIndex> foldable;
    collectFoldable(*filter_, fromItemModel(itemIndex), foldable);
    for (const QPersistentModelIndex& index : foldable)
        collapse(index);
}

void CExplorerTreeView::keyPressEvent(QKeyEvent* event)
{
    // Qt's own answer to '*' unfolds the view only; here it unfolds as the user's folds do.
    if (event->key() == Qt::Key_Asterisk && isFoldable(currentIndex()))
    {
        unfoldAll(toItemModel(currentIndex()));
        return;
    }
    QTreeView::keyPressEvent(event);
}

void CExplorerTreeView::setDropHandler(CTopicDropHandler* handler)
{
    dropHandler_ = handler;
    setAcceptDrops(handler != nullptr);
}

void CExplorerTreeView::mousePressEvent(QMouseEvent* event)
{
    const QModelIndex pressed = indexAt(event->position().toPoint());
    // Qt's own drag needs drag flags from the model and takes the model's MIME data; the explorer's
    // drags carry identifiers the model need not know about.
    dragStart_.reset();
    if (event->button() == Qt::LeftButton && pressed.isValid() && selectionModel()->isSelected(pressed))
        dragStart_ = event->position().toPoint();
    QTreeView::mousePressEvent(event);
}

void CExplorerTreeView::mouseMoveEvent(QMouseEvent* event)
{
    if (dragStart_ && (event->buttons() & Qt::LeftButton) &&
        (event->position().toPoint() - *dragStart_).manhattanLength() >= QApplication::startDragDistance())
    {
        dragStart_.reset();
        startEntityDrag();
        return;
    }
    QTreeView::mouseMoveEvent(event);
}

void CExplorerTreeView::dragEnterEvent(QDragEnterEvent* event)
{
    // Entered with any drag of entities, so that each move over a row can say yes or no.
    if (dropHandler_ != nullptr && !CEntityDragData::read(*event->mimeData()).empty())
        event->acceptProposedAction();
    else
        event->ignore();
}

void CExplorerTreeView::dragMoveEvent(QDragMoveEvent* event)
{
    const EntityIdList entities = CEntityDragData::read(*event->mimeData());
    const QModelIndex target = itemAt(event->position().toPoint());
    if (dropHandler_ != nullptr && dropHandler_->topicOfDrop(entities, target))
    {
        event->setDropAction(Qt::MoveAction);
        event->accept(visualRect(fromItemModel(target)));
        return;
    }
    event->ignore();
}

void CExplorerTreeView::dragLeaveEvent(QDragLeaveEvent* event)
{
    event->accept();
}

void CExplorerTreeView::dropEvent(QDropEvent* event)
{
    const EntityIdList entities = CEntityDragData::read(*event->mimeData());
    const QModelIndex target = itemAt(event->position().toPoint());
    if (dropHandler_ == nullptr || !dropHandler_->drop(entities, target))
    {
        event->ignore();
        return;
    }
    event->setDropAction(Qt::MoveAction);
    event->accept();
}

void CExplorerTreeView::startEntityDrag()
{
    const EntityIdSet selected = selection_.getSelectedEntities();
    if (selected.empty())
        return;
    const EntityIdList entities(selected.begin(), selected.end());
    QStringList names;
    for (const EntityId& entity : entities)
        names.append(model_.indexOfEntity(entity).data(Qt::EditRole).toString());
    // QDrag takes the data; exec runs its own event loop until the drop or the cancel.
    auto* const drag = new QDrag(this);
    drag->setMimeData(CEntityDragData::make(entities, names).release());
    drag->exec(Qt::MoveAction);
}

QModelIndex CExplorerTreeView::itemAt(const QPoint& position) const
{
    return toItemModel(indexAt(position));
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

void CExplorerTreeView::foldThroughExplorer(const QModelIndex& itemIndex, bool expanded)
{
    std::vector<QPersistentModelIndex> foldable;
    collectFoldable(model_, itemIndex, foldable);
    // Subgroups fold before their group, so that each fold changes what the user sees at once.
    if (!expanded)
        std::reverse(foldable.begin(), foldable.end());
    // Each fold through the model would have it read the whole tree again; as one change of the
    // panel's, it reads the tree once. Until then the model shows the folds from before, which
    // say what to toggle, and its rows keep their numbers.
    runner_.run(
        [this, &foldable, expanded]
        {
            panel_.changeAsOne(
                [this, &foldable, expanded]
                {
                    for (const QPersistentModelIndex& index : foldable)
                    {
                        if (model_.isExpanded(index) == expanded)
                            continue;
                        if (index.parent().isValid())
                            panel_.toggleSubgroup(index.parent().row(), index.row());
                        else
                            CExplorerItemModel::toggleGroupInPanel(panel_, index.row(), expanded);
                    }
                });
        });
}

void CExplorerTreeView::startFiltering(const QString& filter)
{
    filter_ = new CExplorerFilterModel(this);
    // Filtered before it has a source, so that it never maps the whole tree.
    filter_->setNameFilter(filter);
    filter_->setSourceModel(&model_);
    setModel(filter_);
    filteredSelection_ = new CFilteredSelectionModel(*filter_, selection_, this);
    useSelectionModel(*filteredSelection_);
    // Rows that come while the filter is set (a match renamed into view, a pasted entity) lead to
    // a match too, and are shown unfolded like the others.
    connect(filter_, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex& parent, int first, int last)
            {
                expand(parent);
                for (int row = first; row <= last; ++row)
                    expandRecursively(filter_->index(row, 0, parent));
            });
}

void CExplorerTreeView::stopFiltering()
{
    setModel(&model_);
    useSelectionModel(selection_);
    delete std::exchange(filteredSelection_, nullptr);
    delete std::exchange(filter_, nullptr);
    // The new model came with every row folded; the explorer still holds the user's folds.
    showFoldStates(QModelIndex());
    if (currentIndex().isValid())
        scrollTo(currentIndex());
}

void CExplorerTreeView::useSelectionModel(QItemSelectionModel& selection)
{
    // setModel made a selection model that nobody else uses.
    QItemSelectionModel* const made = selectionModel();
    setSelectionModel(&selection);
    if (made != nullptr && made != &selection && made != &selection_ && made != filteredSelection_)
        delete made;
}

} // namespace aec::desktop
