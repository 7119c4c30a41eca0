#pragma once

#include "aec/EntityId.h"

#include <QWidget>

class QLabel;
class QTableView;
class QTableWidget;

namespace aec::model
{
class CProject;
} // namespace aec::model

namespace aec::desktop
{

class CTableCellsModel;

// One opened entity: its name, kind, topic and identifier, its free-form properties, and for a
// table the grid of its cells, read on demand. It shows the entity as the project has it when asked to, so an
// opened sheet follows renames, topic changes and undo.
class CEntityPage final : public QWidget
{
    Q_OBJECT

public:
    explicit CEntityPage(const EntityId& entity, QWidget* parent = nullptr);
    ~CEntityPage() override;

    const EntityId& getEntity() const noexcept { return entity_; }
    // Shows the entity as the project has it now; false, showing nothing new, when the project no
    // longer has it.
    bool showFrom(const model::CProject& project);
    // The entity's name as last shown.
    const QString& getTitle() const noexcept { return title_; }
    // The table's cells as last shown; no rows for an entity that is no table.
    const CTableCellsModel& getCells() const noexcept { return *cells_; }

private:
    EntityId entity_;
    QString title_;
    QLabel* name_;
    QLabel* kind_;
    QLabel* topic_;
    QLabel* identifier_;
    QTableWidget* properties_;
    CTableCellsModel* cells_;
    QTableView* cellsView_;
};

} // namespace aec::desktop
