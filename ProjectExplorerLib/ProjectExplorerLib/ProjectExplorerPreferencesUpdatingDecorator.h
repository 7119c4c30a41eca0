#pragma once

#include "ProjectExplorerLib/ProjectExplorerBaseDecorator.h"
#include "ProjectExplorerLib/ProjectExplorerStateMonitor.h"
#include "ProjectExplorerLib/StateChangeBatch.h"

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
//
// A selection change or a rebuild may unfold thousands of subgroups in one go (selecting all in a
// folded tree unfolds every subgroup), and each write hands over the whole record, so that one
// write per unfold would cost the square of the subgroups. The auto-unfolding decorator inside
// therefore makes its unfolds one change of a batch: writes wait while it unfolds, and the record
// is written once when it is done, or, should a listener of an unfold throw, as that failure
// leaves it. A write that could not be made is made with the next change, and at the latest
// when the decorator goes.
class CProjectExplorerPreferencesUpdatingDecorator final : public CProjectExplorerBaseDecorator
{
public:
    // The preferences must outlive the decorator.
    CProjectExplorerPreferencesUpdatingDecorator(std::unique_ptr<aec::IProjectExplorer> explorer,
                                                 aec::IProjectPreferences& preferences);
    // Writes what still waits, swallowing a failure: there is no caller left to tell.
    ~CProjectExplorerPreferencesUpdatingDecorator() override;

private:
    void write();

    std::unique_ptr<CProjectExplorerStateMonitor> stateMonitor_;
    aec::IProjectPreferences& preferences_;
    CStateChangeBatch writes_;
    boost::signals2::scoped_connection stateChangedConnection_;
};

} // namespace project_explorer
