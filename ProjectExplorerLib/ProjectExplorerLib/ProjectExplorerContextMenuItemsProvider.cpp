#include "ProjectExplorerLib/ProjectExplorerContextMenuItemsProvider.h"

#include "ProjectExplorerLib/EntityTypeLists.h"

#include "aec/Entity.h"
#include "aec/Project.h"
#include "aec/ProjectExplorerEntityController.h"
#include "aec/TextIds.h"
#include "aec/Translation.h"

namespace project_explorer
{

namespace
{

void appendItems(std::vector<aec::CContextMenuItem>& items, const aec::IMenuItemProvider& provider,
                 const aec::ITranslation& translation)
{
    std::vector<aec::CContextMenuItem> added = provider.getMenuItems(translation);
    items.insert(items.end(), std::make_move_iterator(added.begin()), std::make_move_iterator(added.end()));
}

void appendSeparator(std::vector<aec::CContextMenuItem>& items)
{
    items.emplace_back(aec::CContextMenuItem::SeparatorTag{});
}

} // namespace

CProjectExplorerContextMenuItemsProvider::CProjectExplorerContextMenuItemsProvider(
    aec::EntityIdList entities, aec::IProjectExplorerEntityController& entityController, const aec::IProject& project,
    aec::IGui& gui)
    : entities_(std::move(entities)), entityController_(entityController), project_(project),
      openItems_([&entityController, opened = entities_] { entityController.open(opened); }, true),
      cutCopyPasteItems_(gui, !entities_.empty()), deleteItems_(gui, true), selectAllItems_(gui),
      editPropertiesItems_(gui, true), changeTopicItems_(entities_, entityController, project)
{
}

CProjectExplorerContextMenuItemsProvider::~CProjectExplorerContextMenuItemsProvider() = default;

std::vector<aec::CContextMenuItem>
CProjectExplorerContextMenuItemsProvider::getMenuItems(const aec::ITranslation& translation) const
{
    std::vector<aec::CContextMenuItem> items;
    if (!entities_.empty())
        appendItems(items, openItems_, translation);
    if (isSingleExplorerEntity())
    {
        appendSeparator(items);
        items.push_back(makeRenameItem(translation));
    }
    if (entityController_.canChangeTopic(entities_))
    {
        appendSeparator(items);
        appendItems(items, changeTopicItems_, translation);
    }
    // Paste needs no selection, so this group is always there.
    appendSeparator(items);
    appendItems(items, cutCopyPasteItems_, translation);
    if (!entities_.empty())
    {
        appendSeparator(items);
        appendItems(items, deleteItems_, translation);
    }
    if (entityController_.canEditProperties(entities_))
    {
        appendSeparator(items);
        appendItems(items, editPropertiesItems_, translation);
    }
    return items;
}

std::string CProjectExplorerContextMenuItemsProvider::getName() const
{
    return "project-explorer";
}

bool CProjectExplorerContextMenuItemsProvider::isSingleExplorerEntity() const
{
    if (entities_.size() != 1)
        return false;
    const aec::IEntity* const entity = project_.findEntity(entities_.front());
    return entity != nullptr && listsType(explorerEntityTypes(), entity->getType());
}

aec::CContextMenuItem CProjectExplorerContextMenuItemsProvider::makeRenameItem(const aec::ITranslation& translation) const
{
    // Renaming happens in the panel itself, so the item hands the entity to the document's GUI,
    // which starts the in-place edit.
    return aec::CContextMenuItem(
        translation.getText(aec::text_ids::rename), std::string(renameIdentifier),
        [&controller = entityController_, entity = entities_.front()] { controller.forwardToGuiHandler(entity); },
        true, false, 0);
}

} // namespace project_explorer
