#include "AecModel/PropertyCatalog.h"

#include "aec/Project.h"

namespace aec::model
{

CPropertyCatalog::~CPropertyCatalog() = default;

bool CPropertyCatalog::isAvailable(const IProject& project, const PropertyAssignmentKey& key) const
{
    if (key == PropertyAssignmentKey::noGrouping())
        return true;
    if (key == PropertyAssignmentKey::topic())
        return !project.getEntities(EntityCollection::Topics).empty();
    return false;
}

std::wstring CPropertyCatalog::getDisplayName(const PropertyAssignmentKey& key) const
{
    if (key == PropertyAssignmentKey::topic())
        return std::wstring(topicDisplayName);
    if (key == PropertyAssignmentKey::noGrouping())
        return std::wstring(noGroupingDisplayName);
    return key.getProperty().toWString();
}

} // namespace aec::model
