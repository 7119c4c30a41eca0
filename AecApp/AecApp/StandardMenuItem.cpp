#include "AecApp/StandardMenuItem.h"

#include "aec/Gui.h"
#include "aec/Translation.h"

namespace aec
{

CContextMenuItem makeStandardMenuItem(const ITranslation& translation, int textId, std::string identifier,
                                      CContextMenuItem::Action action, bool enabled)
{
    return CContextMenuItem(translation.getText(textId), std::move(identifier), std::move(action), enabled,
                            false, 0);
}

CContextMenuItem::Action makeCommandAction(IGui& gui, int command)
{
    return [&gui, command]
    {
        gui.runCommand(command);
    };
}

} // namespace aec
