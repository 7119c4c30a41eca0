#include "FaultInjection/FaultyCopyDataBuilder.h"

#include "FaultInjection/FaultPlan.h"
#include "aec/ProjectEntityCopyData.h"

namespace aec::fault_injection
{

std::unique_ptr<IProjectEntityCopyData>
CFaultyCopyDataBuilder::build(const CopyCollections& collections) const
{
    plan_.reach("ICopyDataBuilder::build");
    return inner_.build(collections);
}

} // namespace aec::fault_injection
