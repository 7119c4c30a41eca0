#include "FaultInjection/FaultyGui.h"

#include "FaultInjection/FaultPlan.h"

#include <utility>

namespace aec::fault_injection
{

void CFaultyGui::setCommandAvailable(int command, bool available)
{
    plan_.reach("IGui::setCommandAvailable");
    inner_.setCommandAvailable(command, available);
}

void CFaultyGui::setCommandClaimed(int command, bool claimed)
{
    plan_.reach("IGui::setCommandClaimed");
    inner_.setCommandClaimed(command, claimed);
}

void CFaultyGui::addCommandHandler(int command, int variant, CommandHandler handler)
{
    plan_.reach("IGui::addCommandHandler");
    inner_.addCommandHandler(command, variant, std::move(handler));
}

void CFaultyGui::removeCommandHandler(int command, int variant)
{
    plan_.reach("IGui::removeCommandHandler");
    inner_.removeCommandHandler(command, variant);
}

void CFaultyGui::setContextMenuHandler(ContextMenuHandler handler)
{
    plan_.reach("IGui::setContextMenuHandler");
    inner_.setContextMenuHandler(std::move(handler));
}

void CFaultyGui::clearContextMenuHandler()
{
    plan_.reach("IGui::clearContextMenuHandler");
    inner_.clearContextMenuHandler();
}

void CFaultyGui::enableCommand(int command, bool enabled)
{
    plan_.reach("IGui::enableCommand");
    inner_.enableCommand(command, enabled);
}

bool CFaultyGui::isCommandEnabled(int command) const
{
    plan_.reach("IGui::isCommandEnabled");
    return inner_.isCommandEnabled(command);
}

void CFaultyGui::runCommand(int command)
{
    plan_.reach("IGui::runCommand");
    inner_.runCommand(command);
}

void CFaultyGui::showContextMenu(const std::vector<CContextMenuItem>& items, const MbCartPoint& point)
{
    plan_.reach("IGui::showContextMenu");
    inner_.showContextMenu(items, point);
}

void CFaultyGui::resetButtonItems(std::uint32_t panel, std::uint32_t element)
{
    plan_.reach("IGui::resetButtonItems");
    inner_.resetButtonItems(panel, element);
}

void CFaultyGui::addButtonItem(std::uint32_t panel, std::uint32_t button, const std::wstring& value,
                               const std::wstring& label, bool enabled)
{
    plan_.reach("IGui::addButtonItem");
    inner_.addButtonItem(panel, button, value, label, enabled);
}

void CFaultyGui::setButtonValue(std::uint32_t panel, std::uint32_t button, const std::wstring& value,
                                bool notify)
{
    plan_.reach("IGui::setButtonValue");
    inner_.setButtonValue(panel, button, value, notify);
}

void CFaultyGui::registerButtonCallback(std::uint32_t panel, std::uint32_t button, ButtonCallback callback)
{
    plan_.reach("IGui::registerButtonCallback");
    inner_.registerButtonCallback(panel, button, std::move(callback));
}

void CFaultyGui::unregisterButtonCallback(std::uint32_t panel, std::uint32_t button)
{
    plan_.reach("IGui::unregisterButtonCallback");
    inner_.unregisterButtonCallback(panel, button);
}

void CFaultyGui::registerDocumentActivated(Notification notification)
{
    plan_.reach("IGui::registerDocumentActivated");
    inner_.registerDocumentActivated(std::move(notification));
}

void CFaultyGui::registerDocumentClosing(Notification notification)
{
    plan_.reach("IGui::registerDocumentClosing");
    inner_.registerDocumentClosing(std::move(notification));
}

void CFaultyGui::releaseDocumentActivated()
{
    plan_.reach("IGui::releaseDocumentActivated");
    inner_.releaseDocumentActivated();
}

void CFaultyGui::releaseDocumentClosing()
{
    plan_.reach("IGui::releaseDocumentClosing");
    inner_.releaseDocumentClosing();
}

} // namespace aec::fault_injection
