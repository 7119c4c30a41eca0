#pragma once

#include "aec/MenuItemProvider.h"

#include <memory>

namespace aecapp_tests
{

// Menus written as their texts, "-" standing for a separator: a provider of such fixed items, and
// the same notation to read a menu back, so that a menu compares as one short list.
class FixedMenuItemProvider : public aec::IMenuItemProvider
{
public:
    explicit FixedMenuItemProvider(std::vector<std::wstring> texts) : texts_(std::move(texts)) {}

    std::vector<aec::CContextMenuItem> getMenuItems(const aec::ITranslation&) const override
    {
        std::vector<aec::CContextMenuItem> items;
        for (const auto& text : texts_)
            items.push_back(text == L"-" ? aec::CContextMenuItem(aec::CContextMenuItem::SeparatorTag{})
                                         : aec::CContextMenuItem(text, "id", nullptr, true, false, 0));
        return items;
    }
    std::string getName() const override { return "fixed"; }

private:
    std::vector<std::wstring> texts_;
};

inline std::shared_ptr<aec::IMenuItemProvider> fixedItems(std::vector<std::wstring> texts)
{
    return std::make_shared<FixedMenuItemProvider>(std::move(texts));
}

inline std::vector<std::wstring> describe(const std::vector<aec::CContextMenuItem>& items)
{
    std::vector<std::wstring> texts;
    for (const auto& item : items)
        texts.push_back(item.isSeparator() ? L"-" : item.getText());
    return texts;
}

} // namespace aecapp_tests
