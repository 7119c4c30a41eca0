#include "AecModel/Project.h"
#include "AecModel/SampleProject.h"
#include "Common/Exception.h"
#include "HostFrame/GroupingButtons.h"
#include "HostFrame/Gui.h"
#include "HostFrame/StatusService.h"
#include "SessionUnderFaults.h"
#include "aec/Activity.h"
#include "aec/Commands.h"
#include "aec/ProjectExplorerGroupInfo.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <string_view>

namespace aec::fault_injection::test
{
namespace
{

using Step = std::function<void(CSessionUnderFaults&)>;

// The number of the point at which `perform` reaches the site for the `occurrence`-th time,
// counted on a session of its own; 0 when it never does.
std::size_t pointOf(const Step& prepare, const Step& perform, std::string_view site,
                    std::size_t occurrence = 1)
{
    CSessionUnderFaults world;
    prepare(world);
    world.plan.count();
    perform(world);
    world.plan.stop();
    const auto& sites = world.plan.getReachedSites();
    for (std::size_t point = 1; point <= sites.size(); ++point)
        if (sites[point - 1] == site && --occurrence == 0)
            return point;
    ADD_FAILURE() << site << " is not reached";
    return 0;
}

void openAnother(CSessionUnderFaults& world)
{
    world.session.open(model::buildSampleProject());
}

void nothing(CSessionUnderFaults&) {}

void close(CSessionUnderFaults& world)
{
    world.session.close();
}

// With no project open, opening one fails at the occurrence of the site; the failure reaches the
// host and the session is left without a project.
void openFailingAt(CSessionUnderFaults& world, std::string_view site, std::size_t occurrence = 1)
{
    close(world);
    const std::size_t point = pointOf(close, openAnother, site, occurrence);
    world.plan.failAt(point, CFaultPlan::Fault::HostError);
    EXPECT_THROW(openAnother(world), common::EException);
    world.plan.stop();
    EXPECT_FALSE(world.session.hasProject());
}

// Copy and cut are registered before the controller shows their state; a failure of the latter
// must take both back, or the next copy calls into a destroyed controller.
TEST(BindingDefectTest, ACopyCutControllerThatFailsToStartTakesBackBothHandlers)
{
    CSessionUnderFaults world;
    openFailingAt(world, "IGui::enableCommand");
    EXPECT_FALSE(world.session.getGui().hasCommandHandler(commands::copy));
    EXPECT_FALSE(world.session.getGui().hasCommandHandler(commands::cut));
    EXPECT_NO_THROW(openAnother(world)) << "the GUI refuses a second handler of a command";
}

TEST(BindingDefectTest, AnActivationThatFailsPartWayTakesBackWhatItBound)
{
    CSessionUnderFaults world;
    openFailingAt(world, "IGui::setContextMenuHandler");
    const host::CGui& gui = world.session.getGui();
    for (const int command : {commands::importTable, commands::editProperties, commands::deleteSelection,
                              commands::swallowed, commands::copy, commands::cut, commands::paste})
        EXPECT_FALSE(gui.hasCommandHandler(command)) << command;
    EXPECT_NO_THROW(openAnother(world));

    // Switched off and on again, the activity fails at its third command handler and stays off;
    // the next activation binds everything afresh.
    const auto deactivate = [](CSessionUnderFaults& w)
    {
        w.session.getActivity().deactivate();
    };
    const auto activate = [](CSessionUnderFaults& w)
    {
        w.session.getActivity().activate();
    };
    deactivate(world);
    world.plan.failAt(pointOf(deactivate, activate, "IGui::addCommandHandler", 3),
                      CFaultPlan::Fault::HostError);
    EXPECT_THROW(activate(world), common::EException);
    world.plan.stop();
    EXPECT_FALSE(gui.hasCommandHandler(commands::importTable));
    EXPECT_FALSE(gui.hasCommandHandler(commands::editProperties));
    EXPECT_NO_THROW(activate(world));
    EXPECT_TRUE(gui.hasCommandHandler(commands::swallowed));
    EXPECT_TRUE(gui.hasContextMenuHandler());
}

TEST(BindingDefectTest, AGroupingButtonHandlerThatFailsToStartTakesBackItsFirstCallback)
{
    CSessionUnderFaults world;
    openFailingAt(world, "IGui::registerButtonCallback", 2);
    const auto first = *host::groupingButtonsOf(
        *std::ranges::find_if(projectExplorerGroups(),
                              [](const auto& group) { return host::groupingButtonsOf(group).has_value(); }));
    EXPECT_FALSE(world.session.getGui().hasButtonCallback(first.panel, first.groupCriterion));
    EXPECT_NO_THROW(openAnother(world));
}

// Whatever fails while the project closes, the rest is released, and the user learns of it on the
// status line instead of the program ending.
TEST(BindingDefectTest, ClosingFinishesAndTellsTheStatusLineWhenTheHostFails)
{
    for (const std::string_view site :
         {"IClipboardListenerRegistry::removeListener", "IGui::removeCommandHandler",
          "IGui::clearContextMenuHandler", "IGui::enableCommand", "IGui::releaseDocumentActivated",
          "IGui::unregisterButtonCallback"})
    {
        SCOPED_TRACE(site);
        CSessionUnderFaults world;
        world.plan.failAt(pointOf(nothing, close, site), CFaultPlan::Fault::HostError);
        world.session.close();
        world.plan.stop();
        EXPECT_NE(world.session.getStatusService().getLastMessage().find(L"injected fault"),
                  std::wstring::npos);
        const host::CGui& gui = world.session.getGui();
        EXPECT_FALSE(gui.hasContextMenuHandler());
        EXPECT_FALSE(gui.hasCommandHandler(commands::copy));
        EXPECT_FALSE(gui.hasCommandHandler(commands::paste));
        EXPECT_FALSE(gui.hasDocumentClosingRegistration());
        EXPECT_NO_THROW(openAnother(world));
    }
}

} // namespace
} // namespace aec::fault_injection::test
