#pragma once

#include "ExplorerShell/CommandSet.h"
#include "aec/ContextMenuItem.h"

#include <cstddef>
#include <string>
#include <vector>

namespace aec::shell
{

// The commands of the selection's context menu, asked for through the GUI as a right-click would:
// menu (show it, or choose an item by its text), open and topic (the open item and the items of
// the change-topic submenu).
class CContextMenuCommands final : public CCommandSet
{
public:
    CContextMenuCommands(host::CExplorerSession& session, CCommandTable& table);

    // One item a line, separators as "---", disabled items marked "(disabled)", the items of a
    // submenu indented under it; the item at `current` (a path of indices) marked "(current)".
    static void writeMenu(const std::vector<CContextMenuItem>& items, std::ostream& out,
                          const std::vector<std::size_t>& current = {}, int depth = 0);
    // The way to the item with the text, a submenu's item as "Submenu/Item". Texts compare exactly,
    // else without regard to ASCII case when that leaves one item. Throws common::EException naming
    // the items there are when no item, a separator or a submenu has the text.
    static std::vector<std::size_t> findItem(const std::vector<CContextMenuItem>& items,
                                             const std::wstring& text);

private:
    void showMenu(const CCommandLine& line, std::ostream& out);
    void open();
    void changeTopic(const CCommandLine& line, std::ostream& out);
    // Asks for the context menu of the selection, as a right-click in the panel does.
    // Throws the host's reason when the item is a disabled cut, copy or delete.
    void refuseDisabledCommand(const CContextMenuItem& item);
    const std::vector<CContextMenuItem>& requestMenu();
    void choose(const std::vector<std::size_t>& path);
};

} // namespace aec::shell
