#include "ProjectServices.h"

#include "Project.h"

#include "Common/Exception.h"
#include "aec/OperationGuard.h"
#include "aec/OperationHost.h"
#include "aec/ProjectExplorerEntityController.h"
#include "aec/ProjectExplorerEntityControllerFactory.h"

#include <map>
#include <utility>

namespace minimal_host
{

namespace
{

// This host needs nothing done at the start and end of a change, so its guard is empty.
class COperationGuard final : public aec::IOperationGuard
{
};

// The three kinds of entities that the classifier's three questions ask about.
enum class CopyKind
{
    Document,
    Style,
    Resource,
};

std::optional<aec::CopyCollection> classify(const CProject& project, const aec::EntityId& id, CopyKind kind)
{
    using enum aec::EntityCollection;
    static const std::map<aec::EntityCollection, std::pair<CopyKind, aec::CopyCollection>> copyCollections{
        {Sheets, {CopyKind::Document, aec::CopyCollection::Sheets}},
        {Tables, {CopyKind::Document, aec::CopyCollection::Tables}},
        {Materials, {CopyKind::Style, aec::CopyCollection::Materials}},
        {DoorStyles, {CopyKind::Style, aec::CopyCollection::DoorStyles}},
        {WindowStyles, {CopyKind::Style, aec::CopyCollection::WindowStyles}},
        {ReinforcementStyles, {CopyKind::Style, aec::CopyCollection::ReinforcementStyles}},
        {Assemblies, {CopyKind::Resource, aec::CopyCollection::Assemblies}},
        {Topics, {CopyKind::Resource, aec::CopyCollection::Topics}},
        {Images, {CopyKind::Resource, aec::CopyCollection::Images}},
    };
    const CEntity* const entity = project.findEntity(id);
    if (entity == nullptr)
        return std::nullopt;
    const auto row = copyCollections.find(entity->getCollection());
    if (row == copyCollections.end() || row->second.first != kind)
        return std::nullopt;
    return row->second.second;
}

const char* const noCopies = "This host does not copy entities to the clipboard.";

} // namespace

CProjectServices::CProjectServices(CProject& project)
    : project_(project), typeHandlers_{CTypeHandler(project, aec::EntityCollection::Sheets, L"Sheet"),
                                       CTypeHandler(project, aec::EntityCollection::Tables, L"Table"),
                                       CTypeHandler(project, aec::EntityCollection::Assemblies, L"Assembly"),
                                       CTypeHandler(project, aec::EntityCollection::Materials, L"Material")}
{
}

std::unique_ptr<aec::IProjectExplorerEntityController>
CProjectServices::createController(const aec::IProjectExplorerEntityControllerFactory& factory)
{
    return factory.createController(*this, *this, *this, typeHandlers_[0], typeHandlers_[1], typeHandlers_[2],
                                    typeHandlers_[3], *this, *this);
}

std::optional<aec::CopyCollection> CProjectServices::classifyAsDocument(const aec::EntityId& entity) const
{
    return classify(project_, entity, CopyKind::Document);
}

std::optional<aec::CopyCollection> CProjectServices::classifyAsStyle(const aec::EntityId& entity) const
{
    return classify(project_, entity, CopyKind::Style);
}

std::optional<aec::CopyCollection> CProjectServices::classifyAsResource(const aec::EntityId& entity) const
{
    return classify(project_, entity, CopyKind::Resource);
}

aec::EntityIdSet CProjectServices::getEntities(const aec::EntityIdList& requested) const
{
    return aec::EntityIdSet(requested.begin(), requested.end());
}

std::unique_ptr<aec::IProjectEntityCopyData>
CProjectServices::build(const aec::CopyCollections& /*collections*/) const
{
    throw common::EException(noCopies);
}

std::unique_ptr<aec::IOperationGuard> CProjectServices::createGuard(aec::IOperationHost& host) const
{
    if (host.isOperationRunning())
        throw common::EException(
            "Another change of the project is still running; try again when it has ended.");
    return std::make_unique<COperationGuard>();
}

aec::EntityIdList CProjectServices::paste(aec::IProject& /*project*/,
                                          const aec::IProjectEntityPasteData& /*data*/)
{
    throw common::EException(noCopies);
}

} // namespace minimal_host
