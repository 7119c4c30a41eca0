#pragma once

#include <iosfwd>

namespace aec::host
{
class CExplorerSession;
} // namespace aec::host

namespace aec::shell
{

class CCommandLine;
class CCommandTable;

// The commands that show the tree and fold it: tree, dump, state, toggle.
class CTreeCommands
{
public:
    // Adds the commands to the table; the session must outlive the table.
    CTreeCommands(host::CExplorerSession& session, CCommandTable& table);

private:
    void toggle(const CCommandLine& line, std::ostream& out);
    // The state monitor's record of a monitor made now: every group's grouping, sort order and fold
    // state and the fold state of each subgroup, in tree order.
    void writeState(std::ostream& out);

    host::CExplorerSession& session_;
};

} // namespace aec::shell
