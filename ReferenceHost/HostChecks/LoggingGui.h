#pragma once

#include "aec/Gui.h"

#include <string>
#include <vector>

namespace aec::host
{

// The host's main user interface as the explorer library meets it, with every call written to a
// log, one line each: the operation's name and its numbers ("addCommandHandler 86",
// "setCommandClaimed 809 true"). Each call then goes on to the GUI it decorates unchanged, so that
// the host works as it does without the log.
class CLoggingGui final : public IGui
{
public:
    // Both must outlive the decorator.
    CLoggingGui(IGui& inner, std::vector<std::string>& log) : inner_(inner), log_(log) {}

    void setCommandAvailable(int command, bool available) override;
    void setCommandClaimed(int command, bool claimed) override;
    void addCommandHandler(int command, int variant, CommandHandler handler) override;
    void removeCommandHandler(int command, int variant) override;
    void setContextMenuHandler(ContextMenuHandler handler) override;
    void clearContextMenuHandler() override;
    void enableCommand(int command, bool enabled) override;
    bool isCommandEnabled(int command) const override;
    void runCommand(int command) override;
    void showContextMenu(const std::vector<CContextMenuItem>& items, const MbCartPoint& point) override;

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
    IGui& inner_;
    std::vector<std::string>& log_;
};

} // namespace aec::host
