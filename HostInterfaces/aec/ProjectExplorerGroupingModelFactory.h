#pragma once

#include "aec/AecApi.h"
#include "aec/PropertyAssignmentKey.h"

#include "Common/UUID.h"

#include <memory>
#include <vector>

namespace aec
{

class IProject;
class IProjectExplorerGroupingModel;
class IPropertyCatalog;

// Makes the grouping model of one group.
class AEC_INTERFACE IProjectExplorerGroupingModelFactory
{
public:
    virtual ~IProjectExplorerGroupingModelFactory() = default;

    // A model for the group offering the candidate keys that the catalog finds available in the
    // project; the project and catalog must outlive the model.
    virtual std::unique_ptr<IProjectExplorerGroupingModel>
    createGroupingModel(const common::UUID& groupId, const std::vector<PropertyAssignmentKey>& candidateKeys,
                        const IProject& project, const IPropertyCatalog& catalog) const = 0;
};

} // namespace aec
