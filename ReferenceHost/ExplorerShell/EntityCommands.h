#pragma once

#include "aec/EntityId.h"

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace aec::host
{
class CExplorerSession;
} // namespace aec::host

namespace aec::shell
{

class CCommandLine;
class CCommandTable;

// The commands that change entities: create, rename, delete, copy, cut, paste, properties,
// import. Those that act on the selection run the host's commands that the explorer's root activity
// binds (11 delete, 12 properties, 81 copy, 82 cut, 85 paste, 86 import), as a menu or a key would;
// create and rename call the explorer's entity controller, as a panel's "new" action and its
// in-place rename do.
class CEntityCommands
{
public:
    // Adds the commands to the table; the session must outlive the table.
    CEntityCommands(host::CExplorerSession& session, CCommandTable& table);

private:
    void create(const CCommandLine& line, std::ostream& out);
    void rename(const CCommandLine& line, std::ostream& out);
    void deleteSelection(std::ostream& out);
    void copy(std::ostream& out);
    void cut(std::ostream& out);
    void paste(std::ostream& out);
    void editProperties();
    void importTable(const CCommandLine& line, std::ostream& out);

    // The selection in tree order; throws common::EException when nothing is selected.
    EntityIdList requireSelection() const;
    // Runs the host command; throws common::EException, naming it by `what`, when it cannot run.
    void runCommand(int command, std::string_view what);
    // The names of the entities that are gone from the project, from names taken before.
    std::string removedNames(const EntityIdList& entities, const std::vector<std::string>& names) const;
    // The entities that the clipboard holds now, by their identifiers where they were copied.
    EntityIdSet entitiesOnClipboard() const;

    host::CExplorerSession& session_;
};

} // namespace aec::shell
