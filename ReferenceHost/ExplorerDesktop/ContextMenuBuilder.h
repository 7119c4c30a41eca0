#pragma once

#include "aec/ContextMenuItem.h"

#include <QKeySequence>
#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

class QAction;
class QMenu;

namespace aec::desktop
{

// Fills the menu with the items of a context menu that the GUI showed: an action for each command
// item (greyed when disabled), a line for each separator, a submenu for each item with sub-items.
// Each action carries the item's path (its index, then the indices of sub-items), by which the GUI
// runs the chosen item. An item whose identifier has a shortcut shows it, as the window's menus
// show theirs for the same commands. The action at the path `checked` (a topic that is the current
// one) shows a check.
using ContextMenuShortcuts = std::unordered_map<std::string, QKeySequence>;
void fillContextMenu(QMenu& menu, const std::vector<CContextMenuItem>& items,
                     const ContextMenuShortcuts& shortcuts = {},
                     const std::vector<std::size_t>& checked = {});

// The path of an action that fillContextMenu made; empty for any other action.
std::vector<std::size_t> contextMenuPath(const QAction& action);

} // namespace aec::desktop
