#pragma once

#include "AecApp/AecAppApi.h"
#include "AecApp/ScopedRegistration.h"
#include "aec/ClipboardListener.h"
#include "aec/Signals.h"

#include <cstdint>

namespace aec
{

class IGui;

// Drives the host's paste command from the clipboard: the command is enabled exactly while the
// clipboard holds data of one format, and choosing it asks the owner to paste. The owner registers
// the controller with the registry, if there is one, while it wants it to follow the clipboard.
class AECAPP_API CPasteController : public IClipboardListener
{
public:
    // Takes over the paste command of the GUI until destroyed or released; the registry, which may
    // be null, and the GUI must outlive the controller.
    CPasteController(IClipboardListenerRegistry* registry, IGui& gui, std::uint32_t clipboardFormat);
    ~CPasteController() override;

    CPasteController(const CPasteController&) = delete;
    CPasteController& operator=(const CPasteController&) = delete;

    void clipboardChanged(const IClipboard& clipboard) override;

    // Emitted when the user chooses the paste command.
    VoidSignal& pasteRequestedSignal();

    // The registry with which the owner registers the controller; null when the host has none.
    IClipboardListenerRegistry* getRegistry() const noexcept { return registry_; }

    // Gives the paste command back now, for an owner that reports a failure; a failure passes on.
    void release();

private:
    IClipboardListenerRegistry* registry_;
    IGui& gui_;
    std::uint32_t clipboardFormat_;
    VoidSignal pasteRequested_;
    // Last, so that the GUI lets go of the handler before the signal it calls dies.
    CScopedRegistration pasteHandler_;
};

} // namespace aec
