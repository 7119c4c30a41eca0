#pragma once

#include "ProjectExplorerLib/ChangeTopicContextMenuItems.h"

#include "AecApp/CutCopyPasteContextMenuItems.h"
#include "AecApp/DeleteCommandMenuItems.h"
#include "AecApp/EditPropertiesMenuItems.h"
#include "AecApp/OpenMenuItem.h"
#include "AecApp/SelectAllMenuItems.h"

#include "aec/EntityId.h"
#include "aec/MenuItemProvider.h"

namespace aec
{
class IGui;
class IProject;
class IProjectExplorerEntityController;
} // namespace aec

namespace project_explorer
{

// The explorer's context menu for a set of entities: the host's standard items where they apply,
// the rename item for a single explorer entity, and the change-topic submenu, in groups divided
// by separator lines.
class CProjectExplorerContextMenuItemsProvider final : public aec::IMenuItemProvider
{
public:
    static constexpr std::string_view renameIdentifier = "ad77dd26-645f-4842-a61a-8456aaf36eb1";

    // The entities in selection order. The controller, the project and the GUI must outlive the
    // provider and the items it makes.
    CProjectExplorerContextMenuItemsProvider(aec::EntityIdList entities,
                                             aec::IProjectExplorerEntityController& entityController,
                                             const aec::IProject& project, aec::IGui& gui);
    ~CProjectExplorerContextMenuItemsProvider() override;

    std::vector<aec::CContextMenuItem> getMenuItems(const aec::ITranslation& translation) const override;
    std::string getName() const override;

private:
    bool isSingleExplorerEntity() const;
    aec::CContextMenuItem makeRenameItem(const aec::ITranslation& translation) const;

    aec::EntityIdList entities_;
    aec::IProjectExplorerEntityController& entityController_;
    const aec::IProject& project_;
    aec::COpenMenuItem openItems_;
    aec::CCutCopyPasteContextMenuItems cutCopyPasteItems_;
    aec::CDeleteCommandMenuItems deleteItems_;
    // Kept with the other standard families, but the explorer's menu does not offer select all.
    aec::CSelectAllMenuItems selectAllItems_;
    aec::CEditPropertiesMenuItems editPropertiesItems_;
    CChangeTopicContextMenuItems changeTopicItems_;
};

} // namespace project_explorer
