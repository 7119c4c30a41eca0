#pragma once

#include "AecModel/Project.h"
#include "AecModel/ProjectServices.h"
#include "HostFrame/ApplicationServiceSet.h"
#include "aec/Activity.h"
#include "aec/NonDrawingView.h"
#include "aec/ProjectExplorerEntityController.h"

#include <cstdint>
#include <memory>

namespace aec
{
class IProjectExplorerEntityControllerFactory;
class IProjectExplorerViewCreator;
} // namespace aec

namespace aec::host
{

class CDocumentPropertyContext;
class CExplorerPanel;
class CGui;
class CHostContext;
class CHostServices;
class CPanelOwner;
class CStatusService;
class IServiceDecorator;

// Everything of an explorer session that belongs to one open project: the project as the current
// one, its document's user interface and property context (unless the document came with one), its
// services, the host context, the entity controller, the explorer's view bound to the GUI, and the
// root activity. Made in that order, torn down in reverse, also when making fails half way.
class CProjectBinding
{
public:
    // The application parts must outlive the binding; the panel must be the one that the view
    // creator hands out for the owner. The library gets the library services, and the project's
    // services as the decorator, if any, makes them.
    struct ApplicationParts
    {
        CHostServices& hostServices;
        const ApplicationServiceSet& libraryServices;
        IServiceDecorator* serviceDecorator;
        const IProjectExplorerViewCreator& viewCreator;
        const IProjectExplorerEntityControllerFactory& controllerFactory;
        CGui& gui;
        CStatusService& statusService;
        CPanelOwner& panelOwner;
        CExplorerPanel& panel;
    };

    CProjectBinding(const ApplicationParts& application, std::unique_ptr<model::CProject> project);
    ~CProjectBinding();
    CProjectBinding(const CProjectBinding&) = delete;
    CProjectBinding& operator=(const CProjectBinding&) = delete;

    model::CProject& getProject() noexcept { return *project_; }
    model::CProjectServices& getProjectServices() noexcept { return *projectServices_; }
    IProjectExplorerEntityController& getEntityController() noexcept { return *controller_; }
    INonDrawingView& getView() noexcept { return *view_; }
    IActivity& getActivity() noexcept { return *activity_; }

private:
    void bind();
    // Shows each group's grouping and sort order on its buttons: the grouping-button handlers fill
    // the items but set a value only when the user chooses one, and a project may come with a
    // stored grouping.
    void showGroupingOnButtons();
    // Safe on a half-made binding.
    void tearDown() noexcept;

    ApplicationParts application_;
    std::unique_ptr<model::CProject> project_;
    std::uint32_t documentKey_;
    bool documentShown_ = false;
    std::unique_ptr<CDocumentPropertyContext> propertyContext_;
    std::unique_ptr<model::CProjectServices> projectServices_;
    std::unique_ptr<CHostContext> hostContext_;
    std::unique_ptr<IProjectExplorerEntityController> controller_;
    std::unique_ptr<INonDrawingView> view_;
    std::unique_ptr<IActivity> activity_;
};

} // namespace aec::host
