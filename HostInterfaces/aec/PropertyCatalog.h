#pragma once

#include "aec/AecApi.h"
#include "aec/PropertyAssignmentKey.h"

#include <string>

namespace aec
{

class IProject;

// The host's registry of grouping properties: which can be used now and what they are called.
class AEC_INTERFACE IPropertyCatalog
{
public:
    virtual ~IPropertyCatalog() = default;

    // Whether the project's entities can be grouped by the key now.
    virtual bool isAvailable(const IProject& project, const PropertyAssignmentKey& key) const = 0;
    // The key's name as the user reads it.
    virtual std::wstring getDisplayName(const PropertyAssignmentKey& key) const = 0;
};

} // namespace aec
