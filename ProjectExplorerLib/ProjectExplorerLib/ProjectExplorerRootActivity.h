#pragma once

#include "ProjectExplorerLib/ProjectExplorerCopyCutController.h"

#include "AecApp/PasteController.h"

#include "aec/Activity.h"
#include "aec/EntityId.h"
#include "aec/MbCartPoint.h"
#include "aec/ProjectExplorerViewCreator.h"
#include "aec/UserInputActor.h"

namespace aec
{
class CContextMenuProvider;
class IClipboardListenerRegistry;
class IGui;
class IHostContext;
class IProjectExplorerEntityController;
class IProjectExplorerEntitySelection;
class IStatusService;
} // namespace aec

namespace project_explorer
{

// The host activity of the explorer panel: while it is active, the host's delete, edit-properties,
// import and paste commands and the context menu act on the explorer's selection instead of on the
// drawing. It is active from its construction on.
class CProjectExplorerRootActivity final : public aec::CUserInputActor<aec::IActivity>
{
public:
    // `clipboardListenerRegistry` must not be null: the activity's paste controller follows the
    // clipboard there. Every reference and pointer must outlive the activity.
    CProjectExplorerRootActivity(aec::CContextMenuProvider& contextMenuProvider, aec::IGui& gui,
                                 aec::IStatusService* statusService,
                                 aec::IClipboardListenerRegistry* clipboardListenerRegistry,
                                 aec::IProjectExplorerEntityController& entityController,
                                 aec::IProjectExplorerEntitySelection& selection,
                                 const aec::IProjectSessionManager& sessionManager,
                                 aec::ObjectEventSource& objectEvents, const aec::IClipboard& clipboard,
                                 aec::IHostContext& hostContext);
    // Deactivates first when active.
    ~CProjectExplorerRootActivity() override;
    CProjectExplorerRootActivity(const CProjectExplorerRootActivity&) = delete;
    CProjectExplorerRootActivity& operator=(const CProjectExplorerRootActivity&) = delete;

    // The explorer hands nothing to drawing tools: always throws common::ENotImplemented.
    void forwardToDrawingTool() override;
    void onIdle() override;
    // Binds the commands, sets the command states and the context menu; nothing when active.
    void activate() override;
    // Releases what activate bound; of the command states it resets only the claim of command 83,
    // the next activity of the host sets its own. Nothing when inactive.
    void deactivate() override;
    bool isModal() const override;

private:
    static aec::IClipboardListenerRegistry& requireRegistry(aec::IClipboardListenerRegistry* registry);
    aec::EntityIdList selectedEntities() const;
    void importTable();
    void editSelectedProperties();
    void deleteSelected();
    void swallowCommand();
    void paste();
    void showContextMenu(const aec::MbCartPoint& point);

    aec::CContextMenuProvider& contextMenuProvider_;
    aec::IGui& gui_;
    aec::IStatusService* statusService_;
    aec::IClipboardListenerRegistry& clipboardListenerRegistry_;
    aec::IProjectExplorerEntityController& entityController_;
    aec::IProjectExplorerEntitySelection& selection_;
    // The view's further host services, kept for the context-menu strategies of this activity;
    // the explorer's strategy resolver draws on the session manager of them.
    const aec::IProjectSessionManager& sessionManager_;
    aec::ObjectEventSource& objectEvents_;
    const aec::IClipboard& clipboard_;
    aec::IHostContext& hostContext_;
    aec::CPasteController pasteController_;
    CProjectExplorerCopyCutController copyCutController_;
    bool active_ = false;
};

} // namespace project_explorer
