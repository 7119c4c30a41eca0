#pragma once

#include "aec/AecApi.h"

namespace aec
{

class IPropertyContextOwner;

// The document's context for editing entity properties.
class AEC_INTERFACE IPropertyContext
{
public:
    virtual ~IPropertyContext() = default;

    // The object whose properties the context edits, or null when it has lost it.
    virtual IPropertyContextOwner* getOwner() const = 0;
};

// The object a property context belongs to.
class AEC_INTERFACE IPropertyContextOwner
{
public:
    virtual ~IPropertyContextOwner() = default;
};

} // namespace aec
