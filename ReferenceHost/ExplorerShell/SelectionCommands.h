#pragma once

#include "ExplorerShell/CommandSet.h"
#include "aec/EntityId.h"

namespace aec::shell
{

// The select command: changes the explorer's selection through the panel, as clicks would.
//
//   select NAME...        exactly these entities
//   select +NAME -NAME    add and remove, keeping the rest; with a plain NAME the rest goes
//   select none           nothing
//   select all G          every entity of group G
//
// Every name must name one entity; a quoted word is always a name, so select "none" and
// select "+X" select entities of those names.
class CSelectionCommands final : public CCommandSet
{
public:
    CSelectionCommands(host::CExplorerSession& session, CCommandTable& table);

private:
    void select(const CCommandLine& line, std::ostream& out);
    EntityIdSet chosenSelection(const CCommandLine& line) const;
};

} // namespace aec::shell
