#include "ExplorerShell/ContextMenuCommands.h"

#include "AecApp/CutCopyPasteContextMenuItems.h"
#include "AecApp/DeleteCommandMenuItems.h"
#include "AecApp/OpenMenuItem.h"
#include "AecModel/WideText.h"
#include "Common/Exception.h"
#include "ExplorerShell/CommandLine.h"
#include "ExplorerShell/CommandTable.h"
#include "HostFrame/CurrentTopicItem.h"
#include "HostFrame/ExplorerSession.h"
#include "HostFrame/Gui.h"
#include "HostServices/HostServices.h"
#include "aec/Commands.h"
#include "aec/MbCartPoint.h"
#include "aec/TextIds.h"

#include <algorithm>
#include <array>
#include <boost/algorithm/string/predicate.hpp>
#include <fmt/format.h>
#include <fmt/ranges.h>
#include <optional>
#include <ostream>
#include <utility>

namespace aec::shell
{

namespace
{

// The index of the one item with the text: an exact match first, else the only match without regard
// to case.
std::optional<std::size_t> matchItem(const std::vector<CContextMenuItem>& items, std::wstring_view text)
{
    const auto isItem = [](const CContextMenuItem& item)
    {
        return !item.isSeparator();
    };
    for (std::size_t index = 0; index < items.size(); ++index)
        if (isItem(items[index]) && items[index].getText() == text)
            return index;
    std::optional<std::size_t> found;
    for (std::size_t index = 0; index < items.size(); ++index)
        if (isItem(items[index]) && boost::algorithm::iequals(items[index].getText(), text))
        {
            if (found)
                return std::nullopt;
            found = index;
        }
    return found;
}

std::string itemTexts(const std::vector<CContextMenuItem>& items)
{
    std::vector<std::string> texts;
    for (const CContextMenuItem& item : items)
        if (!item.isSeparator())
            texts.push_back(model::toUtf8(item.getText()) + (item.getSubItems().empty() ? "" : "/..."));
    return texts.empty() ? "none" : fmt::format("{}", fmt::join(texts, ", "));
}

} // namespace

CContextMenuCommands::CContextMenuCommands(host::CExplorerSession& session, CCommandTable& table)
    : CCommandSet(session)
{
    table.add({"open", "", "open the selection", 0, 0, true,
               [this](const CCommandLine&, std::ostream&)
               {
                   open();
               }});
    table.add({"topic", "TOPICNAME", "move the selection to the topic", 1, ShellCommand::anyNumber, true,
               [this](const CCommandLine& line, std::ostream& out)
               {
                   changeTopic(line, out);
               }});
    table.add({"menu", "[ITEM TEXT...]", "show the selection's context menu, or run its item (Submenu/Item)",
               0, ShellCommand::anyNumber, true,
               [this](const CCommandLine& line, std::ostream& out)
               {
                   showMenu(line, out);
               }});
}

void CContextMenuCommands::writeMenu(const std::vector<CContextMenuItem>& items, std::ostream& out,
                                     const std::vector<std::size_t>& current, int depth)
{
    const std::string indent(static_cast<std::size_t>(depth) * 2, ' ');
    for (std::size_t index = 0; index < items.size(); ++index)
    {
        const CContextMenuItem& item = items[index];
        if (item.isSeparator())
        {
            out << indent << "---\n";
            continue;
        }
        const bool onPath = !current.empty() && current.front() == index;
        out << indent << model::toUtf8(item.getText()) << (item.isEnabled() ? "" : " (disabled)")
            << (onPath && current.size() == 1 ? " (current)" : "") << '\n';
        writeMenu(item.getSubItems(), out,
                  onPath ? std::vector<std::size_t>(current.begin() + 1, current.end())
                         : std::vector<std::size_t>{},
                  depth + 1);
    }
}

std::vector<std::size_t> CContextMenuCommands::findItem(const std::vector<CContextMenuItem>& items,
                                                        const std::wstring& text)
{
    if (const std::optional<std::size_t> index = matchItem(items, text))
    {
        if (!items[*index].getSubItems().empty())
            throw common::EException(
                fmt::format("\"{0}\" opens a submenu; choose one of its items as \"{0}/ITEM\".",
                            model::toUtf8(items[*index].getText())));
        return {*index};
    }
    // Item texts may hold a slash themselves (a topic's name), so every slash is tried as the border
    // between a submenu and its item.
    for (std::size_t slash = text.find(L'/'); slash != std::wstring::npos; slash = text.find(L'/', slash + 1))
    {
        const std::optional<std::size_t> submenu = matchItem(items, std::wstring_view(text).substr(0, slash));
        if (!submenu || items[*submenu].getSubItems().empty())
            continue;
        const auto& subItems = items[*submenu].getSubItems();
        if (const std::optional<std::size_t> item =
                matchItem(subItems, std::wstring_view(text).substr(slash + 1)))
            return {*submenu, *item};
        throw common::EException(fmt::format("\"{}\" has no item \"{}\"; its items are: {}.",
                                             model::toUtf8(items[*submenu].getText()),
                                             model::toUtf8(text.substr(slash + 1)), itemTexts(subItems)));
    }
    throw common::EException(fmt::format("The context menu has no item \"{}\"; its items are: {}.",
                                         model::toUtf8(text), itemTexts(items)));
}

void CContextMenuCommands::showMenu(const CCommandLine& line, std::ostream& out)
{
    const std::vector<CContextMenuItem>& items = requestMenu();
    if (line.getArgumentCount() == 0)
    {
        std::vector<std::size_t> current;
        if (const auto topic = host::currentTopicItem(session_, items))
            current = {topic->first, topic->second};
        writeMenu(items, out, current);
        return;
    }
    const std::wstring text = model::fromUtf8(line.joinArguments(0));
    const std::vector<std::size_t> path = findItem(items, text);
    refuseDisabledCommand(path.size() == 1 ? items[path.front()]
                                           : items[path.front()].getSubItems()[path.back()]);
    std::string chosen = model::toUtf8(items[path.front()].getText());
    if (path.size() > 1)
        chosen += '/' + model::toUtf8(items[path.front()].getSubItems()[path.back()].getText());
    choose(path);
    out << "chose: " << chosen << '\n';
}

void CContextMenuCommands::open()
{
    if (session_.getSelection().empty())
        throw common::EException("Nothing is selected; select entities first.");
    const std::vector<CContextMenuItem>& items = requestMenu();
    const auto item = std::ranges::find(items, COpenMenuItem::identifier, &CContextMenuItem::getIdentifier);
    if (item == items.end())
        throw common::EException("The selection cannot be opened.");
    choose({static_cast<std::size_t>(item - items.begin())});
}

void CContextMenuCommands::changeTopic(const CCommandLine& line, std::ostream& out)
{
    if (session_.getSelection().empty())
        throw common::EException("Nothing is selected; select entities first.");
    const std::vector<CContextMenuItem>& items = requestMenu();
    const std::wstring submenuText =
        session_.getHostServices().getTranslation().getText(text_ids::changeTopic);
    const auto submenu = std::ranges::find(items, submenuText, &CContextMenuItem::getText);
    if (submenu == items.end())
        throw common::EException("The selection cannot change its topic: select sheets, tables, assemblies, "
                                 "materials or styles only.");
    const std::string topic = line.joinArguments(0);
    const std::optional<std::size_t> item = matchItem(submenu->getSubItems(), model::fromUtf8(topic));
    if (!item)
        throw common::EException(fmt::format("There is no topic {}; the topics are: {}.",
                                             CCommandLine::quote(topic), itemTexts(submenu->getSubItems())));
    const std::string chosen = model::toUtf8(submenu->getSubItems()[*item].getText());
    choose({static_cast<std::size_t>(submenu - items.begin()), *item});
    out << "topic: " << CCommandLine::quote(chosen) << '\n';
}

void CContextMenuCommands::refuseDisabledCommand(const CContextMenuItem& item)
{
    if (item.isEnabled())
        return;
    // The standard items run the host's commands; the GUI knows why such a command cannot run.
    static const std::array<std::pair<std::string_view, int>, 3> commandItems{{
        {CCutCopyPasteContextMenuItems::cutIdentifier, commands::cut},
        {CCutCopyPasteContextMenuItems::copyIdentifier, commands::copy},
        {CDeleteCommandMenuItems::identifier, commands::deleteSelection},
    }};
    for (const auto& [identifier, command] : commandItems)
        if (item.getIdentifier() == identifier)
            if (std::optional<std::string> refusal = session_.getGui().targetRefusal(command))
                throw common::EException(std::move(*refusal));
}

const std::vector<CContextMenuItem>& CContextMenuCommands::requestMenu()
{
    host::CGui& gui = session_.getGui();
    gui.requestContextMenu(MbCartPoint{0.0, 0.0});
    return gui.getLastContextMenu();
}

void CContextMenuCommands::choose(const std::vector<std::size_t>& path)
{
    session_.getGui().chooseContextMenuItem(path);
}

} // namespace aec::shell
