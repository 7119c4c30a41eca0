#include "HostFrame/ProjectBinding.h"

#include "Common/Check.h"
#include "HostFrame/DocumentPropertyContext.h"
#include "HostFrame/ExplorerPanel.h"
#include "HostFrame/GroupingButtons.h"
#include "HostFrame/Gui.h"
#include "HostFrame/HostContext.h"
#include "HostFrame/PanelOwner.h"
#include "HostFrame/ProjectServiceSet.h"
#include "HostFrame/ServiceDecorator.h"
#include "HostFrame/StatusService.h"
#include "HostServices/HostServices.h"
#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerEntityControllerFactory.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerGroupInfo.h"
#include "aec/ProjectExplorerGroupingModel.h"
#include "aec/ProjectExplorerViewCreator.h"

#include <algorithm>

namespace aec::host
{

namespace
{

// The value of the criterion button that stands for no grouping.
const std::wstring noGroupingValue = L"0";

} // namespace

CProjectBinding::CProjectBinding(const ApplicationParts& application,
                                 std::unique_ptr<model::CProject> project)
    : application_(application), project_(std::move(project))
{
    COMMON_PRECONDITION(project_ != nullptr);
    documentKey_ = project_->getDocument().getKey();
    try
    {
        bind();
    }
    catch (...)
    {
        tearDown();
        throw;
    }
}

CProjectBinding::~CProjectBinding()
{
    tearDown();
}

void CProjectBinding::bind()
{
    CHostServices& services = application_.hostServices;
    services.getSessionManager().setCurrentProject(project_.get());

    // "Rename" in the context menu asks the document's user interface to rename in place, which in
    // this host is the explorer's own panel.
    CDocumentGui& documentGui = services.getProxyAppGui().showDocument(documentKey_);
    documentShown_ = true;
    documentGui.setEntityCallback([&panel = application_.panel](const EntityId& entity)
                                  { panel.startRename(entity); });
    model::CDocument& document = project_->getDocument();
    if (document.getPropertyContext() == nullptr)
    {
        propertyContext_ = std::make_unique<CDocumentPropertyContext>();
        document.setPropertyContext(propertyContext_.get());
    }

    projectServices_ = std::make_unique<model::CProjectServices>(*project_);
    hostContext_ = std::make_unique<CHostContext>(*project_, services.getPropertyCatalog());
    model::CProjectServices& own = *projectServices_;
    const ProjectServiceSet ownSet{own.getClassifier(),
                                   own.getEntitySource(),
                                   own.getCopyDataBuilder(),
                                   own.getSheetHandler(),
                                   own.getTableHandler(),
                                   own.getAssemblyHandler(),
                                   own.getMaterialHandler(),
                                   own.getOperationGuardSource(),
                                   own.getPasteHandler(),
                                   project_->getPreferences(),
                                   *hostContext_};
    const ProjectServiceSet project = application_.serviceDecorator != nullptr
                                          ? application_.serviceDecorator->decorateProjectServices(ownSet)
                                          : ownSet;
    const ApplicationServiceSet& library = application_.libraryServices;
    controller_ = application_.controllerFactory.createController(
        project.classifier, project.entitySource, project.copyDataBuilder, project.sheetHandler,
        project.tableHandler, project.assemblyHandler, project.materialHandler, project.operationGuardSource,
        project.pasteHandler);
    view_ = application_.viewCreator.createView(
        application_.panelOwner, project.hostContext, project.preferences, *controller_, library.translation,
        library.sessionManager, project_->getObjectEvents(), library.clipboard);
    view_->setStatusService(&library.statusService);
    view_->setClipboardListenerRegistry(&library.clipboardListenerRegistry);
    view_->setGui(&library.gui);
    showGroupingOnButtons();
    activity_ = view_->createActivity();
}

void CProjectBinding::showGroupingOnButtons()
{
    const auto& groups = projectExplorerGroups();
    for (const IProjectExplorerGroup& group : application_.panel.getExplorer().getGroups())
    {
        const auto info = std::ranges::find(groups, group.getId(), &ProjectExplorerGroupInfo::id);
        if (info == groups.end())
            continue;
        const std::optional<GroupingButtonIds> buttons = groupingButtonsOf(*info);
        if (!buttons)
            continue;
        const IProjectExplorerGroupingModel& model = group.getGroupingModel();
        application_.gui.setButtonValue(buttons->panel, buttons->groupCriterion,
                                        model.getGroupingKeyText().value_or(noGroupingValue), true);
        application_.gui.setButtonValue(
            buttons->panel, buttons->sortOrder,
            std::wstring(model.getSortOrder() == IProjectExplorerGroupingModel::ascending
                             ? CGui::ascendingValue
                             : CGui::descendingValue),
            true);
    }
}

void CProjectBinding::tearDown() noexcept
{
    activity_.reset();
    if (view_ != nullptr)
    {
        // The view takes the explorer with it; the panel must let go of it first.
        application_.panel.detachExplorer();
        view_.reset();
    }
    controller_.reset();
    hostContext_.reset();
    projectServices_.reset();
    if (propertyContext_ != nullptr)
    {
        // The context goes before the project; the document must not point at it meanwhile.
        project_->getDocument().setPropertyContext(nullptr);
        propertyContext_.reset();
    }
    CHostServices& services = application_.hostServices;
    if (documentShown_)
    {
        services.getProxyAppGui().closeDocument(documentKey_);
        documentShown_ = false;
    }
    model::CSessionManager& sessionManager = services.getSessionManager();
    if (sessionManager.hasCurrentProject() && &sessionManager.getCurrentProject() == project_.get())
        sessionManager.setCurrentProject(nullptr);
}

} // namespace aec::host
