#include "FaultInjection/FaultyAttributeValueFormatter.h"

#include "FaultInjection/FaultPlan.h"

namespace aec::fault_injection
{

std::wstring CFaultyAttributeValueFormatter::format(const AttributeValue& value) const
{
    plan_.reach("IAttributeValueFormatter::format");
    return inner_.format(value);
}

} // namespace aec::fault_injection
