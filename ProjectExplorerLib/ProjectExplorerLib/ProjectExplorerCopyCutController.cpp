#include "ProjectExplorerLib/ProjectExplorerCopyCutController.h"

#include "Common/Check.h"
#include "aec/Commands.h"
#include "aec/Gui.h"
#include "aec/ProjectExplorerEntityController.h"
#include "aec/ProjectExplorerEntitySelection.h"

namespace project_explorer
{

namespace
{
// Copy and cut have a single variant.
constexpr int commandVariant = 0;
} // namespace

CProjectExplorerCopyCutController::CProjectExplorerCopyCutController(
    aec::IGui& gui, aec::IProjectExplorerEntityController& entityController,
    aec::IProjectExplorerEntitySelection& selection)
    : gui_(gui), entityController_(entityController), selection_(selection)
{
    gui_.addCommandHandler(aec::commands::copy, commandVariant, [this] { runCopy(); });
    gui_.addCommandHandler(aec::commands::cut, commandVariant, [this] { runCut(); });
    selectionConnection_ = selection_.selectionChangedSignal().connect(
        [this](const aec::EntityIdSet&, const aec::EntityIdSet&) { selectionChanged(); });
    // The panel may hold a selection from before this controller was made; the commands follow
    // it from the start, not only from its next change.
    selectionChanged();
}

CProjectExplorerCopyCutController::~CProjectExplorerCopyCutController()
{
    if (objectEvents_ != nullptr)
        objectEvents_->removeObserver(*this);
    selectionConnection_.disconnect();
    active_ = false;
    gui_.enableCommand(aec::commands::copy, false);
    gui_.enableCommand(aec::commands::cut, false);
    gui_.removeCommandHandler(aec::commands::copy, commandVariant);
    gui_.removeCommandHandler(aec::commands::cut, commandVariant);
}

void CProjectExplorerCopyCutController::setActive(bool active)
{
    active_ = active;
    refreshAvailability();
}

void CProjectExplorerCopyCutController::followProjectChanges(aec::ObjectEventSource& objectEvents)
{
    COMMON_PRECONDITION(objectEvents_ == nullptr);
    objectEvents_ = &objectEvents;
    objectEvents_->addObserver(*this);
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
