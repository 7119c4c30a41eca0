#include "AecApp/PasteController.h"

#include "aec/Clipboard.h"
#include "aec/Commands.h"
#include "aec/Gui.h"

namespace aec
{

CPasteController::CPasteController(IClipboardListenerRegistry& registry, IGui& gui,
                                   std::uint32_t clipboardFormat)
    : registry_(registry), gui_(gui), clipboardFormat_(clipboardFormat)
{
    gui_.addCommandHandler(commands::paste, 0, [this] { pasteRequested_(); });
}

CPasteController::~CPasteController()
{
    // The GUI would otherwise call into a destroyed controller.
    gui_.removeCommandHandler(commands::paste, 0);
}

void CPasteController::clipboardChanged(const IClipboard& clipboard)
{
    gui_.enableCommand(commands::paste, clipboard.hasData(clipboardFormat_));
}

VoidSignal& CPasteController::pasteRequestedSignal()
{
    return pasteRequested_;
}

} // namespace aec
