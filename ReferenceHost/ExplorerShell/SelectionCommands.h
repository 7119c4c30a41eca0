#pragma once

#include "aec/EntityId.h"

#include <iosfwd>

namespace aec::host
{
class CExplorerSession;
} // namespace aec::host

namespace aec::shell
{

class CCommandLine;
class CCommandTable;

// The select command: changes the explorer's selection through the panel, as clicks would.
//
//   select NAME...        exactly these entities
//   select +NAME -NAME    add and remove, keeping the rest; with a plain NAME the rest goes
//   select none           nothing
//   select all G          every entity of group G
//
// Every name must name one entity; a quoted word is always a name, so select "none" and
// select "+X" select entities of those names.
class CSelectionCommands
{
public:
    // Adds the command to the table; the session must outlive the table.
    CSelectionCommands(host::CExplorerSession& session, CCommandTable& table);

private:
    void select(const CCommandLine& line, std::ostream& out);
    EntityIdSet chosenSelection(const CCommandLine& line) const;

    host::CExplorerSession& session_;
};

} // namespace aec::shell
