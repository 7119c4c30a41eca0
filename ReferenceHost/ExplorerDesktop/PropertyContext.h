#pragma once

#include "aec/PropertyContext.h"

namespace aec::desktop
{

// The desktop's context for editing entity properties, which the open project's document needs
// before the explorer hands a properties request to the host's property editor. The desktop's
// properties dialog edits nothing beyond what the request names, so the context is its own owner.
class CPropertyContext final : public IPropertyContext, public IPropertyContextOwner
{
public:
    CPropertyContext() = default;
    ~CPropertyContext() override;
    CPropertyContext(const CPropertyContext&) = delete;
    CPropertyContext& operator=(const CPropertyContext&) = delete;

    IPropertyContextOwner* getOwner() const override;
};

} // namespace aec::desktop
