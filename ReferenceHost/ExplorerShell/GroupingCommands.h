#pragma once

#include "HostFrame/GroupingButtons.h"

#include <iosfwd>

namespace aec::host
{
class CExplorerSession;
} // namespace aec::host

namespace aec::shell
{

class CCommandLine;
class CCommandTable;

// The commands of a group's grouping buttons, the two drop-downs above the tree: options (what
// they offer), group (choose the grouping criterion) and sort (choose the order of subgroups). Each
// choice goes through the GUI's button, as a click on the drop-down's item would.
class CGroupingCommands
{
public:
    // Adds the commands to the table; the session must outlive the table.
    CGroupingCommands(host::CExplorerSession& session, CCommandTable& table);

private:
    void writeOptions(const CCommandLine& line, std::ostream& out);
    void chooseGrouping(const CCommandLine& line, std::ostream& out);
    void chooseSortOrder(const CCommandLine& line, std::ostream& out);
    // The group named by the first argument, with its buttons; throws common::EException for a group
    // without grouping.
    std::pair<int, host::GroupingButtonIds> groupWithButtons(const CCommandLine& line) const;

    host::CExplorerSession& session_;
};

} // namespace aec::shell
