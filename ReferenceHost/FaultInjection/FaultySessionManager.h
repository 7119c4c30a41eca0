#pragma once

#include "FaultInjection/FaultyProject.h"
#include "aec/ProjectSessionManager.h"

#include <map>
#include <memory>

namespace aec::fault_injection
{

class CFaultPlan;

// Knows the project the user works on and hands it out decorated, failing where the plan says.
class CFaultySessionManager final : public IProjectSessionManager
{
public:
    CFaultySessionManager(CFaultPlan& plan, const IProjectSessionManager& inner) : plan_(plan), inner_(inner)
    {
    }

    IProject& getCurrentProject() const override;

    // The decoration of the current project, which must be the given one, without a fault point:
    // for the host context, which hands the library the same project.
    const IProject& decorationOf(const IProject& project) const;

    // Drops the decorations of the projects handed out so far; for when they have been closed.
    void forgetProjects() noexcept;

private:
    IProject& decorate(IProject& project) const;

    CFaultPlan& plan_;
    const IProjectSessionManager& inner_;
    mutable std::map<const IProject*, std::unique_ptr<CFaultyProject>> projects_;
};

} // namespace aec::fault_injection
