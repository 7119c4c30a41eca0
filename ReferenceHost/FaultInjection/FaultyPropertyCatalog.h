#pragma once

#include "aec/PropertyCatalog.h"

namespace aec::fault_injection
{

class CFaultPlan;

// The host's registry of grouping properties, failing where the plan says. The project the library
// asks about is handed to the host undecorated.
class CFaultyPropertyCatalog final : public IPropertyCatalog
{
public:
    CFaultyPropertyCatalog(CFaultPlan& plan, const IPropertyCatalog& inner) : plan_(plan), inner_(inner) {}

    bool isAvailable(const IProject& project, const PropertyAssignmentKey& key) const override;
    std::wstring getDisplayName(const PropertyAssignmentKey& key) const override;

private:
    CFaultPlan& plan_;
    const IPropertyCatalog& inner_;
};

} // namespace aec::fault_injection
