#include "AecApp/PasteController.h"

#include "AecApp/HostRegistrations.h"
#include "aec/Clipboard.h"
#include "aec/Commands.h"
#include "aec/Gui.h"

namespace aec
{

CPasteController::CPasteController(IClipboardListenerRegistry* registry, IGui& gui,
                                   std::uint32_t clipboardFormat)
    : registry_(registry), gui_(gui), clipboardFormat_(clipboardFormat),
      pasteHandler_(registerCommandHandler(gui_, commands::paste, 0, [this] { pasteRequested_(); }))
{
}

// The handle takes the handler back, so that the GUI does not call into a destroyed controller.
CPasteController::~CPasteController() = default;

void CPasteController::release()
{
    pasteHandler_.release();
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
