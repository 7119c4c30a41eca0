#pragma once

#include "HostFrame/ApplicationServiceSet.h"
#include "HostFrame/HostFrameApi.h"
#include "aec/EntityId.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string_view>

namespace aec
{
class IActivity;
class INonDrawingView;
class IProjectExplorer;
class IProjectExplorerEntityController;
class IProjectExplorerEntityControllerFactory;
class IProjectExplorerEntityProvider;
class IProjectExplorerFactory;
class IProjectExplorerGroupMaker;
class IProjectExplorerGroupingModelFactory;
class IProjectExplorerGuiEventHandlerFactory;
class IProjectExplorerViewCreator;
} // namespace aec

namespace aec::model
{
class CProject;
class CProjectServices;
class CUndoHistory;
} // namespace aec::model

namespace aec::host
{

class CExplorerPanel;
class CGui;
class CGuiProvider;
class CHostServices;
class CPanelOwner;
class CSelectionCommandTargets;
class CProjectBinding;
class CStatusService;
class IServiceDecorator;

// The reference host's explorer for one project at a time, made the way the host application
// makes it, so that a terminal and a desktop program need only show it and pass on what the user
// does.
//
// Construction installs the uuid provider (reproducible identifiers from a seed, else fresh random
// ones, never one that the open project already uses) and makes the application-wide parts: the host
// services, the GUI, the status line, the panel and the library's factories, in the library's start-up order.
// Opening a project then makes its controller, its view bound to the GUI and its root activity, which stays
// active: the explorer is the only view of this host. Opening another project replaces all of these; the GUI,
// the panel and the host services stay, and so do the connections a host program made to them.
//
// A service decorator, when given, stands between the library and the host's services: the library
// gets what the decorator makes of them, at start-up and for each project opened. It must outlive
// the session.
class HOSTFRAME_API CExplorerSession
{
public:
    // The sort-order buttons' labels.
    static constexpr std::wstring_view ascendingLabel = L"Ascending";
    static constexpr std::wstring_view descendingLabel = L"Descending";

    explicit CExplorerSession(std::optional<std::uint64_t> uuidSeed = std::nullopt,
                              IServiceDecorator* serviceDecorator = nullptr);
    // Closes the project and uninstalls the uuid provider.
    ~CExplorerSession();
    CExplorerSession(const CExplorerSession&) = delete;
    CExplorerSession& operator=(const CExplorerSession&) = delete;

    // Shows the project instead of the open one, which is closed first. If the project cannot be
    // shown, the session is left without a project and the failure passes on.
    void open(std::unique_ptr<model::CProject> project);
    // Opens the project file; one that does not load (common::EException) leaves the open project
    // as it was. What the stored explorer state lost on the way is shown on the status line.
    void load(const std::filesystem::path& path);
    // Saves the open project with its explorer state; throws common::EException when it cannot.
    // The saved state is then the project's clean state.
    void save(const std::filesystem::path& path) const;
    // Whether the open project has changes that no file holds: its undo history has moved away from
    // where it was opened or last saved.
    bool hasUnsavedChanges() const noexcept;
    void close() noexcept;
    bool hasProject() const noexcept;

    // The project-bound parts, only while a project is open.
    model::CProject& getProject();
    model::CUndoHistory& getUndoHistory();
    model::CProjectServices& getProjectServices();
    IProjectExplorerEntityController& getEntityController();
    INonDrawingView& getView();
    IActivity& getActivity();
    // The explorer that the panel shows.
    IProjectExplorer& getExplorer();
    const EntityIdSet& getSelection();

    // The application-wide parts, always there.
    CHostServices& getHostServices() noexcept;
    CGui& getGui() noexcept;
    CExplorerPanel& getPanel() noexcept;
    CStatusService& getStatusService() noexcept;
    CPanelOwner& getPanelOwner() noexcept;
    // The library's explorer factory, for a part of the host that makes an explorer of its own.
    const IProjectExplorerFactory& getExplorerFactory() const noexcept;

private:
    CProjectBinding& binding();
    void registerSortButtons();

    IServiceDecorator* serviceDecorator_;
    std::unique_ptr<CHostServices> hostServices_;
    // What the library is given of the host services: the services themselves or their decoration.
    std::unique_ptr<ApplicationServiceSet> libraryServices_;
    std::unique_ptr<CGui> gui_;
    std::unique_ptr<CStatusService> statusService_;
    std::unique_ptr<CPanelOwner> panelOwner_;
    std::unique_ptr<CGuiProvider> guiProvider_;
    CExplorerPanel* panel_ = nullptr;
    std::unique_ptr<IProjectExplorerGroupingModelFactory> groupingModelFactory_;
    std::unique_ptr<IProjectExplorerGroupMaker> groupMaker_;
    std::unique_ptr<IProjectExplorerEntityProvider> entityProvider_;
    std::unique_ptr<IProjectExplorerFactory> explorerFactory_;
    std::unique_ptr<IProjectExplorerGuiEventHandlerFactory> eventHandlerFactory_;
    std::unique_ptr<IProjectExplorerViewCreator> viewCreator_;
    std::unique_ptr<IProjectExplorerEntityControllerFactory> controllerFactory_;
    std::unique_ptr<CProjectBinding> binding_;
    std::unique_ptr<CSelectionCommandTargets> commandTargets_;
};

} // namespace aec::host
