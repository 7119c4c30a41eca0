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
    struct ShownMenu
    {
        std::vector<aec::CContextMenuItem> items;
        aec::MbCartPoint point;
    };

    void setCommandAvailable(int, bool) override {}
    void setCommandClaimed(int, bool) override {}
    void addCommandHandler(int command, int variant, CommandHandler handler) override;
    void removeCommandHandler(int command, int variant) override;
    void setContextMenuHandler(ContextMenuHandler) override {}
    void clearContextMenuHandler() override {}
    void enableCommand(int command, bool enabled) override;
    bool isCommandEnabled(int command) const override;
    // Records the command, then runs its handler when one is registered.
    void runCommand(int command) override;
    void showContextMenu(const std::vector<aec::CContextMenuItem>& items, const aec::MbCartPoint& point) override;

    void resetButtonItems(std::uint32_t panel, std::uint32_t element) override;
    void addButtonItem(std::uint32_t panel, std::uint32_t button, const std::wstring& value,
                       const std::wstring& label, bool enabled) override;
    void setButtonValue(std::uint32_t panel, std::uint32_t button, const std::wstring& value, bool notify) override;
    void registerButtonCallback(std::uint32_t panel, std::uint32_t button, ButtonCallback callback) override;
    void unregisterButtonCallback(std::uint32_t panel, std::uint32_t button) override;

    void registerDocumentActivated(Notification) override {}
    void registerDocumentClosing(Notification) override {}
    void releaseDocumentActivated() override {}
    void releaseDocumentClosing() override {}

    // Chooses the value of a button as the user would: runs its registered callback.
    void choose(std::uint32_t panel, std::uint32_t button, const std::wstring& value);

    std::map<int, CommandHandler> commandHandlers;
    std::map<int, bool> enabledCommands;
    std::vector<int> commandsRun;
    std::vector<ShownMenu> shownMenus;
    std::vector<Element> resets;
    std::map<Element, std::vector<ButtonItem>> buttonItems;
    std::map<Element, std::wstring> buttonValues;
    std::map<Element, ButtonCallback> buttonCallbacks;
};

} // namespace aecapp_tests
