#include "HostFrame/ExplorerSession.h"

#include "AecModel/ProjectFile.h"
#include "AecModel/WideText.h"
#include "Common/Check.h"
#include "Common/SequentialUuidProvider.h"
#include "HostFrame/ExplorerPanel.h"
#include "HostFrame/GroupingButtons.h"
#include "HostFrame/Gui.h"
#include "HostFrame/GuiProvider.h"
#include "HostFrame/PanelOwner.h"
#include "HostFrame/ProjectBinding.h"
#include "HostFrame/SelectionCommandTargets.h"
#include "HostFrame/ServiceDecorator.h"
#include "HostFrame/StatusService.h"
#include "HostFrame/UnusedUuidProvider.h"
#include "HostServices/HostServices.h"
#include "ProjectExplorerLib/ProjectExplorerExports.h"
#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerEntityControllerFactory.h"
#include "aec/ProjectExplorerEntityProvider.h"
#include "aec/ProjectExplorerEntitySelection.h"
#include "aec/ProjectExplorerFactory.h"
#include "aec/ProjectExplorerGroupMaker.h"
#include "aec/ProjectExplorerGroupingModelFactory.h"
#include "aec/ProjectExplorerGuiEventHandler.h"
#include "aec/ProjectExplorerViewCreator.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace aec::host
{

CExplorerSession::CExplorerSession(std::optional<std::uint64_t> uuidSeed, IServiceDecorator* serviceDecorator)
    : serviceDecorator_(serviceDecorator)
{
    // Identifiers are made from the first factory on, and the sample project a host program may
    // open next is made with them too.
    std::shared_ptr<common::IUuidProvider> source;
    if (uuidSeed)
        source = std::make_shared<common::CSequentialUuidProvider>(*uuidSeed);
    project_explorer::setUuidProvider(std::make_shared<CUnusedUuidProvider>(
        std::move(source),
        [this](const common::UUID& candidate) {
            return binding_ != nullptr && binding_->getProject().findEntity(EntityId(candidate)) != nullptr;
        }));
    try
    {
        hostServices_ = std::make_unique<CHostServices>();
        gui_ = std::make_unique<CGui>();
        statusService_ = std::make_unique<CStatusService>();
        panelOwner_ = std::make_unique<CPanelOwner>(L"Project explorer");
        guiProvider_ = std::make_unique<CGuiProvider>();
        panel_ = &guiProvider_->providePanel(*panelOwner_);
        registerSortButtons();
        commandTargets_ = std::make_unique<CSelectionCommandTargets>(*this);
        commandTargets_->install(*gui_);

        CHostServices& host = *hostServices_;
        const ApplicationServiceSet hostSet{host.getClipboard(),
                                            host.getProxyAppGui(),
                                            host.getTranslation(),
                                            host.getSessionManager(),
                                            host.getImportFileDialog(),
                                            host.getPropertyEditor(),
                                            host.getDialogService(),
                                            host.getTableImporter(),
                                            host.getPasteDataSerializer(),
                                            host.getAttributeValueFormatter(),
                                            *guiProvider_,
                                            *gui_,
                                            *statusService_,
                                            host.getClipboard()};
        libraryServices_ = std::make_unique<ApplicationServiceSet>(
            serviceDecorator_ != nullptr ? serviceDecorator_->decorateApplicationServices(hostSet) : hostSet);

        const ApplicationServiceSet& services = *libraryServices_;
        groupingModelFactory_ = project_explorer::createGroupingModelFactory();
        groupMaker_ = project_explorer::createGroupMaker(services.formatter, services.sessionManager);
        entityProvider_ = project_explorer::createProjectExplorerEntityProvider(services.sessionManager);
        explorerFactory_ = project_explorer::createProjectExplorerFactory(*groupingModelFactory_,
                                                                          *groupMaker_, *entityProvider_);
        eventHandlerFactory_ = project_explorer::createProjectExplorerGuiEventHandlerFactory();
        viewCreator_ = project_explorer::createViewCreator(*explorerFactory_, services.guiProvider,
                                                           *eventHandlerFactory_);
        controllerFactory_ = project_explorer::createProjectExplorerEntityControllerFactory(
            services.clipboard, services.proxyAppGui, services.translation, services.sessionManager,
            services.importFileDialog, services.propertyEditor, services.dialogService, services.titleBlockIO,
            services.pasteDataSerializer);
    }
    catch (...)
    {
        project_explorer::setUuidProvider(nullptr);
        throw;
    }
}

CExplorerSession::~CExplorerSession()
{
    close();
    controllerFactory_.reset();
    viewCreator_.reset();
    eventHandlerFactory_.reset();
    explorerFactory_.reset();
    entityProvider_.reset();
    groupMaker_.reset();
    groupingModelFactory_.reset();
    project_explorer::setUuidProvider(nullptr);
}

void CExplorerSession::open(std::unique_ptr<model::CProject> project)
{
    COMMON_PRECONDITION(project != nullptr);
    close();
    // What the user sees on opening is the baseline of unsaved changes, whether it came from a file
    // or was made by the program.
    project->getUndoHistory().markSaved();
    binding_ = std::make_unique<CProjectBinding>(
        CProjectBinding::ApplicationParts{*hostServices_, *libraryServices_, serviceDecorator_, *viewCreator_,
                                          *controllerFactory_, *gui_, *statusService_, *panelOwner_, *panel_},
        std::move(project));

    const model::CProject& opened = binding_->getProject();
    std::vector<std::string> warnings = opened.getLoadNotes();
    const std::vector<std::string>& preferenceWarnings = opened.getPreferences().getWarnings();
    warnings.insert(warnings.end(), preferenceWarnings.begin(), preferenceWarnings.end());
    if (!warnings.empty())
        statusService_->showStatus(model::fromUtf8(fmt::format("{}", fmt::join(warnings, " "))));
}

void CExplorerSession::load(const std::filesystem::path& path)
{
    open(model::CProjectFile::load(path));
}

void CExplorerSession::save(const std::filesystem::path& path) const
{
    COMMON_PRECONDITION(binding_ != nullptr);
    model::CProjectFile::save(binding_->getProject(), path);
    binding_->getProject().getUndoHistory().markSaved();
}

bool CExplorerSession::hasUnsavedChanges() const noexcept
{
    return binding_ != nullptr && binding_->getProject().getUndoHistory().isModified();
}

void CExplorerSession::close() noexcept
{
    binding_.reset();
}

bool CExplorerSession::hasProject() const noexcept
{
    return binding_ != nullptr;
}

model::CProject& CExplorerSession::getProject()
{
    return binding().getProject();
}

model::CUndoHistory& CExplorerSession::getUndoHistory()
{
    return binding().getProject().getUndoHistory();
}

model::CProjectServices& CExplorerSession::getProjectServices()
{
    return binding().getProjectServices();
}

IProjectExplorerEntityController& CExplorerSession::getEntityController()
{
    return binding().getEntityController();
}

INonDrawingView& CExplorerSession::getView()
{
    return binding().getView();
}

IActivity& CExplorerSession::getActivity()
{
    return binding().getActivity();
}

IProjectExplorer& CExplorerSession::getExplorer()
{
    binding();
    return panel_->getExplorer();
}

const EntityIdSet& CExplorerSession::getSelection()
{
    return getExplorer().getEntitySelection().getSelection();
}

CHostServices& CExplorerSession::getHostServices() noexcept
{
    return *hostServices_;
}

CGui& CExplorerSession::getGui() noexcept
{
    return *gui_;
}

CExplorerPanel& CExplorerSession::getPanel() noexcept
{
    return *panel_;
}

CStatusService& CExplorerSession::getStatusService() noexcept
{
    return *statusService_;
}

CPanelOwner& CExplorerSession::getPanelOwner() noexcept
{
    return *panelOwner_;
}

const IProjectExplorerFactory& CExplorerSession::getExplorerFactory() const noexcept
{
    return *explorerFactory_;
}

CProjectBinding& CExplorerSession::binding()
{
    COMMON_PRECONDITION(binding_ != nullptr);
    return *binding_;
}

void CExplorerSession::registerSortButtons()
{
    for (const ProjectExplorerGroupInfo& group : projectExplorerGroups())
        if (const std::optional<GroupingButtonIds> buttons = groupingButtonsOf(group))
            gui_->registerSortButton(buttons->panel, buttons->sortOrder, std::wstring(ascendingLabel),
                                     std::wstring(descendingLabel));
}

} // namespace aec::host
