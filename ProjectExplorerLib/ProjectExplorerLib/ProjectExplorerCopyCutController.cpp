#include "ProjectExplorerLib/ProjectExplorerCopyCutController.h"

#include "AecApp/HostRegistrations.h"
#include "AecApp/Teardown.h"
#include "Common/Check.h"
#include "aec/Commands.h"
#include "aec/Gui.h"
#include "aec/ProjectExplorerEntityController.h"
#include "aec/ProjectExplorerEntitySelection.h"

#include <cstddef>
#include <utility>

namespace project_explorer
{

namespace
{
// Copy and cut have a single variant.
constexpr int commandVariant = 0;
// Where each command's handler sits in the list of handlers.
constexpr std::size_t copyHandler = 0;
constexpr std::size_t cutHandler = 1;
} // namespace

CProjectExplorerCopyCutController::CProjectExplorerCopyCutController(
    aec::IGui& gui, aec::IProjectExplorerEntityController& entityController,
    aec::IProjectExplorerEntitySelection& selection)
    : gui_(gui), entityController_(entityController), selection_(selection)
{
    commandHandlers_.add(
        aec::registerCommandHandler(gui_, aec::commands::copy, commandVariant, [this] { runCopy(); }));
    commandHandlers_.add(
        aec::registerCommandHandler(gui_, aec::commands::cut, commandVariant, [this] { runCut(); }));
    selectionConnection_ = selection_.selectionChangedSignal().connect(
        [this](const aec::EntityIdSet&, const aec::EntityIdSet&) { selectionChanged(); });
    // The panel may hold a selection from before this controller was made; the commands follow
    // it from the start, not only from its next change.
    selectionChanged();
}

CProjectExplorerCopyCutController::~CProjectExplorerCopyCutController()
{
    try
    {
        release();
    }
    catch (...)
    {
        // The owner that wants to report a failure calls release() first; a handler that the GUI
        // refused to give back is asked for again as the handler list goes.
    }
}

void CProjectExplorerCopyCutController::release()
{
    if (std::exchange(released_, true))
        return;
    projectChanges_.reset();
    selectionConnection_.disconnect();
    active_ = false;
    aec::CTeardown teardown;
    teardown.run([this] { gui_.enableCommand(aec::commands::copy, false); });
    teardown.run([this] { gui_.enableCommand(aec::commands::cut, false); });
    teardown.run([this] { commandHandlers_.release(copyHandler); });
    teardown.run([this] { commandHandlers_.release(cutHandler); });
    selected_.clear();
    teardown.finish();
}

void CProjectExplorerCopyCutController::setActive(bool active)
{
    active_ = active;
    refreshAvailability();
}

void CProjectExplorerCopyCutController::followProjectChanges(aec::ObjectEventSource& objectEvents)
{
    projectChanges_.observe(objectEvents);
}

void CProjectExplorerCopyCutController::selectionChanged()
{
    const aec::EntityIdSet& selection = selection_.getSelection();
    selected_ = aec::EntityIdList(selection.begin(), selection.end());
    refreshAvailability();
}

void CProjectExplorerCopyCutController::onObjectsChanged(std::uint32_t /*code*/, std::uint32_t /*value*/,
                                                         const aec::EntityIdSet& /*changed*/,
                                                         const aec::EntityIdSet& /*removed*/)
{
    if (availabilityStale_)
        refreshAvailability();
}

void CProjectExplorerCopyCutController::refreshAvailability()
{
    availabilityStale_ = true;
    gui_.enableCommand(aec::commands::copy, canRun());
    gui_.enableCommand(aec::commands::cut, canRun());
    availabilityStale_ = false;
}

bool CProjectExplorerCopyCutController::canRun() const
{
    return active_ && !selected_.empty();
}

void CProjectExplorerCopyCutController::runCopy()
{
    if (canRun())
        entityController_.copy(selected_);
}

void CProjectExplorerCopyCutController::runCut()
{
    // The cut changes the selection (the removed entities leave the panel) while it runs, so it
    // works on a copy of the list rather than on the cached one.
    if (canRun())
        entityController_.cut(aec::EntityIdList(selected_));
}

} // namespace project_explorer
