#include "RecordingGui.h"

#include <stdexcept>

namespace aecapp_tests
{

void RecordingGui::addCommandHandler(int command, int variant, CommandHandler handler)
{
    if (variant != 0)
        throw std::invalid_argument("command handlers of the explorer use variant 0");
    commandHandlers[command] = std::move(handler);
}

void RecordingGui::removeCommandHandler(int command, int variant)
{
    if (variant != 0)
        throw std::invalid_argument("command handlers of the explorer use variant 0");
    commandHandlers.erase(command);
}

void RecordingGui::enableCommand(int command, bool enabled)
{
    enabledCommands[command] = enabled;
}

bool RecordingGui::isCommandEnabled(int command) const
{
    const auto found = enabledCommands.find(command);
    return found != enabledCommands.end() && found->second;
}

void RecordingGui::runCommand(int command)
{
    commandsRun.push_back(command);
    if (const auto found = commandHandlers.find(command); found != commandHandlers.end())
        found->second();
}

void RecordingGui::showContextMenu(const std::vector<aec::CContextMenuItem>& items, const aec::MbCartPoint& point)
{
    shownMenus.push_back({items, point});
}

void RecordingGui::resetButtonItems(std::uint32_t panel, std::uint32_t element)
{
    resets.emplace_back(panel, element);
    buttonItems.erase({panel, element});
}

void RecordingGui::addButtonItem(std::uint32_t panel, std::uint32_t button, const std::wstring& value,
                                 const std::wstring& label, bool enabled)
{
    buttonItems[{panel, button}].push_back({value, label, enabled});
}

void RecordingGui::setButtonValue(std::uint32_t panel, std::uint32_t button, const std::wstring& value, bool)
{
    buttonValues[{panel, button}] = value;
}

void RecordingGui::registerButtonCallback(std::uint32_t panel, std::uint32_t button, ButtonCallback callback)
{
    buttonCallbacks[{panel, button}] = std::move(callback);
}

void RecordingGui::unregisterButtonCallback(std::uint32_t panel, std::uint32_t button)
{
    buttonCallbacks.erase({panel, button});
}

void RecordingGui::choose(std::uint32_t panel, std::uint32_t button, const std::wstring& value)
{
    buttonCallbacks.at({panel, button})(value);
}

} // namespace aecapp_tests
