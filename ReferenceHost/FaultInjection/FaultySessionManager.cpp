#include "FaultInjection/FaultySessionManager.h"

#include "Common/Check.h"
#include "FaultInjection/FaultPlan.h"

namespace aec::fault_injection
{

IProject& CFaultySessionManager::getCurrentProject() const
{
    plan_.reach("IProjectSessionManager::getCurrentProject");
    return decorate(inner_.getCurrentProject());
}

const IProject& CFaultySessionManager::decorationOf(const IProject& project) const
{
    // The host context hands out its project as a const one; the session manager has the same
    // project as one that changes, and its decoration serves both.
    IProject& current = inner_.getCurrentProject();
    COMMON_PRECONDITION(&current == &project);
    return decorate(current);
}

IProject& CFaultySessionManager::decorate(IProject& project) const
{
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
