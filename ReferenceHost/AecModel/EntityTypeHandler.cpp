#include "AecModel/EntityTypeHandler.h"

#include "AecModel/EntityCollectionInfo.h"
#include "AecModel/Project.h"
#include "AecModel/UniqueNameGenerator.h"
#include "AecModel/WideText.h"

#include "Common/Check.h"
#include "Common/Exception.h"

#include <boost/algorithm/string/classification.hpp>
#include <boost/algorithm/string/predicate.hpp>
#include <fmt/format.h>

#include <array>
#include <string_view>

namespace aec::model
{

namespace
{

// What one entity of each collection is called, in collection order: the start of new entities'
// names and the noun of messages.
std::wstring_view entityNoun(EntityCollection collection)
{
    static constexpr std::array<std::wstring_view, entityCollectionCount> nouns{
        L"Sheet",        L"Table",   L"Assembly",     L"Material", L"Door style",
        L"Window style", L"Reinforcement style", L"Topic", L"Linked model", L"Image",
    };
    return nouns[collectionIndex(collection)];
}

std::string lowerCaseNoun(EntityCollection collection)
{
    std::string noun = toUtf8(entityNoun(collection));
    noun.front() = static_cast<char>(noun.front() - 'A' + 'a');
    return noun;
}

} // namespace

CEntityTypeHandler::CEntityTypeHandler(CProject& project, EntityCollection collection)
    : project_(project), collection_(collection)
{
    COMMON_PRECONDITION(collectionIndex(collection) < entityCollectionCount);
}

CEntityTypeHandler::~CEntityTypeHandler() = default;

void CEntityTypeHandler::create(const EntityId& id)
{
    COMMON_PRECONDITION(!id.isNull());
    CUniqueNameGenerator names(project_, collection_);
    project_.addEntity(collection_, names.takeNumbered(entityNoun(collection_)), std::nullopt, id);
}

EntityTypeId CEntityTypeHandler::getEntityType() const
{
    return collectionInfo(collection_).type;
}

void CEntityTypeHandler::remove(const EntityId& id)
{
    requireMember(id);
    project_.removeEntity(id);
}

void CEntityTypeHandler::rename(const EntityId& id, const std::wstring& newName)
{
    requireMember(id);
    if (boost::algorithm::all(newName, boost::algorithm::is_space()))
        throw common::EException(
            fmt::format("A {} needs a name; type at least one letter or digit.", lowerCaseNoun(collection_)));
    if (project_.findEntity(id)->getName() == newName)
        return;
    if (CUniqueNameGenerator(project_, collection_).isTaken(newName))
        throw common::EException(fmt::format("There is already a {} named \"{}\"; choose another name.",
                                             lowerCaseNoun(collection_), toUtf8(newName)));
    project_.renameEntity(id, newName);
}

void CEntityTypeHandler::requireMember(const EntityId& id) const
{
    const CEntity* const entity = project_.findEntity(id);
    COMMON_PRECONDITION(entity != nullptr && entity->getCollection() == collection_);
}

} // namespace aec::model
