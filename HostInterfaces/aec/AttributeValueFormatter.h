#pragma once

#include "aec/AecApi.h"
#include "aec/AttributeValue.h"

#include <string>

namespace aec
{

// Turns a property value into the text the user reads.
class AEC_INTERFACE IAttributeValueFormatter
{
public:
    virtual ~IAttributeValueFormatter() = default;

    // The display text of the value, including a text for an absent value.
    virtual std::wstring format(const AttributeValue& value) const = 0;
};

} // namespace aec
