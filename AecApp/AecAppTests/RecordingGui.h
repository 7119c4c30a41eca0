#pragma once

#include "aec/Gui.h"

#include <map>
#include <utility>
#include <vector>

namespace aecapp_tests
{

// A main GUI that remembers what it was asked to do, so that tests can read the panel buttons,
// the commands and the shown menus back.
class RecordingGui : public aec::IGui
{
public:
    using Element = std::pair<std::uint32_t, std::uint32_t>; // (panel, element)
    struct ButtonItem
    {
        std::wstring value;
        std::wstring label;
        bool enabled = false;
        friend bool operator==(const ButtonItem&, const ButtonItem&) = default;
    };

    void setCommandAvailable(int, bool) override {}
    void setCommandClaimed(int, bool) override {}
    void addCommandHandler(int command, int variant, CommandHandler handler) override
    {
        handlers[command] = handler;
        handlerVariants[command] = variant;
    }
    void removeCommandHandler(int command, int variant) override
    {
        if (handlerVariants.contains(command) && handlerVariants.at(command) == variant)
            handlers.erase(command);
    }
    void setContextMenuHandler(ContextMenuHandler) override {}
    void clearContextMenuHandler() override {}
    void enableCommand(int command, bool enabled) override { enabledCommands[command] = enabled; }
    bool isCommandEnabled(int command) const override
    {
        return enabledCommands.contains(command) && enabledCommands.at(command);
    }
    // Records the command, then runs its handler when one is registered, as the host does.
    void runCommand(int command) override
    {
        commandsRun.push_back(command);
        if (handlers.contains(command))
            handlers.at(command)();
    }
    void showContextMenu(const std::vector<aec::CContextMenuItem>& items,
                         const aec::MbCartPoint& point) override
    {
        shownMenus.emplace_back(items, point);
    }

    void resetButtonItems(std::uint32_t panel, std::uint32_t element) override
    {
        resets.emplace_back(panel, element);
        buttonItems.erase({panel, element});
    }
    void addButtonItem(std::uint32_t panel, std::uint32_t button, const std::wstring& value,
                       const std::wstring& label, bool enabled) override
    {
        buttonItems[{panel, button}].push_back({value, label, enabled});
    }
    void setButtonValue(std::uint32_t panel, std::uint32_t button, const std::wstring& value, bool notify) override
    {
        buttonValues[{panel, button}] = value;
        buttonValueNotified[{panel, button}] = notify;
    }
    void registerButtonCallback(std::uint32_t panel, std::uint32_t button, ButtonCallback callback) override
    {
        buttonCallbacks[{panel, button}] = callback;
    }
    void unregisterButtonCallback(std::uint32_t panel, std::uint32_t button) override
    {
        buttonCallbacks.erase({panel, button});
    }

    void registerDocumentActivated(Notification) override {}
    void registerDocumentClosing(Notification) override {}
    void releaseDocumentActivated() override {}
    void releaseDocumentClosing() override {}

    std::map<int, CommandHandler> handlers;
    std::map<int, int> handlerVariants;
    std::map<int, bool> enabledCommands;
    std::vector<int> commandsRun;
    std::vector<std::pair<std::vector<aec::CContextMenuItem>, aec::MbCartPoint>> shownMenus;
    std::vector<Element> resets;
    std::map<Element, std::vector<ButtonItem>> buttonItems;
    std::map<Element, std::wstring> buttonValues;
    // Whether the last value set asked the button to tell its observers.
    std::map<Element, bool> buttonValueNotified;
    std::map<Element, ButtonCallback> buttonCallbacks;
};

} // namespace aecapp_tests
