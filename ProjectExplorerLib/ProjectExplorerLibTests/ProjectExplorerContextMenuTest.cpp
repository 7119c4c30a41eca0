#include "AecApp/SeparatorMenuItemProvider.h"
#include "AecModel/UndoHistory.h"
#include "Common/UUID.h"
#include "EntityOperationsFixture.h"
#include "HostFrame/HostContext.h"
#include "ProjectExplorerLib/ProjectExplorerContextMenuItemsProvider.h"
#include "ProjectExplorerLib/ProjectExplorerContextMenuStrategyResolver.h"
#include "ProjectExplorerLib/ProjectExplorerEntitySelection.h"
#include "aec/TextIds.h"

namespace project_explorer::test
{
namespace
{

namespace texts = aec::text_ids;

class ContextMenuTest : public EntityOperationsFixture
{
protected:
    // The menu of the selection, as the texts of its items and "-" for a separator.
    std::vector<std::wstring> menuOf(const aec::EntityIdSet& selected)
    {
        items = itemsOf(selected);
        std::vector<std::wstring> shown;
        for (const aec::CContextMenuItem& item : items)
            shown.push_back(item.isSeparator() ? L"-" : item.getText());
        return shown;
    }

    std::vector<aec::CContextMenuItem> itemsOf(const aec::EntityIdSet& selected)
    {
        selection.setSelection(selected);
        return resolver.resolve(nullptr).front()->getMenuItems(host.getTranslation());
    }

    const aec::CContextMenuItem& itemWithText(int textId) const
    {
        const auto found = std::ranges::find(items, text(textId), &aec::CContextMenuItem::getText);
        EXPECT_NE(found, items.end());
        return *found;
    }

    CProjectExplorerEntitySelection selection;
    aec::host::CHostContext hostContext{project, host.getPropertyCatalog()};
    CProjectExplorerContextMenuStrategyResolver resolver{*controller, selection,   host.getSessionManager(),
                                                         nullptr,     &clipboard,  project.getObjectEvents(),
                                                         clipboard,   hostContext, gui};
    std::vector<aec::CContextMenuItem> items;
};

TEST_F(ContextMenuTest, ItemsFollowTheSelection)
{
    const std::wstring open = text(texts::open), rename = text(texts::rename),
                       topics = text(texts::changeTopic);
    const std::wstring cut = text(texts::cut), copy = text(texts::copy), paste = text(texts::paste);
    const std::wstring remove = text(texts::deleteItem), edit = text(texts::editProperties);

    EXPECT_EQ(menuOf({}), (std::vector<std::wstring>{L"-", cut, copy, paste}));
    EXPECT_FALSE(itemWithText(texts::cut).isEnabled());
    EXPECT_EQ(menuOf({sheet1}), (std::vector<std::wstring>{open, L"-", rename, L"-", topics, L"-", cut, copy,
                                                           paste, L"-", remove}));
    EXPECT_TRUE(itemWithText(texts::cut).isEnabled());
    EXPECT_EQ(menuOf({material}), (std::vector<std::wstring>{open, L"-", rename, L"-", topics, L"-", cut,
                                                             copy, paste, L"-", remove, L"-", edit}));
    EXPECT_EQ(menuOf({sheet1, sheet2}),
              (std::vector<std::wstring>{open, L"-", topics, L"-", cut, copy, paste, L"-", remove}));
    EXPECT_EQ(menuOf({image}),
              (std::vector<std::wstring>{open, L"-", cut, copy, paste, L"-", remove, L"-", edit}));
    // One entity outside the explorer types takes the submenu away from the whole selection.
    EXPECT_EQ(std::ranges::count(menuOf({sheet1, image}), topics), 0);
}

TEST_F(ContextMenuTest, OwnItemsActOnTheSelectedEntities)
{
    menuOf({sheet1});
    const aec::CContextMenuItem& rename = itemWithText(texts::rename);
    EXPECT_EQ(rename.getIdentifier(), CProjectExplorerContextMenuItemsProvider::renameIdentifier);
    EXPECT_TRUE(rename.isEnabled());
    rename.run();
    itemWithText(texts::open).run();
    EXPECT_EQ(documentGui().getHandledEntities(), aec::EntityIdList{sheet1});
    EXPECT_EQ(documentGui().getOpenedEntities(), std::vector<aec::EntityIdList>{aec::EntityIdList{sheet1}});

    // One child per topic choice of the host, in its order: the reference host gives "(No topic)"
    // (the nil topic) first.
    const std::vector<aec::CContextMenuItem>& topics = itemWithText(texts::changeTopic).getSubItems();
    ASSERT_EQ(topics.size(), 3u);
    EXPECT_EQ(topics[0].getText(), L"(No topic)");
    EXPECT_EQ(topics[1].getText(), L"Alpha");
    EXPECT_EQ(topics[2].getText(), L"Beta");
    EXPECT_TRUE(common::UUID::tryParse(topics[1].getIdentifier()));
    EXPECT_NE(topics[1].getIdentifier(), topics[2].getIdentifier());
    topics[2].run();
    EXPECT_EQ(project.findEntity(sheet1)->getTopic(), topicB);
    topics[0].run();
    EXPECT_EQ(project.findEntity(sheet1)->getTopic(), std::nullopt);
    EXPECT_EQ(undoNames(), (std::vector<std::string>{"Change entities topic", "Change entities topic"}));
    project.getUndoHistory().undo();
    EXPECT_EQ(project.findEntity(sheet1)->getTopic(), topicB);
}

TEST_F(ContextMenuTest, AProjectWithoutTopicsStillShowsTheSubmenu)
{
    project.removeEntity(aec::EntityId(topicA.uuid()));
    project.removeEntity(aec::EntityId(topicB.uuid()));

    menuOf({sheet1});
    const std::vector<aec::CContextMenuItem>& topics = itemWithText(texts::changeTopic).getSubItems();
    ASSERT_EQ(topics.size(), 1u);
    EXPECT_EQ(topics[0].getText(), L"(No topic)");
}

TEST_F(ContextMenuTest, ResolverMakesTheExplorersItemsThenTheExtraOnes)
{
    const auto extra =
        std::make_shared<aec::composite_menu_item_provider_details::CSeparatorMenuItemProvider>();

    const aec::ContextMenuStrategy strategy = resolver.resolve(extra);

    EXPECT_EQ(resolver.getStrategyKind(), 2);
    ASSERT_EQ(strategy.size(), 2u);
    EXPECT_NE(dynamic_cast<CProjectExplorerContextMenuItemsProvider*>(strategy[0].get()), nullptr);
    EXPECT_EQ(strategy[1], extra);
}

} // namespace
} // namespace project_explorer::test
