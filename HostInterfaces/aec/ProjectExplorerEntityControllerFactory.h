#pragma once

#include "aec/AecApi.h"

#include <memory>

namespace aec
{

class ICopyDataBuilder;
class IEntityClassifier;
class IEntitySource;
class IEntityTypeHandler;
class IOperationGuardSource;
class IPasteHandler;
class IProjectExplorerEntityController;

// Makes the entity controller of a project from the project's own services.
class AEC_INTERFACE IProjectExplorerEntityControllerFactory
{
public:
    virtual ~IProjectExplorerEntityControllerFactory() = default;

    // A controller over the services, which must outlive it. The four type handlers serve the
    // four handled entity types in their fixed order.
    virtual std::unique_ptr<IProjectExplorerEntityController>
    createController(const IEntityClassifier& classifier, const IEntitySource& entitySource,
                     const ICopyDataBuilder& copyDataBuilder, IEntityTypeHandler& firstTypeHandler,
                     IEntityTypeHandler& secondTypeHandler, IEntityTypeHandler& thirdTypeHandler,
                     IEntityTypeHandler& fourthTypeHandler, const IOperationGuardSource& operationGuardSource,
                     IPasteHandler& pasteHandler) const = 0;
};

} // namespace aec
