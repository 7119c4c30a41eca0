#include "AecApp/SingleCommandMenuItem.h"

#include "AecApp/StandardMenuItem.h"
#include "aec/Gui.h"

namespace aec
{

CSingleCommandMenuItem::CSingleCommandMenuItem(IGui& gui, int textId, std::string_view identifier,
                                               int command, bool enabled, std::string name)
    : gui_(gui), textId_(textId), identifier_(identifier), command_(command), enabled_(enabled),
      name_(std::move(name))
{
}

std::vector<CContextMenuItem> CSingleCommandMenuItem::getMenuItems(const ITranslation& translation) const
{
    // The command's state now says whether the selection holds anything it acts on.
    return {makeStandardMenuItem(translation, textId_, identifier_, makeCommandAction(gui_, command_),
                                 enabled_ && gui_.isCommandEnabled(command_))};
}

std::string CSingleCommandMenuItem::getName() const
{
    return name_;
}

} // namespace aec
