#include "AecApp/CutCopyPasteContextMenuItems.h"

#include "AecApp/StandardMenuItem.h"
#include "aec/Commands.h"
#include "aec/Gui.h"
#include "aec/TextIds.h"

namespace aec
{

CCutCopyPasteContextMenuItems::CCutCopyPasteContextMenuItems(IGui& gui, bool selectionNotEmpty)
    : gui_(gui), selectionNotEmpty_(selectionNotEmpty)
{
}

std::vector<CContextMenuItem>
CCutCopyPasteContextMenuItems::getMenuItems(const ITranslation& translation) const
{
    return {
        makeStandardMenuItem(translation, text_ids::cut, std::string(cutIdentifier),
                             makeCommandAction(gui_, commands::cut),
                             selectionNotEmpty_ && gui_.isCommandEnabled(commands::cut)),
        makeStandardMenuItem(translation, text_ids::copy, std::string(copyIdentifier),
                             makeCommandAction(gui_, commands::copy),
                             selectionNotEmpty_ && gui_.isCommandEnabled(commands::copy)),
        makeStandardMenuItem(translation, text_ids::paste, std::string(pasteIdentifier),
                             makeCommandAction(gui_, commands::paste),
                             gui_.isCommandEnabled(commands::paste)),
    };
}

std::string CCutCopyPasteContextMenuItems::getName() const
{
    return "cut-copy-paste";
}

} // namespace aec
