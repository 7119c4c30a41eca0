#pragma once

#include "HostFrame/HostFrameApi.h"
#include "aec/Gui.h"

#include <boost/signals2/signal.hpp>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace aec::host
{

// The reference host's main user interface without a toolkit: it keeps what the explorer
// registers (command handlers and states, the context-menu handler, panel buttons, document
// notifications) and lets a host program act as the user would (run a command, ask for the
// context menu, choose a button value). A terminal or a desktop program shows what it holds and
// follows its signals.
//
// Rules that a host program relies on:
// - A command is enabled until it is disabled; availability and claim are display states that
//   do not stop a command from running. Running a command that has no handler of variant 0, or
//   that is disabled, throws common::EException saying so, and runs nothing.
// - The host may add its own check of what a command would act on (a check of the selection):
//   while the check has a reason against it, the command is disabled whatever its handler's owner
//   said, and running it throws that reason.
// - A second handler for the same (command, variant), a second callback for the same button and a
//   second registration of the same notification are contract violations: two owners would fight
//   over one thing. So are removals of what is not registered.
// - Resetting a button's items keeps its current value: what the button shows changes only when a
//   value is set. A button registered as a sort-order button gets its two items, "1" ascending and
//   "2" descending, back at once after every reset, since the grouping-button handler empties it
//   but never refills it.
class HOSTFRAME_API CGui final : public IGui
{
public:
    struct ButtonItem
    {
        std::wstring value;
        std::wstring label;
        bool enabled;

        friend bool operator==(const ButtonItem&, const ButtonItem&) = default;
    };
    using Button = std::pair<std::uint32_t, std::uint32_t>; // (panel, button)
    using ContextMenuShownSignal =
        boost::signals2::signal<void(const std::vector<CContextMenuItem>&, const MbCartPoint&)>;
    using ButtonChangedSignal = boost::signals2::signal<void(std::uint32_t panel, std::uint32_t button)>;
    // Why the command has nothing to act on now, in a sentence for the user; nothing when it has.
    using TargetCheck = std::function<std::optional<std::string>()>;

    static constexpr std::wstring_view ascendingValue = L"1";
    static constexpr std::wstring_view descendingValue = L"2";

    CGui();
    ~CGui() override;
    CGui(const CGui&) = delete;
    CGui& operator=(const CGui&) = delete;

    void setCommandAvailable(int command, bool available) override;
    void setCommandClaimed(int command, bool claimed) override;
    void addCommandHandler(int command, int variant, CommandHandler handler) override;
    void removeCommandHandler(int command, int variant) override;
    void setContextMenuHandler(ContextMenuHandler handler) override;
    void clearContextMenuHandler() override;
    void enableCommand(int command, bool enabled) override;
    // Enabled by its owner and not refused by the host's target check.
    bool isCommandEnabled(int command) const override;
    // Runs the handler of variant 0; throws common::EException when there is none or the command
    // is disabled.
    void runCommand(int command) override;
    // Keeps the items and the point as the last shown menu, then tells contextMenuShownSignal.
    void showContextMenu(const std::vector<CContextMenuItem>& items, const MbCartPoint& point) override;

    void resetButtonItems(std::uint32_t panel, std::uint32_t element) override;
    void addButtonItem(std::uint32_t panel, std::uint32_t button, const std::wstring& value,
                       const std::wstring& label, bool enabled) override;
    // Listeners of buttonChangedSignal hear of it only when `notify` is set.
    void setButtonValue(std::uint32_t panel, std::uint32_t button, const std::wstring& value,
                        bool notify) override;
    void registerButtonCallback(std::uint32_t panel, std::uint32_t button, ButtonCallback callback) override;
    void unregisterButtonCallback(std::uint32_t panel, std::uint32_t button) override;

    void registerDocumentActivated(Notification notification) override;
    void registerDocumentClosing(Notification notification) override;
    void releaseDocumentActivated() override;
    void releaseDocumentClosing() override;

    // What the host program does for the user.

    // Asks for the context menu at the point; throws common::EException when nothing offers one.
    void requestContextMenu(const MbCartPoint& point);
    // Runs an item of the last shown menu, found by its index and then the indices of sub-items;
    // the menu closes first. Throws common::EException when there is no such item or it is a
    // separator, disabled, or opens sub-items.
    void chooseContextMenuItem(std::span<const std::size_t> path);
    // Chooses one of the button's enabled items as the user would; throws common::EException when
    // the button has no callback or the value is not one of its enabled items.
    void chooseButtonValue(std::uint32_t panel, std::uint32_t button, const std::wstring& value);
    // Makes the button a sort-order button: it offers "1" and "2" with these labels from now on.
    void registerSortButton(std::uint32_t panel, std::uint32_t button, const std::wstring& ascendingLabel,
                            const std::wstring& descendingLabel);
    // Installs (or, with null, removes) the host's check of what the command would act on.
    void setTargetCheck(int command, TargetCheck check);
    // Tells the registered notification, if any.
    void notifyDocumentActivated(unsigned long documentKey);
    void notifyDocumentClosing(unsigned long documentKey);

    // What a host program shows, and what tests check.

    bool hasCommandHandler(int command, int variant = 0) const;
    // What the owner of the command's handler last said through enableCommand.
    bool isCommandEnabledByOwner(int command) const;
    // The target check's reason against the command now, if it has one.
    std::optional<std::string> targetRefusal(int command) const;
    // Whether anything handles the command now and it is enabled.
    bool canRunCommand(int command) const;
    // True until set false.
    bool isCommandAvailable(int command) const;
    // False until set true.
    bool isCommandClaimed(int command) const;
    bool hasContextMenuHandler() const noexcept;
    // The items of the last shown menu, empty once an item was chosen.
    const std::vector<CContextMenuItem>& getLastContextMenu() const noexcept;
    const MbCartPoint& getLastContextMenuPoint() const noexcept;
    // The button's items in the order added; empty for a button never filled.
    std::vector<ButtonItem> getButtonItems(std::uint32_t panel, std::uint32_t button) const;
    std::optional<std::wstring> getButtonValue(std::uint32_t panel, std::uint32_t button) const;
    bool hasButtonCallback(std::uint32_t panel, std::uint32_t button) const;
    bool hasDocumentActivatedRegistration() const noexcept;
    bool hasDocumentClosingRegistration() const noexcept;

    ContextMenuShownSignal& contextMenuShownSignal() noexcept;
    // A button's items or (on request) its value changed.
    ButtonChangedSignal& buttonChangedSignal() noexcept;

private:
    struct ButtonState
    {
        std::vector<ButtonItem> items;
        std::optional<std::wstring> value;
        ButtonCallback callback;
        std::optional<std::pair<std::wstring, std::wstring>> sortLabels; // (ascending, descending)
    };

    void addSortItems(ButtonState& state);
    const ButtonState* findButton(std::uint32_t panel, std::uint32_t button) const;

    std::map<std::pair<int, int>, CommandHandler> commandHandlers_; // by (command, variant)
    std::set<int> disabledCommands_;
    std::set<int> unavailableCommands_;
    std::set<int> claimedCommands_;
    std::map<int, TargetCheck> targetChecks_;
    ContextMenuHandler contextMenuHandler_;
    std::vector<CContextMenuItem> lastContextMenu_;
    MbCartPoint lastContextMenuPoint_;
    std::map<Button, ButtonState> buttons_;
    Notification documentActivated_;
    Notification documentClosing_;
    ContextMenuShownSignal contextMenuShown_;
    ButtonChangedSignal buttonChanged_;
};

} // namespace aec::host
