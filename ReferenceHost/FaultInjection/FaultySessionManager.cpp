#include "FaultInjection/FaultySessionManager.h"

#include "FaultInjection/FaultPlan.h"

namespace aec::fault_injection
{

IProject& CFaultySessionManager::getCurrentProject() const
{
    plan_.reach("IProjectSessionManager::getCurrentProject");
    IProject& project = inner_.getCurrentProject();
    std::unique_ptr<CFaultyProject>& decorated = projects_[&project];
    if (decorated == nullptr)
        decorated = std::make_unique<CFaultyProject>(plan_, project);
    return *decorated;
}

void CFaultySessionManager::forgetProjects() noexcept
{
    projects_.clear();
}

} // namespace aec::fault_injection
