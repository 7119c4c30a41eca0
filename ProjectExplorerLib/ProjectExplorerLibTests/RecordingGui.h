#pragma once

#include "aec/Gui.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <utility>
#include <vector>

namespace project_explorer::test
{

// The host's main user interface reduced to what the view and its activity use: it keeps the
// command handlers and runs them as the user would, and records command states, removals, shown
// menus, button callbacks and the document notification registrations.
class RecordingGui final : public aec::IGui
{
public:
    struct CommandState
    {
        bool claimed; // the second boolean state, else the first
        int command;
        bool value;
        friend bool operator==(const CommandState&, const CommandState&) = default;
    };
    using Button = std::pair<std::uint32_t, std::uint32_t>; // (panel, button)

    void setCommandAvailable(int command, bool available) override
    {
        commandStates.push_back({false, command, available});
    }
    void setCommandClaimed(int command, bool claimed) override
    {
        commandStates.push_back({true, command, claimed});
    }
    void addCommandHandler(int command, int variant, CommandHandler handler) override
    {
        EXPECT_TRUE(handlers.try_emplace({command, variant}, std::move(handler)).second)
            << "twice: " << command;
    }
    void removeCommandHandler(int command, int variant) override
    {
        EXPECT_EQ(handlers.erase({command, variant}), 1u) << "no handler: " << command;
        removedHandlers.push_back(command);
    }
    void setContextMenuHandler(ContextMenuHandler handler) override
    {
        contextMenuHandler = std::move(handler);
    }
    void clearContextMenuHandler() override { contextMenuHandler = nullptr; }
    void enableCommand(int command, bool enabled) override { enabledCommands[command] = enabled; }
    bool isCommandEnabled(int command) const override
    {
        return enabledCommands.contains(command) && enabledCommands.at(command);
    }
    // Runs the handler of variant 0 as the user would; the command must have one.
    void runCommand(int command) override
    {
        ASSERT_TRUE(hasHandler(command)) << "no handler: " << command;
        handlers.at({command, 0})();
    }
    void showContextMenu(const std::vector<aec::CContextMenuItem>& items, const aec::MbCartPoint&) override
    {
        shownMenus.push_back(items);
    }
    void resetButtonItems(std::uint32_t, std::uint32_t) override {}
    void addButtonItem(std::uint32_t, std::uint32_t, const std::wstring&, const std::wstring&, bool) override
    {
    }
    void setButtonValue(std::uint32_t, std::uint32_t, const std::wstring&, bool) override {}
    void registerButtonCallback(std::uint32_t panel, std::uint32_t button, ButtonCallback callback) override
    {
        buttonCallbacks[{panel, button}] = std::move(callback);
    }
    void unregisterButtonCallback(std::uint32_t panel, std::uint32_t button) override
    {
        buttonCallbacks.erase({panel, button});
    }
    void registerDocumentActivated(Notification) override { ++documentActivatedRegistrations; }
    void registerDocumentClosing(Notification) override { ++documentClosingRegistrations; }
    void releaseDocumentActivated() override { --documentActivatedRegistrations; }
    void releaseDocumentClosing() override { --documentClosingRegistrations; }

    // Requests the context menu as the user would; a handler must be set.
    void requestContextMenu(const aec::MbCartPoint& point)
    {
        ASSERT_TRUE(contextMenuHandler) << "no context-menu handler is set";
        contextMenuHandler(point);
    }
    bool hasHandler(int command) const { return handlers.contains({command, 0}); }

    std::map<std::pair<int, int>, CommandHandler> handlers; // by (command, variant)
    std::vector<int> removedHandlers;
    std::vector<CommandState> commandStates;
    std::map<int, bool> enabledCommands;
    ContextMenuHandler contextMenuHandler;
    std::vector<std::vector<aec::CContextMenuItem>> shownMenus;
    std::map<Button, ButtonCallback> buttonCallbacks;
    // How many registrations of each notification are held.
    int documentActivatedRegistrations = 0;
    int documentClosingRegistrations = 0;
};

} // namespace project_explorer::test
