#pragma once

#include "aec/AttributeValueFormatter.h"

namespace aec::fault_injection
{

class CFaultPlan;

// The formatter of property values, failing where the plan says.
class CFaultyAttributeValueFormatter final : public IAttributeValueFormatter
{
public:
    CFaultyAttributeValueFormatter(CFaultPlan& plan, const IAttributeValueFormatter& inner)
        : plan_(plan), inner_(inner)
    {
    }

    std::wstring format(const AttributeValue& value) const override;

private:
    CFaultPlan& plan_;
    const IAttributeValueFormatter& inner_;
};

} // namespace aec::fault_injection
