#include "FaultInjection/FaultyProjectPreferences.h"

#include "FaultInjection/FaultPlan.h"

namespace aec::fault_injection
{

std::optional<ProjectExplorerState> CFaultyProjectPreferences::getProjectExplorerState() const
{
    plan_.reach("IProjectPreferences::getProjectExplorerState");
    return inner_.getProjectExplorerState();
}

void CFaultyProjectPreferences::setProjectExplorerState(const ProjectExplorerState& state)
{
    plan_.reach("IProjectPreferences::setProjectExplorerState");
    inner_.setProjectExplorerState(state);
}

} // namespace aec::fault_injection
