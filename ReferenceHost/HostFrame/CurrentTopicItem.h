#pragma once

#include "HostFrame/HostFrameApi.h"
#include "aec/ContextMenuItem.h"

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

namespace aec::host
{

class CExplorerSession;

// The child of the context menu's change-topic submenu that names the topic every selected entity
// has now ("(No topic)" when none has one), as (submenu index, child index): the item a host marks
// with a check. Nothing when the menu has no such submenu or the selected entities differ. The
// submenu lists the project's topic choices in their order, so a child's place names its topic.
HOSTFRAME_API std::optional<std::pair<std::size_t, std::size_t>>
currentTopicItem(CExplorerSession& session, const std::vector<CContextMenuItem>& items);

} // namespace aec::host
