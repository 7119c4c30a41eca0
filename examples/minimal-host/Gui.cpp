#include "Gui.h"

#include "Text.h"

#include "Common/Exception.h"

#include <fmt/format.h>

namespace minimal_host
{

void CGui::setDocumentGui(std::uint32_t documentKey, aec::IDocumentGui* documentGui) noexcept
{
    documentKey_ = documentKey;
    documentGui_ = documentGui;
}

aec::IDocumentGui* CGui::getDocumentGui(std::uint32_t documentKey) const
{
    return documentKey == documentKey_ ? documentGui_ : nullptr;
}

void CGui::runCommand(int command)
{
    const auto handler = handlers_.find({command, 0});
    if (handler == handlers_.end() || disabled_.contains(command))
        throw common::EException(fmt::format("Command {} is not available now.", command));
    handler->second();
}

void CGui::requestContextMenu(const aec::MbCartPoint& point)
{
    if (contextMenuHandler_)
        contextMenuHandler_(point);
}

// A host with menus greys out unavailable commands and marks claimed ones; the console shows neither.
void CGui::setCommandAvailable(int /*command*/, bool /*available*/) {}

void CGui::setCommandClaimed(int /*command*/, bool /*claimed*/) {}

void CGui::addCommandHandler(int command, int variant, CommandHandler handler)
{
    handlers_[{command, variant}] = std::move(handler);
}

void CGui::removeCommandHandler(int command, int variant)
{
    handlers_.erase({command, variant});
}

void CGui::setContextMenuHandler(ContextMenuHandler handler)
{
    contextMenuHandler_ = std::move(handler);
}

void CGui::clearContextMenuHandler()
{
    contextMenuHandler_ = nullptr;
}

void CGui::enableCommand(int command, bool enabled)
{
    if (enabled)
        disabled_.erase(command);
    else
        disabled_.insert(command);
}

bool CGui::isCommandEnabled(int command) const
{
    return !disabled_.contains(command);
}

void CGui::showContextMenu(const std::vector<aec::CContextMenuItem>& items, const aec::MbCartPoint& /*point*/)
{
    fmt::print("Context menu:");
    for (const aec::CContextMenuItem& item : items)
        if (item.isSeparator())
            fmt::print(" |");
        else
            fmt::print(" [{}]", toUtf8(item.getText()));
    fmt::print("\n");
}

// No panel buttons: see the class comment.
void CGui::resetButtonItems(std::uint32_t /*panel*/, std::uint32_t /*element*/) {}

void CGui::addButtonItem(std::uint32_t /*panel*/, std::uint32_t /*button*/, const std::wstring& /*value*/,
                         const std::wstring& /*label*/, bool /*enabled*/)
{
}

void CGui::setButtonValue(std::uint32_t /*panel*/, std::uint32_t /*button*/, const std::wstring& /*value*/,
                          bool /*notify*/)
{
}

void CGui::registerButtonCallback(std::uint32_t /*panel*/, std::uint32_t /*button*/,
                                  ButtonCallback /*callback*/)
{
}

void CGui::unregisterButtonCallback(std::uint32_t /*panel*/, std::uint32_t /*button*/) {}

// One document that is never switched or closed while the explorer shows it.
void CGui::registerDocumentActivated(Notification /*notification*/) {}

void CGui::registerDocumentClosing(Notification /*notification*/) {}

void CGui::releaseDocumentActivated() {}

void CGui::releaseDocumentClosing() {}

} // namespace minimal_host
