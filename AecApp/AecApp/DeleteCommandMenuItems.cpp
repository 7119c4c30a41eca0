#include "AecApp/DeleteCommandMenuItems.h"

#include "aec/Commands.h"
#include "aec/TextIds.h"

namespace aec
{

CDeleteCommandMenuItems::CDeleteCommandMenuItems(IGui& gui, bool enabled)
    : CSingleCommandMenuItem(gui, text_ids::deleteItem, identifier, commands::deleteSelection, enabled,
                             "delete")
{
}

} // namespace aec
