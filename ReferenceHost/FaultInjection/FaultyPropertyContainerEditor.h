#pragma once

#include "aec/PropertyContainerEditor.h"

namespace aec::fault_injection
{

class CFaultPlan;

// The editor of entity properties, failing where the plan says.
class CFaultyPropertyContainerEditor final : public IPropertyContainerEditor
{
public:
    CFaultyPropertyContainerEditor(CFaultPlan& plan, IPropertyContainerEditor& inner)
        : plan_(plan), inner_(inner)
    {
    }

    void edit(IPropertyContextOwner& owner, const EntityIdSet& entities) override;

private:
    CFaultPlan& plan_;
    IPropertyContainerEditor& inner_;
};

} // namespace aec::fault_injection
