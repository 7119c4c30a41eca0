#include "AecModel/Project.h"
#include "Common/AssertionViolation.h"
#include "Common/Exception.h"
#include "HostChecks/ExplorerConsistencyCheck.h"
#include "HostState.h"
#include "ReplayActions.h"
#include "SessionUnderFaults.h"
#include "TestNames.h"
#include "UserAction.h"
#include "aec/EntityTypes.h"
#include "aec/ProjectExplorerEntityController.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <iostream>
#include <new>
#include <set>
#include <string>
#include <string_view>
#include <utility>

namespace aec::fault_injection::test
{
namespace
{

using Fault = CFaultPlan::Fault;

// What the action did when nothing failed.
struct FaultFreeRun
{
    std::vector<std::string_view> sites;
    HostState after;
};

// How a run with a fault ended for the user.
struct Outcome
{
    enum class Kind
    {
        // The action completed: the library dealt with the failure itself.
        Completed,
        // The injected failure reached the host program, which shows it to the user.
        InjectedFailure,
        // Something else escaped: a contract violation, or another exception.
        OtherFailure,
    };
    Kind kind;
    std::string what;
};

Outcome perform(const UserAction& action, CSessionUnderFaults& world, Fault fault)
{
    try
    {
        action.perform(world);
        return {Outcome::Kind::Completed, {}};
    }
    catch (const std::bad_alloc& error)
    {
        return {fault == Fault::OutOfMemory ? Outcome::Kind::InjectedFailure : Outcome::Kind::OtherFailure,
                error.what()};
    }
    catch (const common::EException& error)
    {
        const bool injected =
            fault == Fault::HostError &&
            std::string_view(error.what()).find("(injected fault at point") != std::string_view::npos;
        return {injected ? Outcome::Kind::InjectedFailure : Outcome::Kind::OtherFailure, error.what()};
    }
    catch (const common::EAssertionViolation& violation)
    {
        return {Outcome::Kind::OtherFailure, violation.what()};
    }
    catch (const std::exception& error)
    {
        return {Outcome::Kind::OtherFailure, error.what()};
    }
}

// A failed action must leave the project free for the next one: no operation still running, no
// transaction, batch or edit left open, so the next change is one undo step of its own and the
// tree follows it.
void expectFreeForTheNextAction(CSessionUnderFaults& world, const host::CExplorerConsistencyCheck& check)
{
    const std::size_t stepsBefore = world.session.getUndoHistory().getUndoNames().size();
    EntityId created;
    EXPECT_NO_THROW(world.session.getEntityController().createEntity(entity_types::sheet(), created));
    EXPECT_NE(world.session.getProject().findEntity(created), nullptr);
    EXPECT_EQ(world.session.getUndoHistory().getUndoNames().size(), stepsBefore + 1)
        << "the next change makes an undo step of its own";
    EXPECT_EQ(check.findDifference(), std::nullopt) << "the tree follows the next change";
}

FaultFreeRun runWithoutFault(const UserAction& action)
{
    CSessionUnderFaults world;
    action.prepare(world);
    const host::CExplorerConsistencyCheck check(world.session);
    EXPECT_EQ(check.findDifference(), std::nullopt) << "before the action";
    const HostState before = hostStateOf(world);

    world.plan.count();
    action.perform(world);
    world.plan.stop();

    FaultFreeRun run{world.plan.getReachedSites(), hostStateOf(world)};
    EXPECT_EQ(check.findDifference(), std::nullopt) << "after the action";
    if (action.changesProject)
    {
        EXPECT_NE(run.after.projectDump, before.projectDump);
        EXPECT_NE(run.after.undoNames, before.undoNames) << "the change moves a step of the history";
    }
    else
        EXPECT_EQ(run.after, before);
    return run;
}

// A direct rename names its origin to the project once more after the edit has closed. The
// project's failure there is the host's to report, although the rename is made by then: the one
// failure that reaches the user with the change in place.
bool failsAfterTheChangeIsMade(const FaultFreeRun& faultFree, std::size_t point)
{
    return point == faultFree.sites.size() && faultFree.sites[point - 1] == "IProject::setChangeOrigin";
}

void runWithFault(const UserAction& action, std::size_t point, Fault fault, const FaultFreeRun& faultFree)
{
    CSessionUnderFaults world;
    action.prepare(world);
    const host::CExplorerConsistencyCheck check(world.session);
    const HostState before = hostStateOf(world);

    world.plan.failAt(point, fault);
    const Outcome outcome = perform(action, world, fault);
    world.plan.stop();

    ASSERT_EQ(world.plan.getFailedSite(), faultFree.sites[point - 1])
        << "the run took another way than the fault-free one";
    switch (outcome.kind)
    {
    case Outcome::Kind::InjectedFailure:
        if (failsAfterTheChangeIsMade(faultFree, point))
            EXPECT_EQ(hostStateOf(world), faultFree.after) << "the change is made before the project fails";
        else
            EXPECT_EQ(hostStateOf(world), before) << "a failed action leaves everything as it was";
        break;
    case Outcome::Kind::Completed:
        EXPECT_EQ(hostStateOf(world), faultFree.after)
            << "an action that hides a failure must complete in full";
        break;
    case Outcome::Kind::OtherFailure:
        ADD_FAILURE() << "not the injected failure reached the user but: " << outcome.what;
        break;
    }
    EXPECT_EQ(check.findDifference(), std::nullopt) << "the tree shows the project";
    expectFreeForTheNextAction(world, check);
}

class FaultInjectionTest : public ::testing::TestWithParam<UserAction>
{
};

// For every fault point that the action reaches, a run fails there, once as the host reporting an
// error and once as memory running out.
TEST_P(FaultInjectionTest, NoFailureOfAHostServiceLeavesAHalfMadeChange)
{
    const UserAction& action = GetParam();
    const FaultFreeRun faultFree = runWithoutFault(action);
    ASSERT_FALSE(HasFailure());
    ASSERT_FALSE(faultFree.sites.empty());

    std::size_t runs = 0;
    for (const Fault fault : {Fault::HostError, Fault::OutOfMemory})
        for (std::size_t point = 1; point <= faultFree.sites.size(); ++point)
        {
            SCOPED_TRACE(::testing::Message() << (fault == Fault::HostError ? "host error" : "out of memory")
                                              << " at point " << point << ", " << faultFree.sites[point - 1]);
            runWithFault(action, point, fault, faultFree);
            ++runs;
            // The first failing point tells what is wrong; the ones after it mostly repeat it.
            if (HasFailure())
                return;
        }
    const std::set<std::string_view> sites(faultFree.sites.begin(), faultFree.sites.end());
    std::cout << "[ FAULTS   ] " << action.name << ": " << faultFree.sites.size() << " fault points at "
              << sites.size() << " sites, " << runs << " failing runs\n";
}

// The project's failure to take the origin of a finished direct rename reaches the user.
TEST(FaultInjectionDirectRenameTest, TheProjectsLastFailureReachesTheCaller)
{
    const auto action =
        std::ranges::find(userActions(), "rename a door style from the context menu", &UserAction::name);
    ASSERT_NE(action, userActions().end());
    const FaultFreeRun faultFree = runWithoutFault(*action);
    ASSERT_FALSE(faultFree.sites.empty());
    ASSERT_EQ(faultFree.sites.back(), "IProject::setChangeOrigin");

    CSessionUnderFaults world;
    action->prepare(world);
    world.plan.failAt(faultFree.sites.size(), Fault::HostError);
    EXPECT_EQ(perform(*action, world, Fault::HostError).kind, Outcome::Kind::InjectedFailure);
    world.plan.stop();
    EXPECT_EQ(hostStateOf(world), faultFree.after);
}

INSTANTIATE_TEST_SUITE_P(EveryModelChangingAction, FaultInjectionTest, ::testing::ValuesIn(userActions()),
                         testNameOf<UserAction>);
INSTANTIATE_TEST_SUITE_P(UndoAndRedoOfEveryModelChangingAction, FaultInjectionTest,
                         ::testing::ValuesIn(replayActions()), testNameOf<UserAction>);

// The host services that the actions must meet through the decorations; a service that none of
// them reaches would never fail, and its failures would go untested.
const std::set<std::string_view>& servicesThatMustFail()
{
    static const std::set<std::string_view> sites{
        "IAttributeValueFormatter::format",
        "IChangeNotificationBatch::close",
        "IChangeNotificationBatch::open",
        "IClipboard::getData",
        "IClipboard::setData",
        "ICopyDataBuilder::build",
        "IDocumentGui::handleEntity",
        "IDocumentGui::setFollowingChanges",
        "IEditCommand::setName",
        "IEditingService::beginEdit",
        "IEditingService::createCommand",
        "IEditingService::endEdit",
        "IEditingService::submit, after its work",
        "IEntity::getPropertyValue",
        "IEntity::getType",
        "IEntityClassifier::classifyAsDocument",
        "IEntitySource::getEntities",
        "IEntityTypeHandler::create, after its work",
        "IEntityTypeHandler::remove, after its work",
        "IEntityTypeHandler::rename, after its work",
        "IEntityWithTopic::setTopic, after its work",
        "IGeneralPurposeDialogService::ask",
        "IGui::enableCommand",
        "IGui::isCommandEnabled",
        "IGui::runCommand",
        "IGui::showContextMenu",
        "IImportFileDialog::askForFile",
        "IOperationGuardSource::createGuard",
        "IPasteHandler::paste, after its work",
        "IProject::prepareTopicChange",
        "IProject::setChangeOrigin",
        "IProjectEntityPasteDataSessionSerializer::deserialize",
        "IProjectEntityPasteDataSessionSerializer::serialize",
        "IProjectExplorerPanel::onObjectsChanged",
        "IProjectPreferences::setProjectExplorerState",
        "IProjectSessionManager::getCurrentProject",
        "ITitleBlockIO::importTable, after its work",
        "ITransaction::commit",
        "ITransactionHost::openTransaction",
        "ITranslation::fillIn",
        "ITranslation::getText",
    };
    return sites;
}

TEST(FaultInjectionCoverageTest, TheActionsReachEveryHostService)
{
    std::set<std::string_view> reached;
    std::size_t injectionPoints = 0;
    std::size_t faultPoints = 0;
    for (const UserAction& action : userActions())
    {
        const FaultFreeRun run = runWithoutFault(action);
        const std::set<std::string_view> sites(run.sites.begin(), run.sites.end());
        injectionPoints += sites.size();
        faultPoints += run.sites.size();
        reached.insert(sites.begin(), sites.end());
    }
    for (const std::string_view site : servicesThatMustFail())
        EXPECT_TRUE(reached.contains(site)) << site << " is never reached";
    std::cout << "[ FAULTS   ] " << injectionPoints << " injection points (sites x operations) over "
              << userActions().size() << " operations and " << reached.size() << " sites; " << faultPoints
              << " fault points, each failed twice (host error, out of memory)\n";
}

// Undo and redo meet the host's services only while the explorer follows the replay.
TEST(FaultInjectionCoverageTest, TheReplaysReachTheServicesThatFollowAChange)
{
    std::set<std::string_view> reached;
    std::size_t faultPoints = 0;
    for (const UserAction& action : replayActions())
    {
        const FaultFreeRun run = runWithoutFault(action);
        faultPoints += run.sites.size();
        reached.insert(run.sites.begin(), run.sites.end());
    }
    EXPECT_TRUE(reached.contains("IProjectExplorerPanel::onObjectsChanged"));
    std::cout << "[ FAULTS   ] " << replayActions().size() << " undo and redo operations reach "
              << reached.size() << " sites; " << faultPoints
              << " fault points, each failed twice (host error, out of memory)\n";
}

} // namespace
} // namespace aec::fault_injection::test
