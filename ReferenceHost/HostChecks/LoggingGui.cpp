#include "HostChecks/LoggingGui.h"

#include <fmt/format.h>
#include <utility>

namespace aec::host
{

void CLoggingGui::setCommandAvailable(int command, bool available)
{
    log_.push_back(fmt::format("setCommandAvailable {} {}", command, available));
    inner_.setCommandAvailable(command, available);
}

void CLoggingGui::setCommandClaimed(int command, bool claimed)
{
    log_.push_back(fmt::format("setCommandClaimed {} {}", command, claimed));
    inner_.setCommandClaimed(command, claimed);
}

void CLoggingGui::addCommandHandler(int command, int variant, CommandHandler handler)
{
    log_.push_back(fmt::format("addCommandHandler {} {}", command, variant));
    inner_.addCommandHandler(command, variant, std::move(handler));
}

void CLoggingGui::removeCommandHandler(int command, int variant)
{
    log_.push_back(fmt::format("removeCommandHandler {} {}", command, variant));
    inner_.removeCommandHandler(command, variant);
}

void CLoggingGui::setContextMenuHandler(ContextMenuHandler handler)
{
    log_.emplace_back("setContextMenuHandler");
    inner_.setContextMenuHandler(std::move(handler));
}

void CLoggingGui::clearContextMenuHandler()
{
    log_.emplace_back("clearContextMenuHandler");
    inner_.clearContextMenuHandler();
}

void CLoggingGui::enableCommand(int command, bool enabled)
{
    log_.push_back(fmt::format("enableCommand {} {}", command, enabled));
    inner_.enableCommand(command, enabled);
}

bool CLoggingGui::isCommandEnabled(int command) const
{
    log_.push_back(fmt::format("isCommandEnabled {}", command));
    return inner_.isCommandEnabled(command);
}

void CLoggingGui::runCommand(int command)
{
    log_.push_back(fmt::format("runCommand {}", command));
    inner_.runCommand(command);
}

void CLoggingGui::showContextMenu(const std::vector<CContextMenuItem>& items, const MbCartPoint& point)
{
    log_.emplace_back("showContextMenu");
    inner_.showContextMenu(items, point);
}

void CLoggingGui::resetButtonItems(std::uint32_t panel, std::uint32_t element)
{
    log_.push_back(fmt::format("resetButtonItems {} {}", panel, element));
    inner_.resetButtonItems(panel, element);
}

void CLoggingGui::addButtonItem(std::uint32_t panel, std::uint32_t button, const std::wstring& value,
                                const std::wstring& label, bool enabled)
{
    log_.push_back(fmt::format("addButtonItem {} {}", panel, button));
    inner_.addButtonItem(panel, button, value, label, enabled);
}

void CLoggingGui::setButtonValue(std::uint32_t panel, std::uint32_t button, const std::wstring& value,
                                 bool notify)
{
    log_.push_back(fmt::format("setButtonValue {} {}", panel, button));
    inner_.setButtonValue(panel, button, value, notify);
}

void CLoggingGui::registerButtonCallback(std::uint32_t panel, std::uint32_t button, ButtonCallback callback)
{
    log_.push_back(fmt::format("registerButtonCallback {} {}", panel, button));
    inner_.registerButtonCallback(panel, button, std::move(callback));
}

void CLoggingGui::unregisterButtonCallback(std::uint32_t panel, std::uint32_t button)
{
    log_.push_back(fmt::format("unregisterButtonCallback {} {}", panel, button));
    inner_.unregisterButtonCallback(panel, button);
}

void CLoggingGui::registerDocumentActivated(Notification notification)
{
    log_.emplace_back("registerDocumentActivated");
    inner_.registerDocumentActivated(std::move(notification));
}

void CLoggingGui::registerDocumentClosing(Notification notification)
{
    log_.emplace_back("registerDocumentClosing");
    inner_.registerDocumentClosing(std::move(notification));
}

void CLoggingGui::releaseDocumentActivated()
{
    log_.emplace_back("releaseDocumentActivated");
    inner_.releaseDocumentActivated();
}

void CLoggingGui::releaseDocumentClosing()
{
    log_.emplace_back("releaseDocumentClosing");
    inner_.releaseDocumentClosing();
}

} // namespace aec::host
