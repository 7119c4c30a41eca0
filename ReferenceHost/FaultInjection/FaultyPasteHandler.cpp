#include "FaultInjection/FaultyPasteHandler.h"

#include "FaultInjection/FaultPlan.h"
#include "FaultInjection/FaultyProject.h"

namespace aec::fault_injection
{

EntityIdList CFaultyPasteHandler::paste(IProject& project, const IProjectEntityPasteData& data)
{
    plan_.reach("IPasteHandler::paste");
    EntityIdList pasted = inner_.paste(CFaultyProject::innerOf(project), data);
    plan_.reach("IPasteHandler::paste, after its work");
    return pasted;
}

} // namespace aec::fault_injection
