#pragma once

#include "aec/AecApi.h"

#include <memory>

namespace aec
{

class IProject;
class IProjectExplorer;
class IProjectPreferences;
class IPropertyCatalog;

// Assembles explorers.
class AEC_INTERFACE IProjectExplorerFactory
{
public:
    virtual ~IProjectExplorerFactory() = default;

    // A new explorer of the project's ten groups, restored from and writing into the preferences;
    // the preferences, project and catalog must outlive it.
    virtual std::unique_ptr<IProjectExplorer> createProjectExplorer(IProjectPreferences& preferences,
                                                                    const IProject& project,
                                                                    const IPropertyCatalog& catalog) const = 0;
};

} // namespace aec
