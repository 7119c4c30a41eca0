#include "ProjectExplorerLib/ProjectExplorerGroupingModelFactory.h"

#include "ProjectExplorerLib/ProjectExplorerGroupingModel.h"

namespace project_explorer
{

CProjectExplorerGroupingModelFactory::CProjectExplorerGroupingModelFactory() = default;

CProjectExplorerGroupingModelFactory::~CProjectExplorerGroupingModelFactory() = default;

std::unique_ptr<aec::IProjectExplorerGroupingModel> CProjectExplorerGroupingModelFactory::createGroupingModel(
    const common::UUID& groupId, const std::vector<aec::PropertyAssignmentKey>& candidateKeys,
    const aec::IProject& project, const aec::IPropertyCatalog& catalog) const
{
    return std::make_unique<CProjectExplorerGroupingModel>(groupId, candidateKeys, project, catalog);
}

} // namespace project_explorer
