#include "AecModel/Project.h"
#include "AecModel/SampleProject.h"
#include "HostChecks/HostCallLog.h"
#include "HostFrame/ExplorerSession.h"
#include "HostFrame/GroupingButtons.h"
#include "aec/Activity.h"
#include "aec/ProjectExplorerGroupInfo.h"

#include <algorithm>
#include <fmt/format.h>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace aec::host::test
{
namespace
{

using Calls = std::vector<std::string>;

// The calls that bind, release or set the state of something; what fills the grouping buttons'
// item lists and queries are left out.
Calls bindingCalls(const Calls& calls)
{
    static const std::set<std::string_view> binding{
        "addCommandHandler",
        "removeCommandHandler",
        "setCommandAvailable",
        "setCommandClaimed",
        "setContextMenuHandler",
        "clearContextMenuHandler",
        "enableCommand",
        "registerButtonCallback",
        "unregisterButtonCallback",
        "registerDocumentActivated",
        "registerDocumentClosing",
        "releaseDocumentActivated",
        "releaseDocumentClosing",
        "addListener",
        "removeListener",
    };
    Calls kept;
    std::ranges::copy_if(calls, std::back_inserter(kept),
                         [](const std::string& call)
                         { return binding.contains(std::string_view(call).substr(0, call.find(' '))); });
    return kept;
}

Calls concatenated(std::initializer_list<Calls> parts)
{
    Calls all;
    for (const Calls& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

// What setGui binds: the two document notifications, then each group's two button callbacks, the
// criterion's first, in the explorer's order of groups.
Calls setGuiCalls()
{
    Calls calls{"registerDocumentActivated", "registerDocumentClosing"};
    for (const ProjectExplorerGroupInfo& group : projectExplorerGroups())
        if (const auto buttons = groupingButtonsOf(group))
        {
            calls.push_back(
                fmt::format("registerButtonCallback {} {}", buttons->panel, buttons->groupCriterion));
            calls.push_back(fmt::format("registerButtonCallback {} {}", buttons->panel, buttons->sortOrder));
        }
    return calls;
}

// A new activity: its paste controller takes the paste command, the copy/cut controller takes
// copy and cut and shows them unavailable for the empty selection, then the activation.
const Calls activityConstructionCalls{
    "addCommandHandler 85 0", "addCommandHandler 81 0", "addCommandHandler 82 0",
    "enableCommand 81 false", "enableCommand 82 false",
};

const Calls activateCalls{
    "addCommandHandler 86 0",
    "addCommandHandler 12 0",
    "addCommandHandler 11 0",
    "addCommandHandler 22 0",
    "setCommandClaimed 809 true",
    "setCommandAvailable 79 false",
    "setCommandAvailable 78 false",
    "setCommandAvailable 69 false",
    "setCommandAvailable 70 false",
    "setCommandAvailable 73 false",
    "setCommandAvailable 74 false",
    "setCommandAvailable 76 true",
    "setCommandAvailable 75 true",
    "setCommandAvailable 86 true",
    "setCommandClaimed 487 false",
    "setCommandClaimed 83 true",
    "setCommandClaimed 84 true",
    "setCommandAvailable 87 false",
    "setContextMenuHandler",
    "addListener",
    // The clipboard tells a new listener its content at once: empty, so no paste.
    "enableCommand 85 false",
};

const Calls deactivateCalls{
    "removeListener",
    "removeCommandHandler 86 0",
    "removeCommandHandler 11 0",
    "removeCommandHandler 22 0",
    "removeCommandHandler 12 0",
    "setCommandClaimed 83 false",
    "clearContextMenuHandler",
};

// After deactivation, the copy/cut controller, then the paste controller.
const Calls activityDestructionCalls{
    "enableCommand 81 false",    "enableCommand 82 false",    "removeCommandHandler 81 0",
    "removeCommandHandler 82 0", "removeCommandHandler 85 0",
};

// The document notifications, first and second, then each group's button callbacks.
Calls viewDestructionCalls()
{
    Calls calls{"releaseDocumentActivated", "releaseDocumentClosing"};
    for (const ProjectExplorerGroupInfo& group : projectExplorerGroups())
        if (const auto buttons = groupingButtonsOf(group))
        {
            calls.push_back(
                fmt::format("unregisterButtonCallback {} {}", buttons->panel, buttons->sortOrder));
            calls.push_back(
                fmt::format("unregisterButtonCallback {} {}", buttons->panel, buttons->groupCriterion));
        }
    return calls;
}

class BindingOrderTest : public ::testing::Test
{
protected:
    CHostCallLog log;
    CExplorerSession session{std::nullopt, &log};
};

TEST_F(BindingOrderTest, OpeningAProjectBindsTheViewThenTheActivityInTheirOrder)
{
    session.open(model::buildSampleProject());
    EXPECT_EQ(bindingCalls(log.getCalls()),
              concatenated({setGuiCalls(), activityConstructionCalls, activateCalls}));
}

TEST_F(BindingOrderTest, DeactivationAndActivationKeepTheirOrder)
{
    session.open(model::buildSampleProject());
    log.clear();
    session.getActivity().deactivate();
    EXPECT_EQ(bindingCalls(log.getCalls()), deactivateCalls);

    log.clear();
    session.getActivity().activate();
    EXPECT_EQ(bindingCalls(log.getCalls()), activateCalls);
}

TEST_F(BindingOrderTest, ClosingReleasesTheActivityThenTheView)
{
    session.open(model::buildSampleProject());
    log.clear();
    session.close();
    EXPECT_EQ(bindingCalls(log.getCalls()),
              concatenated({deactivateCalls, activityDestructionCalls, viewDestructionCalls()}));
}

TEST_F(BindingOrderTest, AnInactiveActivityGoesWithoutDeactivatingAgain)
{
    session.open(model::buildSampleProject());
    session.getActivity().deactivate();
    log.clear();
    session.close();
    EXPECT_EQ(bindingCalls(log.getCalls()), concatenated({activityDestructionCalls, viewDestructionCalls()}));
}

} // namespace
} // namespace aec::host::test
