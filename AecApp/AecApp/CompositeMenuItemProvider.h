#pragma once

#include "AecApp/AecAppApi.h"
#include "aec/MenuItemProvider.h"

#include <list>
#include <memory>
#include <vector>

namespace aec
{

// A menu made of the items of several providers, in the providers' order. A separator that ends
// the menu is dropped, because a menu must not end in a line; separators elsewhere are kept as the
// parts gave them.
class AECAPP_API CCompositeMenuItemProvider : public IMenuItemProvider
{
public:
    using ProviderPtr = std::shared_ptr<IMenuItemProvider>;

    // Every provider must be set. Throws std::length_error ("list too long") when the providers
    // do not fit into one list.
    explicit CCompositeMenuItemProvider(const std::vector<ProviderPtr>& providers);

    std::vector<CContextMenuItem> getMenuItems(const ITranslation& translation) const override;
    std::string getName() const override;

private:
    std::list<ProviderPtr> providers_;
};

} // namespace aec
