#pragma once

#include "aec/EntityId.h"

#include <QItemSelectionModel>

namespace aec::host
{
class CExplorerPanel;
} // namespace aec::host

namespace aec::desktop
{

class CCommandRunner;
class CExplorerItemModel;

// The selection of a view of the explorer's item model, kept equal to the explorer's entity
// selection both ways: what the user selects in the view goes to the panel as (to add, to remove),
// as a click in the panel does, and whatever the explorer's selection becomes afterwards (entities
// deleted, a selection made by a command) is shown in the view once the model has followed the
// explorer. Only entities are selectable.
class CExplorerSelectionModel final : public QItemSelectionModel
{
    Q_OBJECT

public:
    CExplorerSelectionModel(CExplorerItemModel& model, host::CExplorerPanel& panel, CCommandRunner& runner,
                            QObject* parent = nullptr);
    ~CExplorerSelectionModel() override;

    // The entities that are selected in the view.
    EntityIdSet getSelectedEntities() const;

private:
    void showExplorerSelection();
    QItemSelection rangesOf(const EntityIdSet& entities) const;
    void passSelectionToExplorer();

    CExplorerItemModel& model_;
    host::CExplorerPanel& panel_;
    CCommandRunner& runner_;
    bool showing_ = false;
};

} // namespace aec::desktop
