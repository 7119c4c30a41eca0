#include "HostFrame/Gui.h"

#include "AecModel/WideText.h"
#include "Common/Check.h"
#include "Common/Exception.h"

#include <algorithm>
#include <fmt/format.h>
#include <fmt/ranges.h>

namespace aec::host
{

namespace
{

// The variant that runCommand runs: the host's commands are chosen without a variant.
constexpr int defaultVariant = 0;

std::string buttonName(std::uint32_t panel, std::uint32_t button)
{
    return fmt::format("button {} of panel {}", button, panel);
}

} // namespace

CGui::CGui() = default;

CGui::~CGui()
{
    // Slots of host programs may point into objects that die with the GUI's owner.
    contextMenuShown_.disconnect_all_slots();
    buttonChanged_.disconnect_all_slots();
}

void CGui::setCommandAvailable(int command, bool available)
{
    if (available)
        unavailableCommands_.erase(command);
    else
        unavailableCommands_.insert(command);
}

void CGui::setCommandClaimed(int command, bool claimed)
{
    if (claimed)
        claimedCommands_.insert(command);
    else
        claimedCommands_.erase(command);
}

void CGui::addCommandHandler(int command, int variant, CommandHandler handler)
{
    COMMON_PRECONDITION(handler != nullptr);
    const bool added = commandHandlers_.try_emplace({command, variant}, std::move(handler)).second;
    COMMON_PRECONDITION(added);
}

void CGui::removeCommandHandler(int command, int variant)
{
    const bool removed = commandHandlers_.erase({command, variant}) == 1;
    COMMON_PRECONDITION(removed);
}

void CGui::setContextMenuHandler(ContextMenuHandler handler)
{
    COMMON_PRECONDITION(handler != nullptr);
    contextMenuHandler_ = std::move(handler);
}

void CGui::clearContextMenuHandler()
{
    contextMenuHandler_ = nullptr;
}

void CGui::enableCommand(int command, bool enabled)
{
    if (enabled)
        disabledCommands_.erase(command);
    else
        disabledCommands_.insert(command);
}

bool CGui::isCommandEnabled(int command) const
{
    return isCommandEnabledByOwner(command) && !targetRefusal(command);
}

bool CGui::isCommandEnabledByOwner(int command) const
{
    return !disabledCommands_.contains(command);
}

void CGui::setTargetCheck(int command, TargetCheck check)
{
    if (check)
        targetChecks_[command] = std::move(check);
    else
        targetChecks_.erase(command);
}

std::optional<std::string> CGui::targetRefusal(int command) const
{
    const auto check = targetChecks_.find(command);
    return check == targetChecks_.end() ? std::nullopt : check->second();
}

void CGui::runCommand(int command)
{
    const auto handler = commandHandlers_.find({command, defaultVariant});
    if (handler == commandHandlers_.end())
        throw common::EException(fmt::format("Command {} cannot run here: nothing handles it now.", command));
    if (!isCommandEnabledByOwner(command))
        throw common::EException(fmt::format("Command {} is disabled now.", command));
    if (std::optional<std::string> refusal = targetRefusal(command))
        throw common::EException(std::move(*refusal));
    // The handler may remove itself (a command that ends the activity that registered it).
    const CommandHandler run = handler->second;
    run();
}

void CGui::showContextMenu(const std::vector<CContextMenuItem>& items, const MbCartPoint& point)
{
    lastContextMenu_ = items;
    lastContextMenuPoint_ = point;
    contextMenuShown_(lastContextMenu_, lastContextMenuPoint_);
}

void CGui::resetButtonItems(std::uint32_t panel, std::uint32_t element)
{
    const auto found = buttons_.find({panel, element});
    if (found == buttons_.end())
        return;
    ButtonState& state = found->second;
    state.items.clear();
    if (state.sortLabels)
        addSortItems(state);
    buttonChanged_(panel, element);
}

void CGui::addButtonItem(std::uint32_t panel, std::uint32_t button, const std::wstring& value,
                         const std::wstring& label, bool enabled)
{
    buttons_[{panel, button}].items.push_back(ButtonItem{value, label, enabled});
    buttonChanged_(panel, button);
}

void CGui::setButtonValue(std::uint32_t panel, std::uint32_t button, const std::wstring& value, bool notify)
{
    buttons_[{panel, button}].value = value;
    if (notify)
        buttonChanged_(panel, button);
}

void CGui::registerButtonCallback(std::uint32_t panel, std::uint32_t button, ButtonCallback callback)
{
    COMMON_PRECONDITION(callback != nullptr);
    ButtonState& state = buttons_[{panel, button}];
    COMMON_PRECONDITION(state.callback == nullptr);
    state.callback = std::move(callback);
}

void CGui::unregisterButtonCallback(std::uint32_t panel, std::uint32_t button)
{
    const auto found = buttons_.find({panel, button});
    COMMON_PRECONDITION(found != buttons_.end() && found->second.callback != nullptr);
    found->second.callback = nullptr;
}

void CGui::registerDocumentActivated(Notification notification)
{
    COMMON_PRECONDITION(notification != nullptr);
    COMMON_PRECONDITION(documentActivated_ == nullptr);
    documentActivated_ = std::move(notification);
}

void CGui::registerDocumentClosing(Notification notification)
{
    COMMON_PRECONDITION(notification != nullptr);
    COMMON_PRECONDITION(documentClosing_ == nullptr);
    documentClosing_ = std::move(notification);
}

void CGui::releaseDocumentActivated()
{
    COMMON_PRECONDITION(documentActivated_ != nullptr);
    documentActivated_ = nullptr;
}

void CGui::releaseDocumentClosing()
{
    COMMON_PRECONDITION(documentClosing_ != nullptr);
    documentClosing_ = nullptr;
}

void CGui::requestContextMenu(const MbCartPoint& point)
{
    if (contextMenuHandler_ == nullptr)
        throw common::EException("No context menu is available here: the explorer is not active.");
    const ContextMenuHandler handler = contextMenuHandler_;
    handler(point);
}

void CGui::chooseContextMenuItem(std::span<const std::size_t> path)
{
    if (lastContextMenu_.empty())
        throw common::EException("No context menu is open.");
    if (path.empty())
        throw common::EException("Choose a context-menu item by its number.");
    const std::vector<CContextMenuItem>* level = &lastContextMenu_;
    const CContextMenuItem* item = nullptr;
    for (const std::size_t index : path)
    {
        if (index >= level->size())
            throw common::EException(
                fmt::format("The context menu has no item {}; there are {} at that level.",
                            fmt::join(path, "."), level->size()));
        item = &(*level)[index];
        level = &item->getSubItems();
    }
    // A path is never empty here; said so that the optimiser sees it too (-Wnull-dereference).
    COMMON_CHECK(item != nullptr);
    if (item->isSeparator())
        throw common::EException(fmt::format("Context-menu item {} is a separator.", fmt::join(path, ".")));
    if (!item->isEnabled())
        throw common::EException(
            fmt::format("Context-menu item \"{}\" is disabled.", model::toUtf8(item->getText())));
    if (!item->getSubItems().empty())
        throw common::EException(
            fmt::format("Context-menu item \"{}\" opens a submenu; choose one of its items.",
                        model::toUtf8(item->getText())));
    // A chosen item closes the menu; its action may well show the next one.
    const CContextMenuItem chosen = *item;
    lastContextMenu_.clear();
    chosen.run();
}

void CGui::chooseButtonValue(std::uint32_t panel, std::uint32_t button, const std::wstring& value)
{
    const ButtonState* const state = findButton(panel, button);
    if (state == nullptr || state->callback == nullptr)
        throw common::EException(fmt::format("Nothing handles {} now.", buttonName(panel, button)));
    const bool offered = std::ranges::any_of(state->items, [&value](const ButtonItem& item)
                                             { return item.enabled && item.value == value; });
    if (!offered)
    {
        std::vector<std::string> choices;
        for (const ButtonItem& item : state->items)
            if (item.enabled)
                choices.push_back(model::toUtf8(item.value));
        throw common::EException(fmt::format("\"{}\" is not a choice of {}; choose one of: {}.",
                                             model::toUtf8(value), buttonName(panel, button),
                                             fmt::join(choices, ", ")));
    }
    // The callback refills this very button, which may replace the state it was found in.
    const ButtonCallback callback = state->callback;
    callback(value);
}

void CGui::registerSortButton(std::uint32_t panel, std::uint32_t button, const std::wstring& ascendingLabel,
                              const std::wstring& descendingLabel)
{
    ButtonState& state = buttons_[{panel, button}];
    state.sortLabels.emplace(ascendingLabel, descendingLabel);
    state.items.clear();
    addSortItems(state);
    buttonChanged_(panel, button);
}

void CGui::notifyDocumentActivated(unsigned long documentKey)
{
    if (documentActivated_)
        documentActivated_(documentKey);
}

void CGui::notifyDocumentClosing(unsigned long documentKey)
{
    if (documentClosing_)
        documentClosing_(documentKey);
}

bool CGui::hasCommandHandler(int command, int variant) const
{
    return commandHandlers_.contains({command, variant});
}

bool CGui::canRunCommand(int command) const
{
    return hasCommandHandler(command, defaultVariant) && isCommandEnabled(command);
}

bool CGui::isCommandAvailable(int command) const
{
    return !unavailableCommands_.contains(command);
}

bool CGui::isCommandClaimed(int command) const
{
    return claimedCommands_.contains(command);
}

bool CGui::hasContextMenuHandler() const noexcept
{
    return contextMenuHandler_ != nullptr;
}

const std::vector<CContextMenuItem>& CGui::getLastContextMenu() const noexcept
{
    return lastContextMenu_;
}

const MbCartPoint& CGui::getLastContextMenuPoint() const noexcept
{
    return lastContextMenuPoint_;
}

std::vector<CGui::ButtonItem> CGui::getButtonItems(std::uint32_t panel, std::uint32_t button) const
{
    const ButtonState* const state = findButton(panel, button);
    return state == nullptr ? std::vector<ButtonItem>{} : state->items;
}

std::optional<std::wstring> CGui::getButtonValue(std::uint32_t panel, std::uint32_t button) const
{
    const ButtonState* const state = findButton(panel, button);
    return state == nullptr ? std::nullopt : state->value;
}

bool CGui::hasButtonCallback(std::uint32_t panel, std::uint32_t button) const
{
    const ButtonState* const state = findButton(panel, button);
    return state != nullptr && state->callback != nullptr;
}

bool CGui::hasDocumentActivatedRegistration() const noexcept
{
    return documentActivated_ != nullptr;
}

bool CGui::hasDocumentClosingRegistration() const noexcept
{
    return documentClosing_ != nullptr;
}

CGui::ContextMenuShownSignal& CGui::contextMenuShownSignal() noexcept
{
    return contextMenuShown_;
}

CGui::ButtonChangedSignal& CGui::buttonChangedSignal() noexcept
{
    return buttonChanged_;
}

void CGui::addSortItems(ButtonState& state)
{
    COMMON_PRECONDITION(state.sortLabels.has_value());
    state.items.push_back(ButtonItem{std::wstring(ascendingValue), state.sortLabels->first, true});
    state.items.push_back(ButtonItem{std::wstring(descendingValue), state.sortLabels->second, true});
}

const CGui::ButtonState* CGui::findButton(std::uint32_t panel, std::uint32_t button) const
{
    const auto found = buttons_.find({panel, button});
    return found == buttons_.end() ? nullptr : &found->second;
}

} // namespace aec::host
