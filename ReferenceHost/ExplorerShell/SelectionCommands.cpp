#include "ExplorerShell/SelectionCommands.h"

#include "Common/Exception.h"
#include "ExplorerShell/CommandLine.h"
#include "ExplorerShell/CommandTable.h"
#include "ExplorerShell/ExplorerLookup.h"
#include "HostFrame/ExplorerPanel.h"
#include "HostFrame/ExplorerSession.h"

#include <algorithm>
#include <iterator>
#include <ostream>

namespace aec::shell
{

namespace
{

bool isKeyword(const CommandWord& word, std::string_view keyword)
{
    return !word.quoted && word.text == keyword;
}

EntityIdSet difference(const EntityIdSet& from, const EntityIdSet& without)
{
    EntityIdSet result;
    std::ranges::set_difference(from, without, std::inserter(result, result.end()));
    return result;
}

} // namespace

CSelectionCommands::CSelectionCommands(host::CExplorerSession& session, CCommandTable& table) : session_(session)
{
    table.add({"select", "NAME...|+NAME|-NAME|none|all G",
               "select these entities, add (+) or remove (-) some, none, or all of group G", 1,
               ShellCommand::anyNumber, true,
               [this](const CCommandLine& line, std::ostream& out) { select(line, out); }});
}

void CSelectionCommands::select(const CCommandLine& line, std::ostream& out)
{
    const EntityIdSet chosen = chosenSelection(line);
    const EntityIdSet& current = session_.getSelection();
    session_.getPanel().changeSelection(difference(chosen, current), difference(current, chosen));

    const EntityIdSet& now = session_.getSelection();
    if (now.empty())
        out << "selected: nothing\n";
    else
        out << "selected: " << CExplorerLookup(session_).quotedNames(CExplorerLookup(session_).inTreeOrder(now))
            << '\n';
}

EntityIdSet CSelectionCommands::chosenSelection(const CCommandLine& line) const
{
    const CExplorerLookup lookup(session_);
    const CommandWord& first = line.getArgument(0);
    if (isKeyword(first, "none"))
    {
        if (line.getArgumentCount() != 1)
            throw common::EException("select none takes no names.");
        return {};
    }
    if (isKeyword(first, "all"))
    {
        if (line.getArgumentCount() != 2)
            throw common::EException("Usage: select all G");
        const EntityIdList entities = lookup.entitiesOfGroup(lookup.findGroup(line.getArgument(1)));
        return EntityIdSet(entities.begin(), entities.end());
    }

    EntityIdSet added;
    EntityIdSet removed;
    bool replaces = false;
    for (std::size_t index = 0; index < line.getArgumentCount(); ++index)
    {
        const CommandWord& word = line.getArgument(index);
        const bool marked = !word.quoted && (word.text.starts_with('+') || word.text.starts_with('-'));
        const std::string name = marked ? word.text.substr(1) : word.text;
        if (name.empty())
            throw common::EException("Name an entity after + or -.");
        const EntityId entity = lookup.findEntity(name);
        if (marked && word.text.front() == '-')
        {
            removed.insert(entity);
            added.erase(entity);
            continue;
        }
        replaces = replaces || !marked;
        added.insert(entity);
        removed.erase(entity);
    }
    const EntityIdSet kept = replaces ? EntityIdSet() : session_.getSelection();
    EntityIdSet chosen = difference(kept, removed);
    chosen.insert(added.begin(), added.end());
    return chosen;
}

} // namespace aec::shell
