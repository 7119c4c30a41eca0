#pragma once

#include "aec/AecApi.h"

namespace aec
{

class IProject;
class IPropertyCatalog;

// The application-side context a panel is made in: the project it shows and the property catalog.
class AEC_INTERFACE IHostContext
{
public:
    virtual ~IHostContext() = default;

    // The project the panel shows.
    virtual const IProject& getProject() const = 0;
    // The registry of grouping properties.
    virtual const IPropertyCatalog& getPropertyCatalog() const = 0;
};

// The host window that owns a panel.
class AEC_INTERFACE IPanelOwner
{
public:
    virtual ~IPanelOwner() = default;
};

} // namespace aec
