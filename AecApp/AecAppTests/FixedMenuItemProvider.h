#pragma once

#include "aec/MenuItemProvider.h"

#include <memory>
#include <string>
#include <vector>

namespace aecapp_tests
{

// A provider of fixed items, written as their texts with "-" for a separator; and the same
// notation to read a menu back, so that a menu compares as one short list.
class FixedMenuItemProvider : public aec::IMenuItemProvider
{
public:
    explicit FixedMenuItemProvider(std::vector<std::wstring> items) : items_(std::move(items)) {}

    std::vector<aec::CContextMenuItem> getMenuItems(const aec::ITranslation&) const override;
    std::string getName() const override { return "fixed"; }

private:
    std::vector<std::wstring> items_;
};

std::shared_ptr<aec::IMenuItemProvider> fixedItems(std::vector<std::wstring> items);
std::vector<std::wstring> describe(const std::vector<aec::CContextMenuItem>& items);

} // namespace aecapp_tests
