#pragma once

#include "aec/ProjectExplorerGroupingModelFactory.h"

namespace project_explorer
{

// Makes the grouping model of each group. Holds nothing.
class CProjectExplorerGroupingModelFactory final : public aec::IProjectExplorerGroupingModelFactory
{
public:
    CProjectExplorerGroupingModelFactory();
    ~CProjectExplorerGroupingModelFactory() override;

    std::unique_ptr<aec::IProjectExplorerGroupingModel>
    createGroupingModel(const common::UUID& groupId, const std::vector<aec::PropertyAssignmentKey>& candidateKeys,
                        const aec::IProject& project, const aec::IPropertyCatalog& catalog) const override;
};

} // namespace project_explorer
