#pragma once

#include "aec/ProjectPreferences.h"

namespace aec::fault_injection
{

class CFaultPlan;

// The project's preferences, failing where the plan says.
class CFaultyProjectPreferences final : public IProjectPreferences
{
public:
    CFaultyProjectPreferences(CFaultPlan& plan, IProjectPreferences& inner) : plan_(plan), inner_(inner) {}

    std::optional<ProjectExplorerState> getProjectExplorerState() const override;
    void setProjectExplorerState(const ProjectExplorerState& state) override;

private:
    CFaultPlan& plan_;
    IProjectPreferences& inner_;
};

} // namespace aec::fault_injection
