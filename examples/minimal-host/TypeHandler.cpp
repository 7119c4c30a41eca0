#include "TypeHandler.h"

#include "Project.h"
#include "Text.h"

#include "Common/Exception.h"

#include <fmt/format.h>
#include <fmt/xchar.h>

namespace minimal_host
{

CTypeHandler::CTypeHandler(CProject& project, aec::EntityCollection collection, std::wstring baseName)
    : project_(project), collection_(collection), baseName_(std::move(baseName))
{
}

void CTypeHandler::create(const aec::EntityId& id)
{
    project_.add(collection_, freeName(), std::nullopt, id);
}

aec::EntityTypeId CTypeHandler::getEntityType() const
{
    return entityTypeOf(collection_);
}

void CTypeHandler::remove(const aec::EntityId& id)
{
    project_.remove(id);
}

void CTypeHandler::rename(const aec::EntityId& id, const std::wstring& newName)
{
    // Names stay unique, so that the user can tell entities apart in the panel.
    const CEntity* const namesake = project_.findByName(newName);
    if (namesake != nullptr && namesake->getId() != id)
        throw common::EException(fmt::format("There is already an entity called \"{}\".", toUtf8(newName)));
    project_.rename(id, newName);
}

std::wstring CTypeHandler::freeName() const
{
    for (int number = 1;; ++number)
        if (std::wstring name = fmt::format(L"{} {}", baseName_, number);
            project_.findByName(name) == nullptr)
            return name;
}

} // namespace minimal_host
