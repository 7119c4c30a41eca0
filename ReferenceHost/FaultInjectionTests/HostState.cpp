#include "HostState.h"

#include "AecModel/Project.h"
#include "HostServices/HostServices.h"
#include "SessionUnderFaults.h"
#include "aec/DocumentGui.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace aec::fault_injection::test
{

HostState hostStateOf(CSessionUnderFaults& world)
{
    model::CProject& project = world.session.getProject();
    const IDocumentGui* const gui =
        world.session.getHostServices().getProxyAppGui().getDocumentGui(project.getDocument().getKey());
    return {project.canonicalDump(), project.getUndoHistory().getUndoNames(),
            project.getUndoHistory().getRedoNames(), gui != nullptr && gui->isFollowingChanges()};
}

void PrintTo(const HostState& state, std::ostream* stream)
{
    *stream << fmt::format("{{dump of {} bytes, undo {}, redo {}, {}}}", state.projectDump.size(),
                           state.undoNames, state.redoNames,
                           state.followingChanges ? "following changes" : "not following changes");
}

} // namespace aec::fault_injection::test
