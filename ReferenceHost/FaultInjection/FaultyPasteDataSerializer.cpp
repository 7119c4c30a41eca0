#include "FaultInjection/FaultyPasteDataSerializer.h"

#include "FaultInjection/FaultPlan.h"
#include "FaultInjection/FaultyProject.h"
#include "aec/PasteContext.h"
#include "aec/ProjectEntityCopyData.h"

namespace aec::fault_injection
{

std::wstring CFaultyPasteDataSerializer::serialize(const IProjectEntityCopyData& data)
{
    plan_.reach("IProjectEntityPasteDataSessionSerializer::serialize");
    return inner_.serialize(data);
}

std::unique_ptr<IProjectEntityPasteData> CFaultyPasteDataSerializer::deserialize(const std::wstring& text,
                                                                                 const PasteContext& context)
{
    plan_.reach("IProjectEntityPasteDataSessionSerializer::deserialize");
    const PasteContext own{CFaultyProject::innerOf(context.project), context.collections};
    return inner_.deserialize(text, own);
}

} // namespace aec::fault_injection
