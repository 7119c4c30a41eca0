// Reads the input as a project's stored preferences and opens the project in the reference host's
// explorer session, as loading a project file does. Stored state that does not read is dropped
// with a message on the status line, never a crash; what reads comes back in the explorer; and the
// state the explorer stores again always reads cleanly.

#include "AecModel/Project.h"
#include "AecModel/ProjectPreferences.h"
#include "AecModel/SampleProject.h"
#include "AecModel/WideText.h"
#include "HostFrame/ExplorerSession.h"
#include "HostFrame/StatusService.h"
#include "Support/FuzzCheck.h"
#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerGroupInfo.h"
#include "aec/ProjectExplorerGroupingModel.h"

#include <cstddef>
#include <cstdint>
#include <fmt/format.h>
#include <fmt/ranges.h>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace
{

using namespace aec;

// One session for the whole run, as a host program keeps one: opening a project replaces the last.
host::CExplorerSession& session()
{
    static host::CExplorerSession explorerSession(42);
    return explorerSession;
}

bool groupable(const common::UUID& groupId)
{
    for (const ProjectExplorerGroupInfo& info : projectExplorerGroups())
        if (info.id == groupId)
            return info.groupable;
    return false;
}

// The grouping the group shows after a restore: the stored key where the group can use it, else
// the one it had.
PropertyAssignmentKey restoredKey(const common::UUID& groupId, const ProjectExplorerGroupState& stored)
{
    const PropertyAssignmentKey key(stored.groupingPath, stored.groupingProperty);
    if (key == PropertyAssignmentKey::noGrouping() ||
        (groupable(groupId) && key == PropertyAssignmentKey::topic()))
        return key;
    return PropertyAssignmentKey::noGrouping();
}

void checkRestored(const ProjectExplorerState& stored)
{
    for (const IProjectExplorerGroup& group : session().getExplorer().getGroups())
    {
        const auto found = stored.find(group.getId());
        if (found == stored.end())
            continue;
        const IProjectExplorerGroupingModel& model = group.getGroupingModel();
        FUZZ_CHECK(model.getSortOrder() == static_cast<int>(found->second.sortOrder));
        FUZZ_CHECK(model.getGroupingKey() == restoredKey(group.getId(), found->second));
        FUZZ_CHECK(group.isExpanded() == found->second.expanded);
    }
}

void checkStoredState(std::string_view text)
{
    auto project = model::buildSampleProject();
    project->getPreferences().fromJsonText(text);
    const std::vector<std::string> warnings = project->getPreferences().getWarnings();
    const std::optional<ProjectExplorerState> stored = project->getPreferences().getProjectExplorerState();
    for (const std::string& warning : warnings)
        FUZZ_CHECK(!warning.empty() && warning.ends_with('.'));

    session().open(std::move(project));
    if (!warnings.empty())
        FUZZ_CHECK(session().getStatusService().getLastMessage() ==
                   model::fromUtf8(fmt::format("{}", fmt::join(warnings, " "))));
    if (stored)
        checkRestored(*stored);

    // Whatever the explorer keeps now is stored in a form that reads back whole.
    const model::CProjectPreferences& kept = session().getProject().getPreferences();
    model::CProjectPreferences reread;
    reread.fromJsonText(kept.toJson().dump());
    FUZZ_CHECK(reread.getWarnings().empty());
    FUZZ_CHECK(reread.getProjectExplorerState() == kept.getProjectExplorerState());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    return fuzz::runOneInput(
        [&] { checkStoredState(std::string_view(reinterpret_cast<const char*>(data), size)); });
}
