#include "AecApp/GroupingButtonHandler.h"

#include "Common/AssertionViolation.h"
#include "CommonTests/ViolationSite.h"
#include "RecordingGui.h"
#include "TableTranslation.h"
#include "TestGroupingModel.h"

#include <memory>

namespace aecapp_tests
{
namespace
{

using common::test::siteFile;
using common::test::violationSite;

constexpr std::uint32_t panel = 40;
constexpr std::uint32_t criterionButton = 41;
constexpr std::uint32_t sortButton = 42;
const std::string handlerFile = "AecApp/AecApp/GroupingButtonHandler.cpp";

using Items = std::vector<RecordingGui::ButtonItem>;

class GroupingButtonHandlerTest : public ::testing::Test
{
protected:
    GroupingButtonHandlerTest() { model.offer({{L"topic-key", L"Topic"}}); }

    std::unique_ptr<aec::CGroupingButtonHandler> makeHandler(aec::IGui* mainGui)
    {
        return std::make_unique<aec::CGroupingButtonHandler>(panel, criterionButton, sortButton, mainGui,
                                                             translation, model);
    }
    void choose(std::uint32_t button, const std::wstring& value)
    {
        gui.buttonCallbacks.at({panel, button})(value);
    }

    RecordingGui gui;
    TableTranslation translation{{{1159, L"No grouping"}}};
    TestGroupingModel model;
};

TEST_F(GroupingButtonHandlerTest, FillsTheCriterionButtonNowAndOnEveryModelChange)
{
    const auto handler = makeHandler(&gui);
    EXPECT_EQ(gui.resets, (std::vector<RecordingGui::Element>{
                              {panel, criterionButton}, {panel, sortButton}, {panel, 2}}));
    EXPECT_EQ((gui.buttonItems[{panel, criterionButton}]),
              (Items{{L"0", L"No grouping", true}, {L"topic-key", L"Topic", true}}));

    model.offer({{L"a", L"Level"}, {L"b", L"Material"}});
    EXPECT_EQ(gui.resets.size(), 6u);
    EXPECT_EQ((gui.buttonItems[{panel, criterionButton}]),
              (Items{{L"0", L"No grouping", true}, {L"a", L"Level", true}, {L"b", L"Material", true}}));
}

TEST_F(GroupingButtonHandlerTest, CriterionZeroClearsTheGroupingAndAnyOtherTextIsACriterion)
{
    const auto handler = makeHandler(&gui);
    choose(criterionButton, L"topic-key");
    EXPECT_EQ(model.getGroupingKeyText(), L"topic-key");
    EXPECT_EQ((gui.buttonValues[{panel, criterionButton}]), L"topic-key");
    // The button tells its observers (the desktop redraws it) of the value chosen.
    EXPECT_TRUE((gui.buttonValueNotified[{panel, criterionButton}]));

    choose(criterionButton, L"0");
    EXPECT_EQ(model.getGroupingKeyText(), std::nullopt);
    EXPECT_EQ((gui.buttonValues[{panel, criterionButton}]), L"0");

    choose(criterionButton, L"");
    EXPECT_EQ(model.getGroupingKeyText(), std::optional<std::wstring>(L""));
    EXPECT_EQ((gui.buttonValues[{panel, criterionButton}]), L"");
}

TEST_F(GroupingButtonHandlerTest, SortOrderTakesOnlyOneOrTwo)
{
    const auto handler = makeHandler(&gui);
    choose(sortButton, L"2");
    EXPECT_EQ(model.getSortOrder(), 2);
    EXPECT_EQ((gui.buttonValues[{panel, sortButton}]), L"2");
    EXPECT_TRUE((gui.buttonValueNotified[{panel, sortButton}]));
    choose(sortButton, L"1");
    EXPECT_EQ(model.getSortOrder(), 1);
    EXPECT_EQ((gui.buttonValues[{panel, sortButton}]), L"1");

    choose(sortButton, L"2");
    const auto rejected = violationSite<common::EPreconditionViolation>([&] { choose(sortButton, L"3"); });
    EXPECT_EQ(siteFile(rejected), handlerFile);
    EXPECT_EQ(model.getSortOrder(), 2);
    EXPECT_EQ((gui.buttonValues[{panel, sortButton}]), L"2");

    const auto nullGui = violationSite<common::EPreconditionViolation>([&] { makeHandler(nullptr); });
    EXPECT_EQ(siteFile(nullGui), handlerFile);
    EXPECT_NE(rejected, nullGui);
}

TEST_F(GroupingButtonHandlerTest, LetsGoOfTheButtonsAndTheModelWhenReleasedDestroyedOrNotBuilt)
{
    EXPECT_THROW(makeHandler(nullptr), common::EPreconditionViolation);
    EXPECT_TRUE(model.changedSignal().empty());

    makeHandler(&gui).reset();
    EXPECT_TRUE(gui.buttonCallbacks.empty());
    EXPECT_TRUE(model.changedSignal().empty());

    // Released before it dies, the handler no longer follows the model and the buttons are free.
    const auto released = makeHandler(&gui);
    released->release();
    EXPECT_TRUE(gui.buttonCallbacks.empty());
    EXPECT_TRUE(model.changedSignal().empty());
}

} // namespace
} // namespace aecapp_tests
