#pragma once

#include "AecApp/AecAppApi.h"
#include "AecApp/ScopedRegistration.h"
#include "aec/Gui.h"

#include <cstdint>

namespace aec
{

class IClipboardListener;
class IClipboardListenerRegistry;

// Each makes one registration with the host and returns the handle that undoes it. The host object
// (and the listener) must outlive the handle.

AECAPP_API CScopedRegistration registerCommandHandler(IGui& gui, int command, int variant,
                                                      IGui::CommandHandler handler);
AECAPP_API CScopedRegistration registerContextMenuHandler(IGui& gui, IGui::ContextMenuHandler handler);
AECAPP_API CScopedRegistration registerButtonCallback(IGui& gui, std::uint32_t panel, std::uint32_t button,
                                                      IGui::ButtonCallback callback);
AECAPP_API CScopedRegistration registerDocumentActivated(IGui& gui, IGui::Notification notification);
AECAPP_API CScopedRegistration registerDocumentClosing(IGui& gui, IGui::Notification notification);
AECAPP_API CScopedRegistration registerClipboardListener(IClipboardListenerRegistry& registry,
                                                         IClipboardListener& listener);

} // namespace aec
