#pragma once

#include "ProjectExplorerLib/ProjectExplorerBaseDecorator.h"
#include "ProjectExplorerLib/ProjectExplorerStateMonitor.h"

#include <boost/signals2/connection.hpp>

#include <memory>

namespace aec
{
class IProjectPreferences;
} // namespace aec

namespace project_explorer
{

// Writes the explorer's fold and grouping state into the project preferences on every change, so
// that the next explorer of the project opens as the user left this one.
class CProjectExplorerPreferencesUpdatingDecorator final : public CProjectExplorerBaseDecorator
{
public:
    // The preferences must outlive the decorator.
    CProjectExplorerPreferencesUpdatingDecorator(std::unique_ptr<aec::IProjectExplorer> explorer,
                                                 aec::IProjectPreferences& preferences);
    ~CProjectExplorerPreferencesUpdatingDecorator() override;

private:
    std::unique_ptr<CProjectExplorerStateMonitor> stateMonitor_;
    aec::IProjectPreferences& preferences_;
    boost::signals2::scoped_connection stateChangedConnection_;
};

} // namespace project_explorer
