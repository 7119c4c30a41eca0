#include "FixedMenuItemProvider.h"

namespace aecapp_tests
{

namespace
{
const std::wstring separatorMark = L"-";
}

std::vector<aec::CContextMenuItem> FixedMenuItemProvider::getMenuItems(const aec::ITranslation&) const
{
    std::vector<aec::CContextMenuItem> items;
    for (const auto& text : items_)
    {
        if (text == separatorMark)
            items.emplace_back(aec::CContextMenuItem::SeparatorTag{});
        else
            items.emplace_back(text, "id", nullptr, true, false, 0);
    }
    return items;
}

std::shared_ptr<aec::IMenuItemProvider> fixedItems(std::vector<std::wstring> items)
{
    return std::make_shared<FixedMenuItemProvider>(std::move(items));
}

std::vector<std::wstring> describe(const std::vector<aec::CContextMenuItem>& items)
{
    std::vector<std::wstring> texts;
    for (const auto& item : items)
        texts.push_back(item.isSeparator() ? separatorMark : item.getText());
    return texts;
}

} // namespace aecapp_tests
