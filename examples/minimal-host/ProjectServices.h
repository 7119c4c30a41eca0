#pragma once

#include "TypeHandler.h"

#include "aec/CopyDataBuilder.h"
#include "aec/EntityClassifier.h"
#include "aec/EntitySource.h"
#include "aec/OperationGuardSource.h"
#include "aec/PasteHandler.h"

#include <array>
#include <memory>

namespace aec
{
class IProjectExplorerEntityController;
class IProjectExplorerEntityControllerFactory;
} // namespace aec

namespace minimal_host
{

class CProject;

// The services of one open project that the explorer's entity controller works through: the four
// type handlers, the operation guard, and what copy and paste need. This host has no clipboard
// format of its own: it tells which entities a copy could carry, but refuses to build the copy, so
// copy, cut and paste end with a message and change nothing.
class CProjectServices final : public aec::IEntityClassifier,
                               public aec::IEntitySource,
                               public aec::ICopyDataBuilder,
                               public aec::IOperationGuardSource,
                               public aec::IPasteHandler
{
public:
    // The project must outlive the services, and they the controllers they make.
    explicit CProjectServices(CProject& project);

    // The project's entity controller, made by the library's controller factory.
    std::unique_ptr<aec::IProjectExplorerEntityController>
    createController(const aec::IProjectExplorerEntityControllerFactory& factory);

    // aec::IEntityClassifier: which copy collection an entity goes to, empty for an entity a copy
    // cannot carry (a linked model).
    std::optional<aec::CopyCollection> classifyAsDocument(const aec::EntityId& entity) const override;
    std::optional<aec::CopyCollection> classifyAsStyle(const aec::EntityId& entity) const override;
    std::optional<aec::CopyCollection> classifyAsResource(const aec::EntityId& entity) const override;

    // aec::IEntitySource: a copy carries exactly the requested entities.
    aec::EntityIdSet getEntities(const aec::EntityIdList& requested) const override;

    // aec::ICopyDataBuilder
    std::unique_ptr<aec::IProjectEntityCopyData>
    build(const aec::CopyCollections& collections) const override;

    // aec::IOperationGuardSource: refuses to start a change while another one runs.
    [[nodiscard]] std::unique_ptr<aec::IOperationGuard> createGuard(aec::IOperationHost& host) const override;

    // aec::IPasteHandler
    aec::EntityIdList paste(aec::IProject& project, const aec::IProjectEntityPasteData& data) override;

private:
    CProject& project_;
    // In the explorer's fixed order: sheets, tables, assemblies, materials.
    std::array<CTypeHandler, 4> typeHandlers_;
};

} // namespace minimal_host
