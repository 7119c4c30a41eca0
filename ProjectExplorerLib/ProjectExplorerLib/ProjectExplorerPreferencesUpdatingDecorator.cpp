#include "ProjectExplorerLib/ProjectExplorerPreferencesUpdatingDecorator.h"

#include "ProjectExplorerLib/ProjectExplorerAutoUnfoldingDecorator.h"
#include "aec/ProjectPreferences.h"

#include <utility>

namespace project_explorer
{

CProjectExplorerPreferencesUpdatingDecorator::CProjectExplorerPreferencesUpdatingDecorator(
    std::unique_ptr<aec::IProjectExplorer> explorer, aec::IProjectPreferences& preferences)
    : CProjectExplorerBaseDecorator(std::move(explorer)),
      stateMonitor_(std::make_unique<CProjectExplorerStateMonitor>(getExplorer())), preferences_(preferences),
      writes_([this] { write(); }),
      stateChangedConnection_(stateMonitor_->stateChangedSignal().connect([this] { writes_.changed(); }))
{
    if (auto* const unfolding = dynamic_cast<CProjectExplorerAutoUnfoldingDecorator*>(&getExplorer()))
        unfolding->batchUnfoldsIn(&writes_);
}

CProjectExplorerPreferencesUpdatingDecorator::~CProjectExplorerPreferencesUpdatingDecorator()
{
    stateChangedConnection_.disconnect();
    if (auto* const unfolding = dynamic_cast<CProjectExplorerAutoUnfoldingDecorator*>(&getExplorer()))
        unfolding->batchUnfoldsIn(nullptr);
    try
    {
        writes_.flush();
    }
    catch (...)
    {
        // The preferences refused the last state; the project keeps the one written before.
    }
}

void CProjectExplorerPreferencesUpdatingDecorator::write()
{
    preferences_.setProjectExplorerState(stateMonitor_->getGroupStates());
}

} // namespace project_explorer
