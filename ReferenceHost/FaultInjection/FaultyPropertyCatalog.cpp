#include "FaultInjection/FaultyPropertyCatalog.h"

#include "FaultInjection/FaultPlan.h"
#include "FaultInjection/FaultyProject.h"

namespace aec::fault_injection
{

bool CFaultyPropertyCatalog::isAvailable(const IProject& project, const PropertyAssignmentKey& key) const
{
    plan_.reach("IPropertyCatalog::isAvailable");
    return inner_.isAvailable(CFaultyProject::innerOf(project), key);
}

std::wstring CFaultyPropertyCatalog::getDisplayName(const PropertyAssignmentKey& key) const
{
    plan_.reach("IPropertyCatalog::getDisplayName");
    return inner_.getDisplayName(key);
}

} // namespace aec::fault_injection
