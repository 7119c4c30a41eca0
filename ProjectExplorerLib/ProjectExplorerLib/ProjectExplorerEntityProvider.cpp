#include "ProjectExplorerLib/ProjectExplorerEntityProvider.h"

#include "aec/Project.h"
#include "aec/ProjectExplorerGroupInfo.h"
#include "aec/ProjectSessionManager.h"

#include "Common/Check.h"

#include <algorithm>

namespace project_explorer
{

CProjectExplorerEntityProvider::CProjectExplorerEntityProvider(const aec::IProjectSessionManager& sessionManager)
    : sessionManager_(sessionManager)
{
}

CProjectExplorerEntityProvider::~CProjectExplorerEntityProvider() = default;

aec::EntityIdList CProjectExplorerEntityProvider::getEntities(const common::UUID& groupId) const
{
    const auto& groups = aec::projectExplorerGroups();
    const auto group = std::find_if(groups.begin(), groups.end(),
                                    [&groupId](const aec::ProjectExplorerGroupInfo& info) { return info.id == groupId; });
    COMMON_PRECONDITION(group != groups.end());

    return sessionManager_.getCurrentProject().getEntities(group->collection);
}

} // namespace project_explorer
