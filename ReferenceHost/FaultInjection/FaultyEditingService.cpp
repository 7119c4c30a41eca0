#include "FaultInjection/FaultyEditingService.h"

#include "FaultInjection/FaultPlan.h"
#include "FaultInjection/FaultyEditCommand.h"

namespace aec::fault_injection
{

void CFaultyEditingService::beginEdit()
{
    plan_.reach("IEditingService::beginEdit");
    inner_.beginEdit();
}

std::unique_ptr<IEditCommand> CFaultyEditingService::createCommand(const EntityId& entity)
{
    plan_.reach("IEditingService::createCommand");
    return std::make_unique<CFaultyEditCommand>(plan_, inner_.createCommand(entity));
}

void CFaultyEditingService::submit(IEditCommand& command)
{
    plan_.reach("IEditingService::submit");
    inner_.submit(CFaultyEditCommand::innerOf(command));
    plan_.reach("IEditingService::submit, after its work");
}

void CFaultyEditingService::endEdit(bool success)
{
    try
    {
        plan_.reach("IEditingService::endEdit");
    }
    catch (...)
    {
        inner_.endEdit(false);
        throw;
    }
    inner_.endEdit(success);
}

} // namespace aec::fault_injection
