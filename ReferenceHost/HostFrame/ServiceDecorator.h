#pragma once

#include "HostFrame/ApplicationServiceSet.h"
#include "HostFrame/ProjectServiceSet.h"

namespace aec::host
{

// Puts a layer of the host program's own between the explorer library and the host's services: a
// session hands the library the services that the decorator returns instead of its own. A host
// program uses it to watch, record or fail what the library asks of its host.
class IServiceDecorator
{
public:
    virtual ~IServiceDecorator() = default;

    // Called once, when the session starts. The services returned must forward to the given ones
    // and live as long as the decorator.
    virtual ApplicationServiceSet decorateApplicationServices(const ApplicationServiceSet& services) = 0;
    // Called for each project that the session opens, after the previous one has been closed. The
    // services returned must forward to the given ones and live until the next call or the
    // decorator's end.
    virtual ProjectServiceSet decorateProjectServices(const ProjectServiceSet& services) = 0;
};

} // namespace aec::host
