#pragma once

#include "AecApp/AecAppApi.h"
#include "aec/MenuItemProvider.h"

#include <string>
#include <string_view>

namespace aec
{

class IGui;

// A family of one item that runs one host command; the standard families that are nothing more
// derive from it and fix its text, identifier and command. The item is enabled when it was made
// enabled and the host's command is enabled when the item is made.
class AECAPP_API CSingleCommandMenuItem : public IMenuItemProvider
{
public:
    std::vector<CContextMenuItem> getMenuItems(const ITranslation& translation) const override;
    std::string getName() const override;

protected:
    CSingleCommandMenuItem(IGui& gui, int textId, std::string_view identifier, int command, bool enabled,
                           std::string name);

private:
    IGui& gui_;
    int textId_;
    std::string identifier_;
    int command_;
    bool enabled_;
    std::string name_;
};

} // namespace aec
