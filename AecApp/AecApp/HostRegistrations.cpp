#include "AecApp/HostRegistrations.h"

#include "aec/ClipboardListener.h"

#include <utility>

namespace aec
{

CScopedRegistration registerCommandHandler(IGui& gui, int command, int variant, IGui::CommandHandler handler)
{
    return CScopedRegistration::make([&] { gui.addCommandHandler(command, variant, std::move(handler)); },
                                     [&gui, command, variant]
                                     { gui.removeCommandHandler(command, variant); });
}

CScopedRegistration registerContextMenuHandler(IGui& gui, IGui::ContextMenuHandler handler)
{
    return CScopedRegistration::make([&] { gui.setContextMenuHandler(std::move(handler)); },
                                     [&gui] { gui.clearContextMenuHandler(); });
}

CScopedRegistration registerButtonCallback(IGui& gui, std::uint32_t panel, std::uint32_t button,
                                           IGui::ButtonCallback callback)
{
    return CScopedRegistration::make([&] { gui.registerButtonCallback(panel, button, std::move(callback)); },
                                     [&gui, panel, button] { gui.unregisterButtonCallback(panel, button); });
}

CScopedRegistration registerDocumentActivated(IGui& gui, IGui::Notification notification)
{
    return CScopedRegistration::make([&] { gui.registerDocumentActivated(std::move(notification)); },
                                     [&gui] { gui.releaseDocumentActivated(); });
}

CScopedRegistration registerDocumentClosing(IGui& gui, IGui::Notification notification)
{
    return CScopedRegistration::make([&] { gui.registerDocumentClosing(std::move(notification)); },
                                     [&gui] { gui.releaseDocumentClosing(); });
}

CScopedRegistration registerClipboardListener(IClipboardListenerRegistry& registry,
                                              IClipboardListener& listener)
{
    return CScopedRegistration::make([&] { registry.addListener(listener); },
                                     [&registry, &listener] { registry.removeListener(listener); });
}

} // namespace aec
