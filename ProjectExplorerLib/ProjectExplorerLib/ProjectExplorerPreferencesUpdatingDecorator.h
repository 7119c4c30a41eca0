#pragma once

#include "ProjectExplorerLib/ProjectExplorerBaseDecorator.h"
#include "ProjectExplorerLib/ProjectExplorerStateMonitor.h"

#include <boost/signals2/connection.hpp>

#include <memory>
#include <vector>

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
// write per unfold would cost the square of the subgroups. While the explorer's own listeners of
// those signals run, writes therefore wait, and the record is written once when they are done,
// before the signal's emitter returns. Should a listener throw, the waiting write goes with the
// next selection change or rebuild.
class CProjectExplorerPreferencesUpdatingDecorator final : public CProjectExplorerBaseDecorator
{
public:
    // The preferences must outlive the decorator.
    CProjectExplorerPreferencesUpdatingDecorator(std::unique_ptr<aec::IProjectExplorer> explorer,
                                                 aec::IProjectPreferences& preferences);
    ~CProjectExplorerPreferencesUpdatingDecorator() override;

private:
    // Connects the two slots that hold writes first and write what waits last, around the listeners
    // connected so far to the signal.
    template <class Signal>
    void holdWritesDuring(Signal& signal);
    void onStateChanged();
    void releaseWrites();
    void write();

    std::unique_ptr<CProjectExplorerStateMonitor> stateMonitor_;
    aec::IProjectPreferences& preferences_;
    bool holding_ = false;
    bool writePending_ = false;
    std::vector<boost::signals2::scoped_connection> holdConnections_;
    boost::signals2::scoped_connection stateChangedConnection_;
};

} // namespace project_explorer
