#pragma once

#include "aec/PropertyContext.h"

namespace project_explorer::test
{

// A document's property context that owns itself until its owner is taken away, which the
// reference host does not offer.
class TestPropertyContext : public aec::IPropertyContext, public aec::IPropertyContextOwner
{
public:
    aec::IPropertyContextOwner* getOwner() const override { return owner; }

    aec::IPropertyContextOwner* owner = this;
};

} // namespace project_explorer::test
