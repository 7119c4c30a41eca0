#pragma once

#include "ProjectExplorerLib/ProjectExplorerApi.h"

#include <memory>

namespace aec
{
class IAttributeValueFormatter;
class IProjectExplorer;
class IProjectExplorerEntityProvider;
class IProjectExplorerFactory;
class IProjectExplorerGroupMaker;
class IProjectExplorerGroupingModelFactory;
class IProjectExplorerStateMonitor;
class IProjectSessionManager;
} // namespace aec

namespace common
{
class IUuidProvider;
} // namespace common

// The library's entry points. The host calls them in this order, since each later object keeps
// references to earlier ones: setUuidProvider; the grouping model factory, the group maker and
// the entity provider; the explorer factory. Every made object belongs to the host, and every
// reference it is given must outlive it.
namespace project_explorer
{

PROJECT_EXPLORER_API std::unique_ptr<aec::IProjectExplorerGroupingModelFactory> createGroupingModelFactory();

PROJECT_EXPLORER_API std::unique_ptr<aec::IProjectExplorerGroupMaker>
createGroupMaker(const aec::IAttributeValueFormatter& formatter, const aec::IProjectSessionManager& sessionManager);

PROJECT_EXPLORER_API std::unique_ptr<aec::IProjectExplorerFactory>
createProjectExplorerFactory(const aec::IProjectExplorerGroupingModelFactory& groupingModelFactory,
                             const aec::IProjectExplorerGroupMaker& groupMaker,
                             const aec::IProjectExplorerEntityProvider& entityProvider);

PROJECT_EXPLORER_API std::unique_ptr<aec::IProjectExplorerStateMonitor>
createProjectExplorerStateMonitor(const aec::IProjectExplorer& explorer);

PROJECT_EXPLORER_API std::unique_ptr<aec::IProjectExplorerEntityProvider>
createProjectExplorerEntityProvider(const aec::IProjectSessionManager& sessionManager);

// Every identifier the library makes from now on comes from `provider`; an empty pointer goes
// back to the platform's generator.
PROJECT_EXPLORER_API void setUuidProvider(std::shared_ptr<common::IUuidProvider> provider);

} // namespace project_explorer
