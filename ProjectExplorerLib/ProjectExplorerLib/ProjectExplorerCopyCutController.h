#pragma once

#include "aec/EntityId.h"
#include "aec/ObjectEvents.h"
#include "aec/ProjectExplorerViewCreator.h"

#include <boost/signals2/connection.hpp>

namespace aec
{
class IGui;
class IProjectExplorerEntityController;
class IProjectExplorerEntitySelection;
} // namespace aec

namespace project_explorer
{

// Binds the host's copy and cut commands to the explorer's selection: both are enabled exactly
// while the controller is active and something is selected, and run the entity controller's copy
// and cut on what is selected. The handlers stay registered for the controller's life.
//
// The selection also changes while the explorer follows a change of the project (removed entities
// leave it). A GUI that fails to show the new availability then aborts that change, which is rolled
// back without the selection changing again. A controller told to follow the project's changes
// shows the availability once more at the next change, the rollback, so that the commands do not
// stay stale.
class CProjectExplorerCopyCutController : private aec::IObjectEvents
{
public:
    // Registers the two command handlers and follows the selection from its current content on.
    // The three must outlive the controller.
    CProjectExplorerCopyCutController(aec::IGui& gui, aec::IProjectExplorerEntityController& entityController,
                                      aec::IProjectExplorerEntitySelection& selection);
    // Disables both commands and unregisters their handlers.
    ~CProjectExplorerCopyCutController() override;
    CProjectExplorerCopyCutController(const CProjectExplorerCopyCutController&) = delete;
    CProjectExplorerCopyCutController& operator=(const CProjectExplorerCopyCutController&) = delete;

    // While inactive, both commands are disabled and do nothing.
    virtual void setActive(bool active);

    // Follows the changes of the project the explorer shows, until the controller's end; the source
    // must outlive the controller. Called once.
    void followProjectChanges(aec::ObjectEventSource& objectEvents);

private:
    void onProjectOpened() override {}
    void onObjectsChanged(std::uint32_t code, std::uint32_t value, const aec::EntityIdSet& changed,
                          const aec::EntityIdSet& removed) override;
    void onProjectClosing() override {}

    void selectionChanged();
    void refreshAvailability();
    bool canRun() const;
    void runCopy();
    void runCut();

    aec::IGui& gui_;
    aec::IProjectExplorerEntityController& entityController_;
    aec::IProjectExplorerEntitySelection& selection_;
    aec::ObjectEventSource* objectEvents_ = nullptr;
    aec::EntityIdList selected_;
    bool active_ = true;
    // Whether the GUI may show another availability than the controller's: from the start of an
    // update of the two commands until both calls have succeeded.
    bool availabilityStale_ = false;
    boost::signals2::scoped_connection selectionConnection_;
};

} // namespace project_explorer
