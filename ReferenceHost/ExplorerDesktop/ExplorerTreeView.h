#pragma once

#include "aec/EntityId.h"

#include <QTreeView>
#include <boost/signals2/connection.hpp>

namespace aec::host
{
class CExplorerPanel;
} // namespace aec::host

namespace aec::desktop
{

class CExplorerItemModel;
class CExplorerSelectionModel;

// The explorer panel's tree widget. Its fold state is the explorer's, both ways: unfolding or
// folding a row folds through the model (and so through the panel), and folds that happen in the
// explorer (a selection that unfolds its group, a stored state) unfold the rows. When the panel is
// asked to rename an entity, the view opens the entity's name for editing in place; the model
// commits the new name.
class CExplorerTreeView final : public QTreeView
{
    Q_OBJECT

public:
    CExplorerTreeView(CExplorerItemModel& model, CExplorerSelectionModel& selection,
                      host::CExplorerPanel& panel, QWidget* parent = nullptr);
    ~CExplorerTreeView() override;

    // Opens the entity's name for editing; false when the tree does not show it as renamable.
    bool startRename(const EntityId& entity);
    // Whether a name is open for editing.
    bool isEditing() const { return state() == QAbstractItemView::EditingState; }

private:
    void showFoldStates(const QModelIndex& parent);

    CExplorerItemModel& model_;
    boost::signals2::scoped_connection renameRequested_;
};

} // namespace aec::desktop
