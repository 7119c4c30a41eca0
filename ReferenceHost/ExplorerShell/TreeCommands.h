#pragma once

#include "ExplorerShell/CommandSet.h"

namespace aec::shell
{

// The commands that show the tree and fold it: tree, dump, state, toggle.
class CTreeCommands final : public CCommandSet
{
public:
    CTreeCommands(host::CExplorerSession& session, CCommandTable& table);

private:
    void toggle(const CCommandLine& line, std::ostream& out);
    // The state monitor's record of a monitor made now: every group's grouping, sort order and fold
    // state and the fold state of each subgroup, in tree order.
    void writeState(std::ostream& out);
};

} // namespace aec::shell
