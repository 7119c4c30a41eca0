#pragma once

#include "AecApp/AecAppApi.h"
#include "aec/MenuItemProvider.h"

namespace aec::composite_menu_item_provider_details
{

// One separator line, placed between the parts of a composite menu to divide them.
class AECAPP_API CSeparatorMenuItemProvider : public IMenuItemProvider
{
public:
    std::vector<CContextMenuItem> getMenuItems(const ITranslation& translation) const override;
    std::string getName() const override;
};

} // namespace aec::composite_menu_item_provider_details
