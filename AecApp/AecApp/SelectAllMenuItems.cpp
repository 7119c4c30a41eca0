#include "AecApp/SelectAllMenuItems.h"

#include "aec/Commands.h"
#include "aec/TextIds.h"

namespace aec
{

CSelectAllMenuItems::CSelectAllMenuItems(IGui& gui)
    : CSingleCommandMenuItem(gui, text_ids::selectAll, identifier, commands::selectAll, true, "select-all")
{
}

} // namespace aec
