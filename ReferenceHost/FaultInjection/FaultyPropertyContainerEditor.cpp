#include "FaultInjection/FaultyPropertyContainerEditor.h"

#include "FaultInjection/FaultPlan.h"

namespace aec::fault_injection
{

void CFaultyPropertyContainerEditor::edit(IPropertyContextOwner& owner, const EntityIdSet& entities)
{
    plan_.reach("IPropertyContainerEditor::edit");
    inner_.edit(owner, entities);
}

} // namespace aec::fault_injection
