#include "FaultInjection/FaultyTitleBlockIO.h"

#include "FaultInjection/FaultPlan.h"
#include "FaultInjection/FaultyProject.h"

namespace aec::fault_injection
{

EntityId CFaultyTitleBlockIO::importTable(IProject& project, const std::filesystem::path& file) const
{
    plan_.reach("ITitleBlockIO::importTable");
    const EntityId table = inner_.importTable(CFaultyProject::innerOf(project), file);
    plan_.reach("ITitleBlockIO::importTable, after its work");
    return table;
}

} // namespace aec::fault_injection
