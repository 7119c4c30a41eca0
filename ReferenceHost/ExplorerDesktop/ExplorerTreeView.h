#pragma once

#include "aec/EntityId.h"

#include <QTreeView>
#include <boost/signals2/connection.hpp>
#include <optional>

namespace aec::host
{
class CExplorerPanel;
} // namespace aec::host

namespace aec::desktop
{

class CCommandRunner;
class CExplorerFilterModel;
class CExplorerItemModel;
class CExplorerSelectionModel;
class CFilteredSelectionModel;
class CTopicDropHandler;

// The explorer panel's tree widget. Its fold state is the explorer's, both ways: unfolding or
// folding a row folds through the model (and so through the panel), and folds that happen in the
// explorer (a selection that unfolds its group, a stored state) unfold the rows. When the panel is
// asked to rename an entity, the view opens the entity's name for editing in place; the model
// commits the new name.
//
// While a name filter is set the view shows the tree through a filter model, every row that leads
// to a match unfolded. Those folds are the view's own: the explorer keeps the user's folds, and
// the view shows them again once the filter is cleared. Indexes that the view hands out (current,
// activated, indexAt) are then the filter's; toItemModel and fromItemModel translate.
//
// Selected entities can be dragged; with a drop handler the tree takes drops that the handler
// accepts and shows the forbidden cursor over every other row.
class CExplorerTreeView final : public QTreeView
{
    Q_OBJECT

public:
    CExplorerTreeView(CExplorerItemModel& model, CExplorerSelectionModel& selection,
                      host::CExplorerPanel& panel, CCommandRunner& runner, QWidget* parent = nullptr);
    ~CExplorerTreeView() override;

    // Opens the entity's name for editing; false when the tree does not show it as renamable.
    bool startRename(const EntityId& entity);
    // Whether a name is open for editing.
    bool isEditing() const { return state() == QAbstractItemView::EditingState; }

    // Shows only the entities whose names match (see CNameMatcher); an empty filter shows all.
    void setNameFilter(const QString& filter);
    bool isFiltering() const noexcept { return filter_ != nullptr; }
    // An index of the view's model as an index of the explorer's item model, and back.
    QModelIndex toItemModel(const QModelIndex& viewIndex) const;
    QModelIndex fromItemModel(const QModelIndex& itemIndex) const;

    // Unfolds (folds) the row of the item model and every group and subgroup below it, or the
    // whole tree for an invalid index. Without a filter the folds are the user's and go through the
    // explorer; with one they are the view's.
    void unfoldAll(const QModelIndex& itemIndex);
    void foldAll(const QModelIndex& itemIndex);

    // Null takes no drops. The handler must outlive the view or be replaced first.
    void setDropHandler(CTopicDropHandler* handler);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void showFoldStates(const QModelIndex& parent);
    void foldThroughExplorer(const QModelIndex& itemIndex, bool expanded);
    void startFiltering(const QString& filter);
    void stopFiltering();
    void useSelectionModel(QItemSelectionModel& selection);
    void startEntityDrag();
    // The item model's row under a point of the viewport.
    QModelIndex itemAt(const QPoint& position) const;

    CExplorerItemModel& model_;
    CExplorerSelectionModel& selection_;
    host::CExplorerPanel& panel_;
    CCommandRunner& runner_;
    CExplorerFilterModel* filter_ = nullptr;
    CFilteredSelectionModel* filteredSelection_ = nullptr;
    CTopicDropHandler* dropHandler_ = nullptr;
    // Where a press on a selected entity began what may become a drag of the selection.
    std::optional<QPoint> dragStart_;
    boost::signals2::scoped_connection renameRequested_;
};

} // namespace aec::desktop
