#include "HostFrame/Gui.h"

#include "Common/AssertionViolation.h"
#include "Common/Exception.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace aec::host
{
namespace
{

using ::testing::ElementsAre;
using ::testing::HasSubstr;

constexpr std::uint32_t panel = 840;
constexpr std::uint32_t criterionButton = 847;
constexpr std::uint32_t sortButton = 854;

// The message of the common::EException that `action` throws, or a failure when it throws none.
template <class Action>
std::string exceptionMessage(Action&& action)
{
    try
    {
        action();
    }
    catch (const common::EException& exception)
    {
        return exception.what();
    }
    ADD_FAILURE() << "no common::EException was thrown";
    return {};
}

TEST(GuiTest, CommandsRunOnlyWithAHandlerWhileEnabled)
{
    CGui gui;
    std::vector<std::string> runs;
    gui.addCommandHandler(11, 0, [&runs] { runs.push_back("delete"); });
    gui.addCommandHandler(11, 1, [&runs] { runs.push_back("delete, second variant"); });

    EXPECT_TRUE(gui.isCommandEnabled(11)) << "a command is enabled until it is disabled";
    gui.runCommand(11);
    EXPECT_THAT(runs, ElementsAre("delete"));

    gui.enableCommand(11, false);
    EXPECT_FALSE(gui.canRunCommand(11));
    EXPECT_THAT(exceptionMessage([&gui] { gui.runCommand(11); }), HasSubstr("Command 11 is disabled"));
    gui.enableCommand(11, true);
    gui.removeCommandHandler(11, 0);
    EXPECT_THAT(exceptionMessage([&gui] { gui.runCommand(11); }), HasSubstr("nothing handles it"));
    EXPECT_THAT(runs, ElementsAre("delete")) << "a refused command runs nothing";
    EXPECT_TRUE(gui.hasCommandHandler(11, 1));

    // Availability and claim are shown, not enforced.
    gui.addCommandHandler(86, 0, [&runs] { runs.push_back("import"); });
    gui.setCommandAvailable(86, false);
    gui.setCommandClaimed(86, true);
    EXPECT_FALSE(gui.isCommandAvailable(86));
    EXPECT_TRUE(gui.isCommandClaimed(86));
    EXPECT_TRUE(gui.isCommandAvailable(87));
    EXPECT_FALSE(gui.isCommandClaimed(87));
    gui.runCommand(86);
    EXPECT_EQ(runs.back(), "import");
}

TEST(GuiTest, ARunningHandlerMayRemoveItself)
{
    CGui gui;
    int runs = 0;
    gui.addCommandHandler(22, 0,
                          [&]
                          {
                              gui.removeCommandHandler(22, 0);
                              ++runs;
                          });
    gui.runCommand(22);
    EXPECT_EQ(runs, 1);
    EXPECT_FALSE(gui.hasCommandHandler(22));
}

TEST(GuiTest, DoubleRegistrationsAndMissingRemovalsBreakTheContract)
{
    CGui gui;
    gui.addCommandHandler(81, 0, [] {});
    EXPECT_THROW(gui.addCommandHandler(81, 0, [] {}), common::EPreconditionViolation);
    EXPECT_THROW(gui.removeCommandHandler(82, 0), common::EPreconditionViolation);

    gui.registerButtonCallback(panel, criterionButton, [](const std::wstring&) {});
    EXPECT_THROW(gui.registerButtonCallback(panel, criterionButton, [](const std::wstring&) {}),
                 common::EPreconditionViolation);
    gui.unregisterButtonCallback(panel, criterionButton);
    EXPECT_THROW(gui.unregisterButtonCallback(panel, criterionButton), common::EPreconditionViolation);

    int activations = 0;
    gui.registerDocumentActivated([&activations](unsigned long key)
                                  { activations += static_cast<int>(key); });
    EXPECT_THROW(gui.registerDocumentActivated([](unsigned long) {}), common::EPreconditionViolation);
    gui.notifyDocumentActivated(3);
    EXPECT_EQ(activations, 3);
    gui.releaseDocumentActivated();
    EXPECT_FALSE(gui.hasDocumentActivatedRegistration());
    gui.notifyDocumentActivated(3);
    EXPECT_EQ(activations, 3) << "a released notification is not told";
    EXPECT_THROW(gui.releaseDocumentActivated(), common::EPreconditionViolation);
    EXPECT_THROW(gui.releaseDocumentClosing(), common::EPreconditionViolation);
}

TEST(GuiTest, ContextMenuIsRequestedShownAndChosenFrom)
{
    CGui gui;
    EXPECT_THAT(exceptionMessage([&gui] { gui.requestContextMenu({}); }), HasSubstr("No context menu"));

    std::vector<std::string> ran;
    CContextMenuItem submenu(L"Change topic", "topic", {}, true, false, 144);
    submenu.addSubItem(CContextMenuItem(
        L"Level 1", "level", [&ran] { ran.push_back("level 1"); }, true, false, 0));
    const std::vector<CContextMenuItem> items{
        CContextMenuItem(
            L"Copy", "copy", [&ran] { ran.push_back("copy"); }, true, false, 55),
        CContextMenuItem(CContextMenuItem::SeparatorTag{}),
        CContextMenuItem(
            L"Paste", "paste", [&ran] { ran.push_back("paste"); }, false, false, 56),
        submenu,
    };
    gui.setContextMenuHandler([&gui, &items](const MbCartPoint& point)
                              { gui.showContextMenu(items, point); });
    int shown = 0;
    gui.contextMenuShownSignal().connect(
        [&shown](const std::vector<CContextMenuItem>& menu, const MbCartPoint&)
        { shown += static_cast<int>(menu.size()); });

    gui.requestContextMenu({4.0, 2.0});
    EXPECT_EQ(shown, 4);
    EXPECT_EQ(gui.getLastContextMenuPoint(), (MbCartPoint{4.0, 2.0}));
    ASSERT_EQ(gui.getLastContextMenu().size(), 4u);

    for (const std::vector<std::size_t>& refused : {std::vector<std::size_t>{1}, {2}, {3}, {4}, {3, 1}, {}})
        EXPECT_NE(exceptionMessage([&] { gui.chooseContextMenuItem(refused); }), "");
    EXPECT_TRUE(ran.empty());

    gui.chooseContextMenuItem(std::array<std::size_t, 2>{3, 0});
    EXPECT_THAT(ran, ElementsAre("level 1"));
    EXPECT_TRUE(gui.getLastContextMenu().empty()) << "a chosen item closes the menu";
    EXPECT_THAT(exceptionMessage([&gui] { gui.chooseContextMenuItem(std::array<std::size_t, 1>{0}); }),
                HasSubstr("No context menu is open"));

    gui.clearContextMenuHandler();
    EXPECT_FALSE(gui.hasContextMenuHandler());
}

TEST(GuiTest, ButtonValuesAreChosenFromTheEnabledItems)
{
    CGui gui;
    std::vector<std::wstring> chosen;
    EXPECT_THAT(exceptionMessage([&gui] { gui.chooseButtonValue(panel, criterionButton, L"0"); }),
                HasSubstr("Nothing handles button 847 of panel 840"));

    gui.registerButtonCallback(panel, criterionButton,
                               [&](const std::wstring& value) { chosen.push_back(value); });
    gui.addButtonItem(panel, criterionButton, L"0", L"No grouping", true);
    gui.addButtonItem(panel, criterionButton, L"topic", L"Topic", true);
    gui.addButtonItem(panel, criterionButton, L"off", L"Unavailable", false);

    gui.chooseButtonValue(panel, criterionButton, L"topic");
    EXPECT_THAT(chosen, ElementsAre(L"topic"));
    EXPECT_THAT(exceptionMessage([&gui] { gui.chooseButtonValue(panel, criterionButton, L"off"); }),
                HasSubstr("choose one of: 0, topic"));
    EXPECT_THAT(exceptionMessage([&gui] { gui.chooseButtonValue(panel, criterionButton, L""); }),
                HasSubstr("is not a choice"));
    EXPECT_EQ(chosen.size(), 1u);
}

TEST(GuiTest, ResetEmptiesItemsKeepsTheValueAndRefillsSortButtons)
{
    CGui gui;
    std::vector<std::pair<std::uint32_t, std::uint32_t>> changes;
    gui.buttonChangedSignal().connect([&changes](std::uint32_t changedPanel, std::uint32_t button)
                                      { changes.emplace_back(changedPanel, button); });
    gui.registerSortButton(panel, sortButton, L"Ascending", L"Descending");
    gui.addButtonItem(panel, criterionButton, L"0", L"No grouping", true);
    gui.setButtonValue(panel, criterionButton, L"0", false);
    gui.setButtonValue(panel, sortButton, L"2", true);
    EXPECT_EQ(changes.size(), 3u) << "a value set without notice is not told";

    gui.resetButtonItems(panel, criterionButton);
    gui.resetButtonItems(panel, sortButton);
    gui.resetButtonItems(panel, 2); // an element never filled
    EXPECT_TRUE(gui.getButtonItems(panel, criterionButton).empty());
    EXPECT_EQ(gui.getButtonValue(panel, criterionButton), L"0");
    EXPECT_THAT(
        gui.getButtonItems(panel, sortButton),
        ElementsAre(CGui::ButtonItem{L"1", L"Ascending", true}, CGui::ButtonItem{L"2", L"Descending", true}));
    EXPECT_EQ(gui.getButtonValue(panel, sortButton), L"2");
    EXPECT_FALSE(gui.getButtonValue(panel, 2).has_value());
    EXPECT_EQ(changes.size(), 5u);

    std::wstring order;
    gui.registerButtonCallback(panel, sortButton, [&order](const std::wstring& value) { order = value; });
    gui.chooseButtonValue(panel, sortButton, L"1");
    EXPECT_EQ(order, L"1");
    EXPECT_THROW(gui.chooseButtonValue(panel, sortButton, L"3"), common::EException);
}

} // namespace
} // namespace aec::host
