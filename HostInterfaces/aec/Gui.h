#pragma once

#include "aec/AecApi.h"
#include "aec/ContextMenuItem.h"
#include "aec/MbCartPoint.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace aec
{

// The host application's main user interface: its commands, context menu and panel buttons.
class AEC_INTERFACE IGui
{
public:
    using CommandHandler = std::function<void()>;
    using ContextMenuHandler = std::function<void(const MbCartPoint&)>;
    using ButtonCallback = std::function<void(const std::wstring&)>;
    using Notification = std::function<void(unsigned long)>;

    virtual ~IGui() = default;

    // Sets whether the command applies in the current context (its first boolean state).
    virtual void setCommandAvailable(int command, bool available) = 0;
    // Sets whether the command is taken by the current activity (its second boolean state).
    virtual void setCommandClaimed(int command, bool claimed) = 0;
    // Adds the handler that runs the command.
    virtual void addCommandHandler(int command, int variant, CommandHandler handler) = 0;
    // Removes the handler of the command.
    virtual void removeCommandHandler(int command, int variant) = 0;
    // Sets what a context-menu request at a point does.
    virtual void setContextMenuHandler(ContextMenuHandler handler) = 0;
    // Removes the context-menu handler.
    virtual void clearContextMenuHandler() = 0;
    // Enables or disables the command.
    virtual void enableCommand(int command, bool enabled) = 0;
    // Whether the command is enabled.
    virtual bool isCommandEnabled(int command) const = 0;
    // Runs the command's handler as if the user had chosen it.
    virtual void runCommand(int command) = 0;
    // Shows a context menu of the items at the point.
    virtual void showContextMenu(const std::vector<CContextMenuItem>& items, const MbCartPoint& point) = 0;

    // Removes every item of a panel element.
    virtual void resetButtonItems(std::uint32_t panel, std::uint32_t element) = 0;
    // Adds an item (value and label) to a panel button.
    virtual void addButtonItem(std::uint32_t panel, std::uint32_t button, const std::wstring& value,
                               const std::wstring& label, bool enabled) = 0;
    // Shows the value as the button's current one.
    virtual void setButtonValue(std::uint32_t panel, std::uint32_t button, const std::wstring& value,
                                bool notify) = 0;
    // Registers what runs when the user chooses a value of the button.
    virtual void registerButtonCallback(std::uint32_t panel, std::uint32_t button, ButtonCallback callback) = 0;
    // Removes the button's callback.
    virtual void unregisterButtonCallback(std::uint32_t panel, std::uint32_t button) = 0;

    // Registers for the notification that the active document changed (its key).
    virtual void registerDocumentActivated(Notification notification) = 0;
    // Registers for the notification that a document is closing (its key).
    virtual void registerDocumentClosing(Notification notification) = 0;
    // Releases the document-activated registration.
    virtual void releaseDocumentActivated() = 0;
    // Releases the document-closing registration.
    virtual void releaseDocumentClosing() = 0;
};

} // namespace aec
