#pragma once

#include "AecApp/RegistrationList.h"
#include "Common/ScopedObservation.h"
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
    // The three must outlive the controller. Should a call of the GUI fail, the handlers registered
    // so far are taken back.
    CProjectExplorerCopyCutController(aec::IGui& gui, aec::IProjectExplorerEntityController& entityController,
                                      aec::IProjectExplorerEntitySelection& selection);
    // Does what release() does, if not done yet, swallowing a failing GUI.
    ~CProjectExplorerCopyCutController() override;
    CProjectExplorerCopyCutController(const CProjectExplorerCopyCutController&) = delete;
    CProjectExplorerCopyCutController& operator=(const CProjectExplorerCopyCutController&) = delete;

    // While inactive, both commands are disabled and do nothing.
    virtual void setActive(bool active);

    // Follows the changes of the project the explorer shows, until the controller's end; the source
    // must outlive the controller. Called once.
    void followProjectChanges(aec::ObjectEventSource& objectEvents);

    // Stops following the selection and the project, disables both commands and unregisters their
    // handlers, copy's first; once. Every step is taken, then the first failure passes on, so that
    // an owner can report it.
    void release();

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
    aec::EntityIdList selected_;
    bool active_ = true;
    bool released_ = false;
    // Whether the GUI may show another availability than the controller's: from the start of an
    // update of the two commands until both calls have succeeded.
    bool availabilityStale_ = false;
    // The handlers of copy and cut, in this order.
    aec::CRegistrationList commandHandlers_;
    boost::signals2::scoped_connection selectionConnection_;
    common::CScopedObservation<aec::IObjectEvents> projectChanges_{*this};
};

} // namespace project_explorer
