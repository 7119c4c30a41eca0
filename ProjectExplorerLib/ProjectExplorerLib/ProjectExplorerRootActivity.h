#pragma once

#include "AecApp/PasteController.h"
#include "AecApp/RegistrationList.h"
#include "ProjectExplorerLib/ProjectExplorerCopyCutController.h"
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
//
// Every binding with the host is held by a handle: an activation that fails part-way takes back
// what it had bound, and the host never keeps a handler of a destroyed activity. The destructor
// finishes its teardown whatever the host does, and shows a failure on the status line.
class CProjectExplorerRootActivity final : public aec::CUserInputActor<aec::IActivity>
{
public:
    // The activity's paste controller follows the clipboard through `clipboardListenerRegistry`;
    // without one, paste availability is not followed. Failures of its own teardown go to
    // `statusService`, when set. Every reference and pointer must outlive the activity.
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
    // Binds the commands, sets the command states and the context menu; nothing when active. A
    // failure takes back what was bound and leaves the activity inactive.
    void activate() override;
    // Releases what activate bound; of the command states it resets only the claim of command 83,
    // the next activity of the host sets its own. Nothing when inactive. Every step is taken even
    // when one fails, the activity ends inactive, and then the first failure passes on.
    void deactivate() override;
    bool isModal() const override;

private:
    void bindActivation();
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
    aec::IClipboardListenerRegistry* clipboardListenerRegistry_;
    aec::IProjectExplorerEntityController& entityController_;
    aec::IProjectExplorerEntitySelection& selection_;
    // The view's further host services and the host context, for the context-menu strategies of
    // this activity; the object events also tell the copy/cut controller of rollbacks.
    const aec::IProjectSessionManager& sessionManager_;
    aec::ObjectEventSource& objectEvents_;
    const aec::IClipboard& clipboard_;
    aec::IHostContext& hostContext_;
    aec::CPasteController pasteController_;
    CProjectExplorerCopyCutController copyCutController_;
    // What an activation bound, in the order bound; empty while inactive.
    aec::CRegistrationList activation_;
    bool active_ = false;
};

} // namespace project_explorer
