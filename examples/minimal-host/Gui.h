#pragma once

#include "aec/Gui.h"
#include "aec/ProxyAppGui.h"

#include <map>
#include <set>
#include <utility>

namespace minimal_host
{

// The application's user interface: its commands, its context menu, and the user interface of the
// open document. The explorer's activity binds its handlers to command numbers (delete, copy, cut,
// paste, import table, ...) while the panel is active; the host runs them when the user picks the
// command. This host's window has no panel buttons: a group's grouping and sort order are changed
// through the group's grouping model instead.
class CGui final : public aec::IGui, public aec::IProxyAppGui
{
public:
    // The user interface of the open document; null when none is open.
    void setDocumentGui(std::uint32_t documentKey, aec::IDocumentGui* documentGui) noexcept;
    aec::IDocumentGui* getDocumentGui(std::uint32_t documentKey) const override;

    // Runs the command's handler as the menu or shortcut would; throws common::EException when the
    // command has no handler now or is disabled.
    void runCommand(int command) override;
    // Asks for the context menu at the point, as a right click would.
    void requestContextMenu(const aec::MbCartPoint& point);

    void setCommandAvailable(int command, bool available) override;
    void setCommandClaimed(int command, bool claimed) override;
    void addCommandHandler(int command, int variant, CommandHandler handler) override;
    void removeCommandHandler(int command, int variant) override;
    void setContextMenuHandler(ContextMenuHandler handler) override;
    void clearContextMenuHandler() override;
    void enableCommand(int command, bool enabled) override;
    bool isCommandEnabled(int command) const override;
    void showContextMenu(const std::vector<aec::CContextMenuItem>& items,
                         const aec::MbCartPoint& point) override;

    void resetButtonItems(std::uint32_t panel, std::uint32_t element) override;
    void addButtonItem(std::uint32_t panel, std::uint32_t button, const std::wstring& value,
                       const std::wstring& label, bool enabled) override;
    void setButtonValue(std::uint32_t panel, std::uint32_t button, const std::wstring& value,
                        bool notify) override;
    void registerButtonCallback(std::uint32_t panel, std::uint32_t button, ButtonCallback callback) override;
    void unregisterButtonCallback(std::uint32_t panel, std::uint32_t button) override;

    void registerDocumentActivated(Notification notification) override;
    void registerDocumentClosing(Notification notification) override;
    void releaseDocumentActivated() override;
    void releaseDocumentClosing() override;

private:
    // By (command, variant); the user's pick runs variant 0.
    std::map<std::pair<int, int>, CommandHandler> handlers_;
    // Commands are enabled until disabled.
    std::set<int> disabled_;
    ContextMenuHandler contextMenuHandler_;
    std::uint32_t documentKey_ = 0;
    aec::IDocumentGui* documentGui_ = nullptr;
};

} // namespace minimal_host
