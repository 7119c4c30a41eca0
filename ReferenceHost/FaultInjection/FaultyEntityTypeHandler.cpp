#include "FaultInjection/FaultyEntityTypeHandler.h"

#include "FaultInjection/FaultPlan.h"

namespace aec::fault_injection
{

void CFaultyEntityTypeHandler::create(const EntityId& id)
{
    plan_.reach("IEntityTypeHandler::create");
    inner_.create(id);
    plan_.reach("IEntityTypeHandler::create, after its work");
}

EntityTypeId CFaultyEntityTypeHandler::getEntityType() const
{
    plan_.reach("IEntityTypeHandler::getEntityType");
    return inner_.getEntityType();
}

void CFaultyEntityTypeHandler::remove(const EntityId& id)
{
    plan_.reach("IEntityTypeHandler::remove");
    inner_.remove(id);
    plan_.reach("IEntityTypeHandler::remove, after its work");
}

void CFaultyEntityTypeHandler::rename(const EntityId& id, const std::wstring& newName)
{
    plan_.reach("IEntityTypeHandler::rename");
    inner_.rename(id, newName);
    plan_.reach("IEntityTypeHandler::rename, after its work");
}

} // namespace aec::fault_injection
