#include "AecApp/CompositeMenuItemProvider.h"

#include "Common/Check.h"

#include <stdexcept>

namespace aec
{

CCompositeMenuItemProvider::CCompositeMenuItemProvider(const std::vector<ProviderPtr>& providers)
{
    // std::list::insert does not check its length in every standard library; the check is made
    // here so that every host sees the same error for a list that cannot hold the parts.
    if (providers.size() > providers_.max_size())
        throw std::length_error("list too long");
    for (const auto& provider : providers)
    {
        COMMON_PRECONDITION(provider != nullptr);
        providers_.push_back(provider);
    }
}

std::vector<CContextMenuItem> CCompositeMenuItemProvider::getMenuItems(const ITranslation& translation) const
{
    std::vector<CContextMenuItem> items;
    for (const auto& provider : providers_)
    {
        auto partItems = provider->getMenuItems(translation);
        items.insert(items.end(), std::make_move_iterator(partItems.begin()),
                     std::make_move_iterator(partItems.end()));
    }
    if (!items.empty() && items.back().isSeparator())
        items.pop_back();
    return items;
}

std::string CCompositeMenuItemProvider::getName() const
{
    return "composite";
}

} // namespace aec
