#pragma once

#include "AecApp/AecAppApi.h"
#include "aec/MenuItemProvider.h"

#include <string_view>

namespace aec
{

// The open item. Opening means something different for every kind of entity, so the caller gives
// the action instead of a host command.
class AECAPP_API COpenMenuItem : public IMenuItemProvider
{
public:
    static constexpr std::string_view identifier = "5ce2e75f-2844-41bd-b9eb-e76a9e788797";

    COpenMenuItem(CContextMenuItem::Action action, bool enabled);

    std::vector<CContextMenuItem> getMenuItems(const ITranslation& translation) const override;
    std::string getName() const override;

private:
    CContextMenuItem::Action action_;
    bool enabled_;
};

} // namespace aec
