#include "ProjectExplorerLib/ProjectExplorerPreferencesUpdatingDecorator.h"

#include "aec/ProjectPreferences.h"

namespace project_explorer
{

CProjectExplorerPreferencesUpdatingDecorator::CProjectExplorerPreferencesUpdatingDecorator(
    std::unique_ptr<aec::IProjectExplorer> explorer, aec::IProjectPreferences& preferences)
    : CProjectExplorerBaseDecorator(std::move(explorer)),
      stateMonitor_(std::make_unique<CProjectExplorerStateMonitor>(getExplorer())),
      preferences_(preferences),
      stateChangedConnection_(stateMonitor_->stateChangedSignal().connect(
          [this] { preferences_.setProjectExplorerState(stateMonitor_->getGroupStates()); }))
{
}

CProjectExplorerPreferencesUpdatingDecorator::~CProjectExplorerPreferencesUpdatingDecorator()
{
    stateChangedConnection_.disconnect();
}

} // namespace project_explorer
