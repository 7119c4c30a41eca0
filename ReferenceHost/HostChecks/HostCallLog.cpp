#include "HostChecks/HostCallLog.h"

#include "HostFrame/ApplicationServiceSet.h"
#include "HostFrame/ProjectServiceSet.h"

namespace aec::host
{

ApplicationServiceSet CHostCallLog::decorateApplicationServices(const ApplicationServiceSet& services)
{
    gui_.emplace(services.gui, calls_);
    registry_.emplace(services.clipboardListenerRegistry, calls_);
    return ApplicationServiceSet{services.clipboard,           services.proxyAppGui,
                                 services.translation,         services.sessionManager,
                                 services.importFileDialog,    services.propertyEditor,
                                 services.dialogService,       services.titleBlockIO,
                                 services.pasteDataSerializer, services.formatter,
                                 services.guiProvider,         *gui_,
                                 services.statusService,       *registry_};
}

ProjectServiceSet CHostCallLog::decorateProjectServices(const ProjectServiceSet& services)
{
    return services;
}

} // namespace aec::host
