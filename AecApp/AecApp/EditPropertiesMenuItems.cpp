#include "AecApp/EditPropertiesMenuItems.h"

#include "aec/Commands.h"
#include "aec/TextIds.h"

namespace aec
{

CEditPropertiesMenuItems::CEditPropertiesMenuItems(IGui& gui, bool enabled)
    : CSingleCommandMenuItem(gui, text_ids::editProperties, identifier, commands::editProperties, enabled,
                             "edit-properties")
{
}

} // namespace aec
