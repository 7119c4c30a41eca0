#include "AecApp/CutCopyPasteContextMenuItems.h"
#include "AecApp/DeleteCommandMenuItems.h"
#include "AecApp/EditPropertiesMenuItems.h"
#include "AecApp/OpenMenuItem.h"
#include "AecApp/SelectAllMenuItems.h"
#include "RecordingGui.h"
#include "TableTranslation.h"

#include <gtest/gtest.h>
#include <optional>

namespace aecapp_tests
{
namespace
{

struct ExpectedItem
{
    std::wstring text;
    std::string identifier;
    bool enabled;
    std::optional<int> command; // the host command that the action runs, if any
};

class StandardMenuItemsTest : public ::testing::Test
{
protected:
    // Checks the items one by one, running each action to see which command it runs.
    void expectItems(const aec::IMenuItemProvider& provider, const std::vector<ExpectedItem>& expected)
    {
        const auto items = provider.getMenuItems(translation);
        ASSERT_EQ(items.size(), expected.size());
        for (std::size_t index = 0; index < items.size(); ++index)
        {
            SCOPED_TRACE(items[index].getIdentifier());
            EXPECT_EQ(items[index].getText(), expected[index].text);
            EXPECT_EQ(items[index].getIdentifier(), expected[index].identifier);
            EXPECT_EQ(items[index].isEnabled(), expected[index].enabled);
            EXPECT_FALSE(items[index].isSeparator() || items[index].getFlag());
            EXPECT_EQ(items[index].getNumber(), 0u);
            EXPECT_TRUE(items[index].getSubItems().empty());
            gui.commandsRun.clear();
            items[index].run();
            EXPECT_EQ(gui.commandsRun,
                      expected[index].command ? std::vector{*expected[index].command} : std::vector<int>{});
        }
    }

    RecordingGui gui;
    TableTranslation translation{{{54, L"Cut"},
                                  {55, L"Copy"},
                                  {56, L"Paste"},
                                  {57, L"Select all"},
                                  {58, L"Delete"},
                                  {59, L"Properties"},
                                  {145, L"Open"}}};
};

TEST_F(StandardMenuItemsTest, CutAndCopyFollowTheSelectionAndTheHostCommands)
{
    for (const bool selectionNotEmpty : {true, false})
        for (const bool commandsEnabled : {true, false})
        {
            // A host disables cut and copy when the selection holds nothing they act on.
            gui.enableCommand(82, commandsEnabled);
            gui.enableCommand(81, !commandsEnabled || selectionNotEmpty);
            gui.enableCommand(85, !selectionNotEmpty);
            const bool copyEnabled = selectionNotEmpty;
            expectItems(
                aec::CCutCopyPasteContextMenuItems(gui, selectionNotEmpty),
                {{L"Cut", "c9856780-1496-481d-a977-04553bcd9fc7", selectionNotEmpty && commandsEnabled, 82},
                 {L"Copy", "2412a4ab-e752-4a97-b6d1-025f87df6476", copyEnabled, 81},
                 {L"Paste", "0834841d-0ddc-41e3-a852-326399aa96b5", !selectionNotEmpty, 85}});
        }
}

TEST_F(StandardMenuItemsTest, SingleItemFamiliesRunTheirCommandOrAction)
{
    for (const int command : {88, 11, 12})
        gui.enableCommand(command, true);
    expectItems(aec::CSelectAllMenuItems(gui),
                {{L"Select all", "7BF652D6-61C9-46A1-9447-A4AC9E2A57F7", true, 88}});
    for (const bool enabled : {true, false})
    {
        expectItems(aec::CDeleteCommandMenuItems(gui, enabled),
                    {{L"Delete", "0207d3e1-9328-428b-997b-a9adb0795393", enabled, 11}});
        expectItems(aec::CEditPropertiesMenuItems(gui, enabled),
                    {{L"Properties", "c2e9237b-133d-40aa-8255-fac432c29c8c", enabled, 12}});
    }

    // Made enabled, an item still follows its command's state now.
    gui.enableCommand(11, false);
    expectItems(aec::CDeleteCommandMenuItems(gui, true),
                {{L"Delete", "0207d3e1-9328-428b-997b-a9adb0795393", false, 11}});

    int opened = 0;
    for (const bool enabled : {true, false})
        expectItems(aec::COpenMenuItem([&opened] { ++opened; }, enabled),
                    {{L"Open", "5ce2e75f-2844-41bd-b9eb-e76a9e788797", enabled, std::nullopt}});
    EXPECT_EQ(opened, 2);
}

} // namespace
} // namespace aecapp_tests
