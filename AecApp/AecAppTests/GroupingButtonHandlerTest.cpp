#include "RecordingGui.h"
#include "TableTranslation.h"
#include "TestGroupingModel.h"
#include "ViolationMessage.h"

#include "AecApp/GroupingButtonHandler.h"

#include "Common/AssertionViolation.h"

#include <gtest/gtest.h>

#include <memory>

namespace aecapp_tests
{
namespace
{

constexpr std::uint32_t panel = 40;
constexpr std::uint32_t criterionButton = 41;
constexpr std::uint32_t sortButton = 42;
constexpr char handlerFile[] = "AecApp/AecApp/GroupingButtonHandler.cpp";

using Items = std::vector<RecordingGui::ButtonItem>;

class GroupingButtonHandlerTest : public ::testing::Test
{
protected:
    GroupingButtonHandlerTest()
    {
        model.offer({{L"f8b4e25e-ab43-48ad-b921-fcc9655d2652", L"Topic"}});
        handler = std::make_unique<aec::CGroupingButtonHandler>(panel, criterionButton, sortButton, &gui,
                                                                translation, model);
    }

    void chooseCriterion(const std::wstring& value) { gui.choose(panel, criterionButton, value); }
    void chooseSortOrder(const std::wstring& value) { gui.choose(panel, sortButton, value); }
    const Items& criterionItems() { return gui.buttonItems[{panel, criterionButton}]; }

    RecordingGui gui;
    TableTranslation translation{{{1159, L"No grouping"}}};
    TestGroupingModel model;
    std::unique_ptr<aec::CGroupingButtonHandler> handler;
};

TEST_F(GroupingButtonHandlerTest, FillsTheCriterionButtonFromTheModel)
{
    EXPECT_EQ(gui.resets, (std::vector<RecordingGui::Element>{{panel, criterionButton}, {panel, sortButton}, {panel, 2}}));
    EXPECT_EQ(criterionItems(), (Items{{L"0", L"No grouping", true},
                                       {L"f8b4e25e-ab43-48ad-b921-fcc9655d2652", L"Topic", true}}));
    EXPECT_TRUE(gui.buttonCallbacks.contains({panel, criterionButton}));
    EXPECT_TRUE(gui.buttonCallbacks.contains({panel, sortButton}));
}

TEST_F(GroupingButtonHandlerTest, RefillsTheCriterionButtonOnEveryModelChange)
{
    gui.resets.clear();
    model.offer({{L"a", L"Level"}, {L"b", L"Material"}});
    EXPECT_EQ(gui.resets.size(), 3u);
    EXPECT_EQ(criterionItems(), (Items{{L"0", L"No grouping", true}, {L"a", L"Level", true}, {L"b", L"Material", true}}));
}

TEST_F(GroupingButtonHandlerTest, CriterionZeroClearsTheGroupingAndAnyOtherTextIsACriterion)
{
    chooseCriterion(L"f8b4e25e-ab43-48ad-b921-fcc9655d2652");
    EXPECT_EQ(model.getGroupingKeyText(), L"f8b4e25e-ab43-48ad-b921-fcc9655d2652");

    chooseCriterion(L"0");
    EXPECT_EQ(model.getGroupingKeyText(), std::nullopt);
    EXPECT_EQ((gui.buttonValues[{panel, criterionButton}]), L"0");

    chooseCriterion(L"");
    EXPECT_EQ(model.getGroupingKeyText(), std::optional<std::wstring>(L""));
    EXPECT_EQ((gui.buttonValues[{panel, criterionButton}]), L"");
    EXPECT_EQ(criterionItems().front().value, L"0");
}

TEST_F(GroupingButtonHandlerTest, SortOrderTakesOnlyOneOrTwo)
{
    chooseSortOrder(L"2");
    EXPECT_EQ(model.getSortOrder(), 2);
    EXPECT_EQ((gui.buttonValues[{panel, sortButton}]), L"2");
    chooseSortOrder(L"1");
    EXPECT_EQ(model.getSortOrder(), 1);
    EXPECT_EQ((gui.buttonValues[{panel, sortButton}]), L"1");

    const int settersBefore = model.sortOrderSetterCalls;
    const auto message = violationMessage<common::EPreconditionViolation>([&] { chooseSortOrder(L"3"); });
    EXPECT_TRUE(isSiteInFile(message, handlerFile)) << message;
    EXPECT_EQ(model.sortOrderSetterCalls, settersBefore);
    EXPECT_EQ((gui.buttonValues[{panel, sortButton}]), L"1");

    const auto nullGuiMessage = violationMessage<common::EPreconditionViolation>(
        [&] { aec::CGroupingButtonHandler second(panel, criterionButton, sortButton, nullptr, translation, model); });
    EXPECT_NE(message, nullGuiMessage);
}

TEST_F(GroupingButtonHandlerTest, DestructionLetsGoOfTheButtonsAndTheModel)
{
    handler.reset();
    EXPECT_TRUE(gui.buttonCallbacks.empty());
    gui.resets.clear();
    model.offer({});
    EXPECT_TRUE(gui.resets.empty());
}

TEST(GroupingButtonHandlerConstructionTest, NullGuiRegistersNothing)
{
    TestGroupingModel model;
    const TableTranslation translation({{1159, L"No grouping"}});
    const auto message = violationMessage<common::EPreconditionViolation>(
        [&] { aec::CGroupingButtonHandler handler(panel, criterionButton, sortButton, nullptr, translation, model); });
    EXPECT_TRUE(isSiteInFile(message, handlerFile)) << message;
    EXPECT_TRUE(model.changedSignal().empty());
}

} // namespace
} // namespace aecapp_tests
