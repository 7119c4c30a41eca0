#pragma once

#include "aec/EntityId.h"

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
class CProjectExplorerCopyCutController
{
public:
    // Registers the two command handlers and follows the selection from its current content on.
    // The three must outlive the controller.
    CProjectExplorerCopyCutController(aec::IGui& gui, aec::IProjectExplorerEntityController& entityController,
                                      aec::IProjectExplorerEntitySelection& selection);
    // Disables both commands and unregisters their handlers.
    virtual ~CProjectExplorerCopyCutController();
    CProjectExplorerCopyCutController(const CProjectExplorerCopyCutController&) = delete;
    CProjectExplorerCopyCutController& operator=(const CProjectExplorerCopyCutController&) = delete;

    // While inactive, both commands are disabled and do nothing.
    virtual void setActive(bool active);

private:
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
    boost::signals2::scoped_connection selectionConnection_;
};

} // namespace project_explorer
