#include "ProjectExplorerLib/ProjectExplorerPreferencesUpdatingDecorator.h"

#include "aec/ProjectExplorerEntitySelection.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectPreferences.h"

#include <utility>

namespace project_explorer
{

CProjectExplorerPreferencesUpdatingDecorator::CProjectExplorerPreferencesUpdatingDecorator(
    std::unique_ptr<aec::IProjectExplorer> explorer, aec::IProjectPreferences& preferences)
    : CProjectExplorerBaseDecorator(std::move(explorer)),
      stateMonitor_(std::make_unique<CProjectExplorerStateMonitor>(getExplorer())),
      preferences_(preferences),
      stateChangedConnection_(stateMonitor_->stateChangedSignal().connect([this] { onStateChanged(); }))
{
    // The auto-unfolding decorator inside and the state monitor listen to these already, so the
    // unfolds they make fall between the two slots.
    holdWritesDuring(getExplorer().getEntitySelection().selectionChangedSignal());
    for (aec::IProjectExplorerGroup& group : getExplorer().getGroups())
        holdWritesDuring(group.subgroupsChangedSignal());
}

CProjectExplorerPreferencesUpdatingDecorator::~CProjectExplorerPreferencesUpdatingDecorator()
{
    holdConnections_.clear();
    stateChangedConnection_.disconnect();
}

template <class Signal>
void CProjectExplorerPreferencesUpdatingDecorator::holdWritesDuring(Signal& signal)
{
    holdConnections_.emplace_back(signal.connect([this](const auto&...) { holding_ = true; },
                                                 boost::signals2::at_front));
    holdConnections_.emplace_back(signal.connect([this](const auto&...) { releaseWrites(); }));
}

void CProjectExplorerPreferencesUpdatingDecorator::onStateChanged()
{
    if (holding_)
        writePending_ = true;
    else
        write();
}

void CProjectExplorerPreferencesUpdatingDecorator::releaseWrites()
{
    holding_ = false;
    if (std::exchange(writePending_, false))
        write();
}

void CProjectExplorerPreferencesUpdatingDecorator::write()
{
    preferences_.setProjectExplorerState(stateMonitor_->getGroupStates());
}

} // namespace project_explorer
