#include "FaultInjection/FaultInjectingServiceDecorator.h"

#include "Common/Check.h"
#include "FaultInjection/FaultyAttributeValueFormatter.h"
#include "FaultInjection/FaultyClipboard.h"
#include "FaultInjection/FaultyClipboardListenerRegistry.h"
#include "FaultInjection/FaultyCopyDataBuilder.h"
#include "FaultInjection/FaultyDialogService.h"
#include "FaultInjection/FaultyEntityClassifier.h"
#include "FaultInjection/FaultyEntitySource.h"
#include "FaultInjection/FaultyEntityTypeHandler.h"
#include "FaultInjection/FaultyGui.h"
#include "FaultInjection/FaultyGuiProvider.h"
#include "FaultInjection/FaultyHostContext.h"
#include "FaultInjection/FaultyImportFileDialog.h"
#include "FaultInjection/FaultyOperationGuardSource.h"
#include "FaultInjection/FaultyPasteDataSerializer.h"
#include "FaultInjection/FaultyPasteHandler.h"
#include "FaultInjection/FaultyProjectPreferences.h"
#include "FaultInjection/FaultyPropertyContainerEditor.h"
#include "FaultInjection/FaultyProxyAppGui.h"
#include "FaultInjection/FaultySessionManager.h"
#include "FaultInjection/FaultyStatusService.h"
#include "FaultInjection/FaultyTitleBlockIO.h"
#include "FaultInjection/FaultyTranslation.h"

namespace aec::fault_injection
{

// The decorations of the application-wide services, made once.
class CFaultInjectingServiceDecorator::CApplicationDecorations
{
public:
    CApplicationDecorations(CFaultPlan& plan, const host::ApplicationServiceSet& services)
        : clipboard(plan, services.clipboard), proxyAppGui(plan, services.proxyAppGui),
          translation(plan, services.translation), sessionManager(plan, services.sessionManager),
          importFileDialog(plan, services.importFileDialog), propertyEditor(plan, services.propertyEditor),
          dialogService(plan, services.dialogService), titleBlockIO(plan, services.titleBlockIO),
          pasteDataSerializer(plan, services.pasteDataSerializer), formatter(plan, services.formatter),
          guiProvider(plan, services.guiProvider), gui(plan, services.gui),
          statusService(plan, services.statusService),
          clipboardListenerRegistry(plan, services.clipboardListenerRegistry)
    {
    }

    host::ApplicationServiceSet services()
    {
        return {clipboard,      proxyAppGui,   translation,   sessionManager,           importFileDialog,
                propertyEditor, dialogService, titleBlockIO,  pasteDataSerializer,      formatter,
                guiProvider,    gui,           statusService, clipboardListenerRegistry};
    }

    CFaultyClipboard clipboard;
    CFaultyProxyAppGui proxyAppGui;
    CFaultyTranslation translation;
    CFaultySessionManager sessionManager;
    CFaultyImportFileDialog importFileDialog;
    CFaultyPropertyContainerEditor propertyEditor;
    CFaultyDialogService dialogService;
    CFaultyTitleBlockIO titleBlockIO;
    CFaultyPasteDataSerializer pasteDataSerializer;
    CFaultyAttributeValueFormatter formatter;
    CFaultyGuiProvider guiProvider;
    CFaultyGui gui;
    CFaultyStatusService statusService;
    CFaultyClipboardListenerRegistry clipboardListenerRegistry;
};

// The decorations of one project's services.
class CFaultInjectingServiceDecorator::CProjectDecorations
{
public:
    CProjectDecorations(CFaultPlan& plan, const host::ProjectServiceSet& services,
                        const CFaultySessionManager& sessionManager)
        : classifier(plan, services.classifier), entitySource(plan, services.entitySource),
          copyDataBuilder(plan, services.copyDataBuilder), sheetHandler(plan, services.sheetHandler),
          tableHandler(plan, services.tableHandler), assemblyHandler(plan, services.assemblyHandler),
          materialHandler(plan, services.materialHandler),
          operationGuardSource(plan, services.operationGuardSource),
          pasteHandler(plan, services.pasteHandler), preferences(plan, services.preferences),
          hostContext(plan, services.hostContext, sessionManager)
    {
    }

    host::ProjectServiceSet services()
    {
        return {classifier,   entitySource,    copyDataBuilder, sheetHandler,
                tableHandler, assemblyHandler, materialHandler, operationGuardSource,
                pasteHandler, preferences,     hostContext};
    }

    CFaultyEntityClassifier classifier;
    CFaultyEntitySource entitySource;
    CFaultyCopyDataBuilder copyDataBuilder;
    CFaultyEntityTypeHandler sheetHandler;
    CFaultyEntityTypeHandler tableHandler;
    CFaultyEntityTypeHandler assemblyHandler;
    CFaultyEntityTypeHandler materialHandler;
    CFaultyOperationGuardSource operationGuardSource;
    CFaultyPasteHandler pasteHandler;
    CFaultyProjectPreferences preferences;
    CFaultyHostContext hostContext;
};

CFaultInjectingServiceDecorator::CFaultInjectingServiceDecorator(CFaultPlan& plan) : plan_(plan) {}

CFaultInjectingServiceDecorator::~CFaultInjectingServiceDecorator() = default;

host::ApplicationServiceSet
CFaultInjectingServiceDecorator::decorateApplicationServices(const host::ApplicationServiceSet& services)
{
    // A session asks once; a second session would find the first one's library holding these.
    COMMON_PRECONDITION(application_ == nullptr);
    application_ = std::make_unique<CApplicationDecorations>(plan_, services);
    return application_->services();
}

host::ProjectServiceSet
CFaultInjectingServiceDecorator::decorateProjectServices(const host::ProjectServiceSet& services)
{
    COMMON_PRECONDITION(application_ != nullptr);
    // The previous project is closed by now, and with it everything that held its decorations.
    application_->sessionManager.forgetProjects();
    application_->proxyAppGui.forgetDocuments();
    project_ = std::make_unique<CProjectDecorations>(plan_, services, application_->sessionManager);
    return project_->services();
}

} // namespace aec::fault_injection
