#include "ProjectExplorerLib/ProjectExplorerRootActivity.h"

#include "AecApp/ContextMenuProvider.h"
#include "AecApp/HostRegistrations.h"
#include "AecApp/Teardown.h"
#include "AecApp/TeardownFailureReport.h"
#include "Common/Check.h"
#include "ProjectExplorerLib/ProjectExplorerContextMenuStrategyResolver.h"
#include "aec/ClipboardFormats.h"
#include "aec/ClipboardListener.h"
#include "aec/Commands.h"
#include "aec/Gui.h"
#include "aec/ProjectExplorerEntityController.h"
#include "aec/ProjectExplorerEntitySelection.h"

#include <array>
#include <boost/bind/bind.hpp>
#include <cstddef>
#include <utility>

namespace project_explorer
{

namespace
{

// The explorer's commands have a single variant.
constexpr int commandVariant = 0;

// The command whose claim is the one state that deactivation takes back.
constexpr int releasedClaimCommand = 83;

// Where each binding of an activation sits in the activation's registrations: the four command
// handlers in the order bound, the context-menu handler, then the clipboard listener, if any.
enum ActivationEntry : std::size_t
{
    importTableHandler,
    editPropertiesHandler,
    deleteHandler,
    swallowedHandler,
    contextMenuHandler,
    clipboardListener,
};

// One of the two boolean states of a host command, as the activity sets it on activation.
struct CommandState
{
    enum class Kind
    {
        Available,
        Claimed
    };
    Kind kind;
    int command;
    bool value;
};

// The command states of the host while the explorer is active, in the order they are set; the
// numbers are the host's own command numbering.
const std::array<CommandState, 14>& activeCommandStates()
{
    using enum CommandState::Kind;
    static const std::array<CommandState, 14> states{{
        {Claimed, 809, true},
        {Available, 79, false},
        {Available, 78, false},
        {Available, 69, false},
        {Available, 70, false},
        {Available, 73, false},
        {Available, 74, false},
        {Available, 76, true},
        {Available, 75, true},
        {Available, aec::commands::importTable, true},
        {Claimed, 487, false},
        {Claimed, releasedClaimCommand, true},
        {Claimed, 84, true},
        {Available, 87, false},
    }};
    return states;
}

} // namespace

CProjectExplorerRootActivity::CProjectExplorerRootActivity(
    aec::CContextMenuProvider& contextMenuProvider, aec::IGui& gui, aec::IStatusService* statusService,
    aec::IClipboardListenerRegistry* clipboardListenerRegistry,
    aec::IProjectExplorerEntityController& entityController, aec::IProjectExplorerEntitySelection& selection,
    const aec::IProjectSessionManager& sessionManager, aec::ObjectEventSource& objectEvents,
    const aec::IClipboard& clipboard, aec::IHostContext& hostContext)
    : contextMenuProvider_(contextMenuProvider), gui_(gui), statusService_(statusService),
      clipboardListenerRegistry_(clipboardListenerRegistry), entityController_(entityController),
      selection_(selection), sessionManager_(sessionManager), objectEvents_(objectEvents),
      clipboard_(clipboard), hostContext_(hostContext),
      pasteController_(clipboardListenerRegistry_, gui_, aec::clipboardFormatProjectEntities),
      copyCutController_(gui_, entityController_, selection_)
{
    // The signal belongs to the paste controller, which the activity outlives, so the connection
    // needs no keeping.
    pasteController_.pasteRequestedSignal().connect(boost::bind(&CProjectExplorerRootActivity::paste, this));
    // A change that the GUI failed to follow is rolled back; copy and cut then show their state again.
    copyCutController_.followProjectChanges(objectEvents_);
    activate();
}

CProjectExplorerRootActivity::~CProjectExplorerRootActivity()
{
    // Each part is let go of even when one before it fails: a binding left behind would call into
    // this activity after its end.
    try
    {
        deactivate();
    }
    catch (...)
    {
        aec::reportTeardownFailure(statusService_);
    }
    try
    {
        copyCutController_.release();
    }
    catch (...)
    {
        aec::reportTeardownFailure(statusService_);
    }
    try
    {
        pasteController_.release();
    }
    catch (...)
    {
        aec::reportTeardownFailure(statusService_);
    }
}

void CProjectExplorerRootActivity::forwardToDrawingTool()
{
    COMMON_NOT_IMPLEMENTED();
}

void CProjectExplorerRootActivity::onIdle() {}

void CProjectExplorerRootActivity::activate()
{
    if (active_)
        return;
    try
    {
        bindActivation();
    }
    catch (...)
    {
        activation_.clear();
        throw;
    }
    active_ = true;
}

void CProjectExplorerRootActivity::bindActivation()
{
    using Handler = void (CProjectExplorerRootActivity::*)();
    static const std::array<std::pair<int, Handler>, 4> commandHandlers{{
        {aec::commands::importTable, &CProjectExplorerRootActivity::importTable},
        {aec::commands::editProperties, &CProjectExplorerRootActivity::editSelectedProperties},
        {aec::commands::deleteSelection, &CProjectExplorerRootActivity::deleteSelected},
        {aec::commands::swallowed, &CProjectExplorerRootActivity::swallowCommand},
    }};
    for (const auto& [command, handler] : commandHandlers)
        activation_.add(
            aec::registerCommandHandler(gui_, command, commandVariant, boost::bind(handler, this)));

    for (const CommandState& state : activeCommandStates())
    {
        if (state.kind == CommandState::Kind::Available)
            gui_.setCommandAvailable(state.command, state.value);
        else
            gui_.setCommandClaimed(state.command, state.value);
    }

    activation_.add(aec::registerContextMenuHandler(gui_, [this](const aec::MbCartPoint& point)
                                                    { showContextMenu(point); }));
    // Without a registry the host does not tell of clipboard changes; paste then keeps the
    // availability the host gives it.
    if (clipboardListenerRegistry_ != nullptr)
        activation_.add(aec::registerClipboardListener(*clipboardListenerRegistry_, pasteController_));
}

void CProjectExplorerRootActivity::deactivate()
{
    if (!active_)
        return;
    active_ = false;

    aec::CTeardown teardown;
    const auto release = [this, &teardown](ActivationEntry entry)
    {
        teardown.run([this, entry] { activation_.release(entry); });
    };
    if (clipboardListenerRegistry_ != nullptr)
        release(clipboardListener);
    release(importTableHandler);
    release(deleteHandler);
    release(swallowedHandler);
    release(editPropertiesHandler);
    teardown.run([this] { gui_.setCommandClaimed(releasedClaimCommand, false); });
    release(contextMenuHandler);
    // A binding that the host refused to give back is asked for again here.
    activation_.clear();
    teardown.finish();
}

bool CProjectExplorerRootActivity::isModal() const
{
    return false;
}

aec::EntityIdList CProjectExplorerRootActivity::selectedEntities() const
{
    const aec::EntityIdSet& selection = selection_.getSelection();
    return aec::EntityIdList(selection.begin(), selection.end());
}

void CProjectExplorerRootActivity::importTable()
{
    entityController_.importTableFromFile();
}

void CProjectExplorerRootActivity::editSelectedProperties()
{
    const aec::EntityIdList entities = selectedEntities();
    if (entityController_.canEditProperties(entities))
        entityController_.editProperties(entities);
}

void CProjectExplorerRootActivity::deleteSelected()
{
    const aec::EntityIdList entities = selectedEntities();
    if (!entities.empty())
        entityController_.deleteWithConfirmation(entities);
}

// The host would otherwise run this command on the drawing behind the panel; while the explorer is
// active it is taken and does nothing.
void CProjectExplorerRootActivity::swallowCommand() {}

void CProjectExplorerRootActivity::paste()
{
    entityController_.paste();
}

// Each request gets a resolver of its own, so that the menu is made from the selection and the
// project of that moment.
void CProjectExplorerRootActivity::showContextMenu(const aec::MbCartPoint& point)
{
    contextMenuProvider_.setStrategyResolver(std::make_shared<CProjectExplorerContextMenuStrategyResolver>(
        entityController_, selection_, sessionManager_, statusService_, clipboardListenerRegistry_,
        objectEvents_, clipboard_, hostContext_, gui_));
    contextMenuProvider_.showMenu(point);
}

} // namespace project_explorer
