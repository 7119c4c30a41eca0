#pragma once

#include "aec/EntityId.h"
#include "aec/MenuItemProvider.h"

namespace aec
{
class IProject;
class IProjectExplorerEntityController;
} // namespace aec

namespace project_explorer
{

// The change-topic submenu: one child per topic of the project, in the project's order, each
// moving the entities to its topic. A project without topics still shows the (empty) submenu.
class CChangeTopicContextMenuItems final : public aec::IMenuItemProvider
{
public:
    // The controller and the project must outlive the provider and the items it makes.
    CChangeTopicContextMenuItems(aec::EntityIdList entities, aec::IProjectExplorerEntityController& entityController,
                                 const aec::IProject& topicSource);
    ~CChangeTopicContextMenuItems() override;

    // Each call names the children with fresh identifiers: a topic's child is an entry of this one
    // menu, not a fixed command of the host.
    std::vector<aec::CContextMenuItem> getMenuItems(const aec::ITranslation& translation) const override;
    std::string getName() const override;

private:
    aec::EntityIdList entities_;
    aec::IProjectExplorerEntityController& entityController_;
    const aec::IProject& topicSource_;
};

} // namespace project_explorer
