#include "AecApp/SeparatorMenuItemProvider.h"

namespace aec::composite_menu_item_provider_details
{

std::vector<CContextMenuItem> CSeparatorMenuItemProvider::getMenuItems(const ITranslation&) const
{
    return {CContextMenuItem(CContextMenuItem::SeparatorTag{})};
}

std::string CSeparatorMenuItemProvider::getName() const
{
    return "separator";
}

} // namespace aec::composite_menu_item_provider_details
