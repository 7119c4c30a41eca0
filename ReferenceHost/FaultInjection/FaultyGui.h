#pragma once

#include "aec/Gui.h"

namespace aec::fault_injection
{

class CFaultPlan;

// The host's main user interface as the explorer library meets it, failing where the plan says:
// the commands it enables and claims, its context menu and the grouping buttons. The handlers and
// callbacks the library registers go to the host's GUI unchanged, so the host program runs them
// as it runs its own.
class CFaultyGui final : public IGui
{
public:
    CFaultyGui(CFaultPlan& plan, IGui& inner) : plan_(plan), inner_(inner) {}

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
    CFaultPlan& plan_;
    IGui& inner_;
};

} // namespace aec::fault_injection
