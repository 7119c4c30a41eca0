#pragma once

#include "aec/AecApi.h"
#include "aec/ProjectExplorerGroupState.h"

#include <optional>

namespace aec
{

// The project's preferences, saved with the project; they keep the explorer's state.
class AEC_INTERFACE IProjectPreferences
{
public:
    virtual ~IProjectPreferences() = default;

    // The stored explorer state, empty when none is stored or what is stored no longer reads.
    virtual std::optional<ProjectExplorerState> getProjectExplorerState() const = 0;
    // Stores the explorer state.
    virtual void setProjectExplorerState(const ProjectExplorerState& state) = 0;
};

} // namespace aec
