#pragma once

#include "aec/EntityId.h"

#include <QTabWidget>

namespace aec::model
{
class CProject;
} // namespace aec::model

namespace aec::desktop
{

class CEntityPage;

// The program's central area: a tab for each entity that the user opened (sheets, tables, and
// whatever else the host opens), which follows the project until the user closes it or the entity
// is gone.
class CDocumentArea final : public QTabWidget
{
    Q_OBJECT

public:
    explicit CDocumentArea(QWidget* parent = nullptr);
    ~CDocumentArea() override;

    // Gives each entity that the project has a tab, or brings its tab to the front; the last one
    // ends up in front.
    void openEntities(const EntityIdList& entities, const model::CProject& project);
    // Shows every tab's entity as the project has it now and closes the tabs of entities that it
    // no longer has; without a project every tab closes.
    void refresh(const model::CProject* project);
    CEntityPage* findPage(const EntityId& entity) const;

protected:
    // Without tabs, says how to open one.
    void paintEvent(QPaintEvent* event) override;

private:
    CEntityPage* pageAt(int tab) const;
    void closeTab(int tab);
};

} // namespace aec::desktop
