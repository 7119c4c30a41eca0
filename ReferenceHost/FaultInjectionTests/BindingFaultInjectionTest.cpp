#include "AecModel/Project.h"
#include "AecModel/SampleProject.h"
#include "BindingAction.h"
#include "Common/AssertionViolation.h"
#include "Common/Exception.h"
#include "HostChecks/ExplorerConsistencyCheck.h"
#include "HostFrame/ExplorerPanel.h"
#include "HostFrame/GroupingButtons.h"
#include "HostFrame/Gui.h"
#include "HostFrame/StatusService.h"
#include "HostServices/HostServices.h"
#include "SessionUnderFaults.h"
#include "TestNames.h"
#include "aec/Activity.h"
#include "aec/ClipboardFormats.h"
#include "aec/Commands.h"
#include "aec/EntityTypes.h"
#include "aec/ProjectExplorerEntityController.h"
#include "aec/ProjectExplorerGroupInfo.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <iostream>
#include <map>
#include <new>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace aec::fault_injection::test
{
namespace
{

using Fault = CFaultPlan::Fault;

// The commands that the activity binds while active, and those it binds for its whole life.
constexpr std::array activeCommands{commands::importTable, commands::editProperties,
                                    commands::deleteSelection, commands::swallowed};
constexpr std::array lifelongCommands{commands::copy, commands::cut, commands::paste};

// The calls that register something with the host, and those that take a registration back.
enum class SiteKind
{
    Registration,
    Release,
};

std::optional<SiteKind> kindOf(std::string_view site)
{
    static const std::map<std::string_view, SiteKind> sites{
        {"IGui::addCommandHandler", SiteKind::Registration},
        {"IGui::setContextMenuHandler", SiteKind::Registration},
        {"IGui::registerButtonCallback", SiteKind::Registration},
        {"IGui::registerDocumentActivated", SiteKind::Registration},
        {"IGui::registerDocumentClosing", SiteKind::Registration},
        {"IClipboardListenerRegistry::addListener", SiteKind::Registration},
        {"IGui::removeCommandHandler", SiteKind::Release},
        {"IGui::clearContextMenuHandler", SiteKind::Release},
        {"IGui::unregisterButtonCallback", SiteKind::Release},
        {"IGui::releaseDocumentActivated", SiteKind::Release},
        {"IGui::releaseDocumentClosing", SiteKind::Release},
        {"IClipboardListenerRegistry::removeListener", SiteKind::Release},
    };
    const auto found = sites.find(site);
    return found == sites.end() ? std::nullopt : std::optional(found->second);
}

// Whatever the host holds of the explorer belongs to a live object: with no project open it holds
// nothing at all; with one, the view's bindings and the activity's lifelong ones, and the
// activity's others exactly while it is active.
void expectNoBindingOfADestroyedObject(CSessionUnderFaults& world)
{
    const host::CGui& gui = world.session.getGui();
    const bool open = world.session.hasProject();
    const bool active = open && gui.hasContextMenuHandler();
    EXPECT_EQ(gui.hasContextMenuHandler(), active);
    for (const int command : activeCommands)
        EXPECT_EQ(gui.hasCommandHandler(command), active) << "command " << command;
    for (const int command : lifelongCommands)
        EXPECT_EQ(gui.hasCommandHandler(command), open) << "command " << command;
    EXPECT_EQ(gui.hasDocumentActivatedRegistration(), open);
    EXPECT_EQ(gui.hasDocumentClosingRegistration(), open);
    for (const ProjectExplorerGroupInfo& group : projectExplorerGroups())
        if (const auto buttons = host::groupingButtonsOf(group))
        {
            EXPECT_EQ(gui.hasButtonCallback(buttons->panel, buttons->groupCriterion), open);
            EXPECT_EQ(gui.hasButtonCallback(buttons->panel, buttons->sortOrder), open);
        }
    // A clipboard listener left behind would be called into a destroyed activity here.
    world.session.getHostServices().getClipboard().setData(clipboardFormatProjectEntities, L"[]");
    world.session.getHostServices().getClipboard().clear();
}

// The user goes on: opens a project if none is open, switches the explorer on if it is off, copies
// a sheet through the host's command and makes a new one, which the tree shows.
void expectTheNextUserActionWorks(CSessionUnderFaults& world)
{
    if (!world.session.hasProject())
    {
        ASSERT_NO_THROW(world.session.open(model::buildSampleProject()));
    }
    host::CGui& gui = world.session.getGui();
    if (!gui.hasContextMenuHandler())
    {
        ASSERT_NO_THROW(world.session.getActivity().activate());
    }
    const host::CExplorerConsistencyCheck check(world.session);
    EXPECT_EQ(check.findDifference(), std::nullopt);

    world.select({*world.session.getProject().getEntities(EntityCollection::Sheets).begin()});
    EXPECT_NO_THROW(gui.runCommand(commands::copy));
    EXPECT_TRUE(world.session.getHostServices().getClipboard().hasData(clipboardFormatProjectEntities));
    EntityId created;
    EXPECT_NO_THROW(world.session.getEntityController().createEntity(entity_types::sheet(), created));
    EXPECT_EQ(check.findDifference(), std::nullopt) << "the tree follows the next change";
}

// Whether the failure that reached the host is the injected one; anything else (a contract
// violation above all) is a fault of the library.
bool isInjectedFailure(Fault fault)
{
    try
    {
        throw;
    }
    catch (const std::bad_alloc&)
    {
        return fault == Fault::OutOfMemory;
    }
    catch (const common::EException& error)
    {
        return fault == Fault::HostError &&
               std::string_view(error.what()).find("(injected fault at point") != std::string_view::npos;
    }
    catch (...)
    {
        return false;
    }
}

std::vector<std::string_view> sitesWithoutFault(const BindingAction& action)
{
    CSessionUnderFaults world;
    action.prepare(world);
    world.plan.count();
    action.perform(world);
    world.plan.stop();
    return world.plan.getReachedSites();
}

// The sites that the action reaches when it fails at the point: the fault-free ones up to it, then
// those of taking back what was done.
std::vector<std::string_view> sitesFailingAt(const BindingAction& action, std::size_t point)
{
    CSessionUnderFaults world;
    action.prepare(world);
    world.plan.failAt(point, Fault::HostError);
    try
    {
        action.perform(world);
    }
    catch (...)
    {
    }
    world.plan.stop();
    return world.plan.getReachedSites();
}

// Fails the action at the point (and, if given, at a later one too) and checks what the host and
// the user are left with.
void runWithFaults(const BindingAction& action, Fault fault, std::size_t point, std::size_t laterPoint,
                   std::string_view expectedSite)
{
    CSessionUnderFaults world;
    action.prepare(world);
    world.session.getStatusService().showStatus(L"");

    world.plan.failAt(point, fault);
    if (laterPoint != 0)
        world.plan.alsoFailAt(laterPoint);
    try
    {
        action.perform(world);
    }
    catch (...)
    {
        EXPECT_TRUE(isInjectedFailure(fault)) << "not the injected failure reached the host";
    }
    world.plan.stop();
    ASSERT_EQ(world.plan.getFailedSite(), expectedSite) << "the run took another way than the fault-free one";
    if (laterPoint != 0)
    {
        EXPECT_TRUE(world.plan.getLaterFailedSite().has_value()) << "the second fault was not reached";
    }

    // Closing cannot fail; what it could not release is told on the status line instead.
    if (action.name == "close the project" && laterPoint == 0 && kindOf(expectedSite) == SiteKind::Release)
    {
        EXPECT_NE(world.session.getStatusService().getLastMessage().find(L"could not release"),
                  std::wstring::npos);
    }

    expectNoBindingOfADestroyedObject(world);
    if (world.session.hasProject())
    {
        EXPECT_EQ(host::CExplorerConsistencyCheck(world.session).findDifference(), std::nullopt);
    }
    expectTheNextUserActionWorks(world);
}

class BindingFaultInjectionTest : public ::testing::TestWithParam<BindingAction>
{
};

// Every call the action makes fails once as a host error and once as memory running out.
TEST_P(BindingFaultInjectionTest, NoFailureLeavesTheHostHoldingAHandlerOfADestroyedObject)
{
    const BindingAction& action = GetParam();
    const std::vector<std::string_view> sites = sitesWithoutFault(action);
    ASSERT_FALSE(sites.empty());

    std::size_t runs = 0;
    for (const Fault fault : {Fault::HostError, Fault::OutOfMemory})
        for (std::size_t point = 1; point <= sites.size(); ++point)
        {
            SCOPED_TRACE(::testing::Message() << (fault == Fault::HostError ? "host error" : "out of memory")
                                              << " at point " << point << ", " << sites[point - 1]);
            runWithFaults(action, fault, point, 0, sites[point - 1]);
            ++runs;
            if (HasFailure())
                return;
        }
    const std::set<std::string_view> distinct(sites.begin(), sites.end());
    std::cout << "[ FAULTS   ] " << action.name << ": " << sites.size() << " fault points at "
              << distinct.size() << " sites, " << runs << " failing runs\n";
}

// A registration fails, and then a call that takes back what was registered before it fails too.
TEST_P(BindingFaultInjectionTest, ASecondFailureWhileTakingBackTheFirstLeavesNothingBehind)
{
    const BindingAction& action = GetParam();
    const std::vector<std::string_view> sites = sitesWithoutFault(action);

    std::size_t runs = 0;
    for (std::size_t point = 1; point <= sites.size(); ++point)
    {
        if (kindOf(sites[point - 1]) != SiteKind::Registration)
            continue;
        const std::vector<std::string_view> rollback = sitesFailingAt(action, point);
        for (std::size_t later = point + 1; later <= rollback.size(); ++later)
        {
            if (kindOf(rollback[later - 1]) != SiteKind::Release)
                continue;
            SCOPED_TRACE(::testing::Message() << "at point " << point << ", " << sites[point - 1]
                                              << ", then at " << later << ", " << rollback[later - 1]);
            runWithFaults(action, Fault::HostError, point, later, sites[point - 1]);
            ++runs;
            if (HasFailure())
                return;
        }
    }
    std::cout << "[ FAULTS   ] " << action.name << ": " << runs
              << " runs with a second failure while taking back\n";
}

INSTANTIATE_TEST_SUITE_P(EveryBindingAction, BindingFaultInjectionTest, ::testing::ValuesIn(bindingActions()),
                         testNameOf<BindingAction>);

} // namespace
} // namespace aec::fault_injection::test
