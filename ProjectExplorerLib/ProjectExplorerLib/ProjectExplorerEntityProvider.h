#pragma once

#include "aec/ProjectExplorerEntityProvider.h"

namespace aec
{
class IProjectSessionManager;
} // namespace aec

namespace project_explorer
{

// Lists a group's entities: those of the current project's collection behind the group.
class CProjectExplorerEntityProvider final : public aec::IProjectExplorerEntityProvider
{
public:
    // The session manager must outlive the provider.
    explicit CProjectExplorerEntityProvider(const aec::IProjectSessionManager& sessionManager);
    ~CProjectExplorerEntityProvider() override;

    // `groupId` must be the identifier of one of the explorer's ten groups.
    aec::EntityIdList getEntities(const common::UUID& groupId) const override;

private:
    const aec::IProjectSessionManager& sessionManager_;
};

} // namespace project_explorer
