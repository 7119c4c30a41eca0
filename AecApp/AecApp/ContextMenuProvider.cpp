#include "AecApp/ContextMenuProvider.h"

#include "AecApp/CompositeMenuItemProvider.h"
#include "AecApp/SeparatorMenuItemProvider.h"
#include "Common/Check.h"
#include "aec/Gui.h"

namespace aec
{

CContextMenuProvider::CContextMenuProvider(IGui* gui, const ITranslation& translation)
    : gui_(gui), translation_(translation)
{
    COMMON_PRECONDITION(gui_ != nullptr);
}

CContextMenuProvider::~CContextMenuProvider() = default;

void CContextMenuProvider::setStrategyResolver(std::shared_ptr<IContextMenuStrategyResolver> resolver)
{
    resolver_ = std::move(resolver);
}

void CContextMenuProvider::showMenu(const MbCartPoint& point)
{
    if (!resolver_)
        return;
    const auto userInput = createUserInputScope();

    const ContextMenuStrategy strategy = resolver_->resolve(nullptr);
    const auto separator =
        std::make_shared<composite_menu_item_provider_details::CSeparatorMenuItemProvider>();
    std::vector<CCompositeMenuItemProvider::ProviderPtr> parts;
    for (const auto& provider : strategy)
    {
        if (!parts.empty())
            parts.push_back(separator);
        parts.push_back(provider);
    }
    const CCompositeMenuItemProvider menu(parts);
    gui_->showContextMenu(menu.getMenuItems(translation_), point);
}

} // namespace aec
