#pragma once

#include "AecApp/AecAppApi.h"
#include "aec/ContextMenu.h"
#include "aec/ContextMenuStrategyResolver.h"
#include "aec/MbCartPoint.h"
#include "aec/UserInputActor.h"

#include <memory>

namespace aec
{

class IGui;
class ITranslation;

// Shows the context menus of one view: the menu's parts come from the strategy resolver of the
// current request and are divided by separator lines.
class AECAPP_API CContextMenuProvider : public CUserInputActor<IContextMenu>
{
public:
    // The GUI must be set; both must outlive the provider.
    CContextMenuProvider(IGui* gui, const ITranslation& translation);
    ~CContextMenuProvider() override;

    // The resolver of the menus shown from now on; it replaces the earlier one.
    void setStrategyResolver(std::shared_ptr<IContextMenuStrategyResolver> resolver);
    // Shows the menu at the point, as user input of this provider. Without a resolver there is no
    // menu to show and nothing happens.
    void showMenu(const MbCartPoint& point);

private:
    IGui* gui_;
    const ITranslation& translation_;
    std::shared_ptr<IContextMenuStrategyResolver> resolver_;
};

} // namespace aec
