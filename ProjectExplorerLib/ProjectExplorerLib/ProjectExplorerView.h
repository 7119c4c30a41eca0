#pragma once

#include "AecApp/RegistrationList.h"
#include "Common/ScopedObservation.h"
#include "aec/NonDrawingView.h"
#include "aec/ObjectEvents.h"
#include "aec/ProjectExplorerViewCreator.h"
#include "aec/UserInputActor.h"

#include <memory>
#include <vector>

namespace aec
{
class CContextMenuProvider;
class CGroupingButtonHandler;
class IProjectExplorer;
class IProjectExplorerPanel;
} // namespace aec

namespace project_explorer
{

// The explorer's panel as a non-drawing view of the host. It owns the explorer, passes the
// project's entity changes on to the panel, and, once the host hands it the main GUI, binds the
// panel's grouping buttons to the groups and provides the context menus. While the panel has the
// user's attention the host runs the root activity that the view makes.
//
// What the view binds with the host is held by handles: a setGui that fails part-way takes back
// what it had bound and leaves the view as it was, to be bound again. The destructor finishes its
// teardown whatever the host does, and shows a failure on the status line.
class CProjectExplorerView final : public aec::CUserInputActor<aec::INonDrawingView>,
                                   public aec::IObjectEvents
{
public:
    // `explorer` must not be null; every reference must outlive the view. Subscribes to the object
    // events at once and re-announces the panel's user input as the view's.
    CProjectExplorerView(std::unique_ptr<aec::IProjectExplorer> explorer, aec::IHostContext& hostContext,
                         aec::IProjectExplorerPanel& panel, const aec::ITranslation& translation,
                         aec::IProjectExplorerEntityController& entityController,
                         const aec::IProjectSessionManager& sessionManager,
                         aec::ObjectEventSource& objectEvents, const aec::IClipboard& clipboard);
    ~CProjectExplorerView() override;
    CProjectExplorerView(const CProjectExplorerView&) = delete;
    CProjectExplorerView& operator=(const CProjectExplorerView&) = delete;

    // Once only, and never null; a refused or failed call changes nothing. The GUI must outlive
    // the view.
    void setGui(aec::IGui* gui) override;
    void setStatusService(aec::IStatusService* statusService) override;
    void setLayoutHint(int width, int height) override;
    void setClipboardListenerRegistry(aec::IClipboardListenerRegistry* registry) override;
    // Only after setGui. The status service and the clipboard listener registry in force now, each
    // of which may be unset, are the activity's for its whole life.
    std::unique_ptr<aec::IActivity> createActivity() override;
    void onViewActivated() override;
    void onViewDeactivated() override;
    bool hasDrawing() const override;
    bool isModified() const override;
    bool canPrint() const override;
    // An explorer view cannot be printed: always throws common::ENotImplemented.
    void print() override;

    void onProjectOpened() override;
    // Passes changes of entities (code objectEventEntitiesChanged, not both sets empty) to the panel.
    void onObjectsChanged(std::uint32_t code, std::uint32_t value, const aec::EntityIdSet& changed,
                          const aec::EntityIdSet& removed) override;
    void onProjectClosing() override;

private:
    std::vector<std::unique_ptr<aec::CGroupingButtonHandler>> createGroupingButtonHandlers(aec::IGui& gui);
    void releaseGroupingButtonHandlers() noexcept;

    std::unique_ptr<aec::IProjectExplorer> explorer_;
    aec::IHostContext& hostContext_;
    aec::IProjectExplorerPanel& panel_;
    const aec::ITranslation& translation_;
    aec::IProjectExplorerEntityController& entityController_;
    const aec::IProjectSessionManager& sessionManager_;
    aec::ObjectEventSource& objectEvents_;
    const aec::IClipboard& clipboard_;
    aec::IGui* gui_ = nullptr;
    // The two document notifications, in this order; registered by setGui.
    aec::CRegistrationList documentNotifications_;
    aec::IStatusService* statusService_ = nullptr;
    aec::IClipboardListenerRegistry* clipboardListenerRegistry_ = nullptr;
    std::unique_ptr<aec::CContextMenuProvider> contextMenuProvider_;
    std::vector<std::unique_ptr<aec::CGroupingButtonHandler>> groupingButtonHandlers_;
    common::CScopedObservation<aec::IObjectEvents> objectEventsObservation_{*this};
};

} // namespace project_explorer
