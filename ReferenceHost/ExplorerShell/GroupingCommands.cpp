#include "ExplorerShell/GroupingCommands.h"

#include "AecModel/WideText.h"
#include "Common/Exception.h"
#include "ExplorerShell/CommandLine.h"
#include "ExplorerShell/CommandTable.h"
#include "ExplorerShell/ExplorerLookup.h"
#include "HostFrame/ExplorerSession.h"
#include "HostFrame/Gui.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerGroupInfo.h"

#include <algorithm>
#include <boost/algorithm/string/predicate.hpp>
#include <fmt/format.h>
#include <ostream>
#include <vector>

namespace aec::shell
{

namespace
{

void writeButton(const host::CGui& gui, std::uint32_t panel, std::uint32_t button, std::ostream& out)
{
    const std::optional<std::wstring> current = gui.getButtonValue(panel, button);
    for (const host::CGui::ButtonItem& item : gui.getButtonItems(panel, button))
        out << fmt::format("  {} {} [{}]{}\n", item.value == current ? '*' : ' ', model::toUtf8(item.label),
                           model::toUtf8(item.value), item.enabled ? "" : " (disabled)");
}

// The value of the button's item that the user names by its label (any case) or its value.
std::wstring itemValue(const host::CGui& gui, std::uint32_t panel, std::uint32_t button, const std::string& name)
{
    const std::wstring wideName = model::fromUtf8(name);
    const std::vector<host::CGui::ButtonItem> items = gui.getButtonItems(panel, button);
    for (const host::CGui::ButtonItem& item : items)
        if (item.value == wideName || boost::algorithm::iequals(item.label, wideName))
            return item.value;
    std::string choices;
    for (const host::CGui::ButtonItem& item : items)
        choices += (choices.empty() ? "" : ", ") + model::toUtf8(item.label);
    throw common::EException(fmt::format("\"{}\" is not offered; choose one of: {}.", name, choices));
}

} // namespace

CGroupingCommands::CGroupingCommands(host::CExplorerSession& session, CCommandTable& table) : session_(session)
{
    table.add({"options", "G", "what the grouping buttons of group G offer, the current choice marked *", 1, 1,
               true, [this](const CCommandLine& line, std::ostream& out) { writeOptions(line, out); }});
    table.add({"group", "G KEY|none", "group the subgroups of G by KEY (a name or value of options G)", 2,
               ShellCommand::anyNumber, true,
               [this](const CCommandLine& line, std::ostream& out) { chooseGrouping(line, out); }});
    table.add({"sort", "G asc|desc", "sort the subgroups of G ascending or descending", 2, 2, true,
               [this](const CCommandLine& line, std::ostream& out) { chooseSortOrder(line, out); }});
}

void CGroupingCommands::writeOptions(const CCommandLine& line, std::ostream& out)
{
    const auto [groupIndex, buttons] = groupWithButtons(line);
    const host::CGui& gui = session_.getGui();
    out << "grouping:\n";
    writeButton(gui, buttons.panel, buttons.groupCriterion, out);
    out << "sort:\n";
    writeButton(gui, buttons.panel, buttons.sortOrder, out);
}

void CGroupingCommands::chooseGrouping(const CCommandLine& line, std::ostream& out)
{
    const auto [groupIndex, buttons] = groupWithButtons(line);
    host::CGui& gui = session_.getGui();
    const CommandWord& first = line.getArgument(1);
    // "none" is the no-grouping item, whose label is a translated text.
    const std::wstring value = line.getArgumentCount() == 2 && !first.quoted && first.text == "none"
                                   ? L"0"
                                   : itemValue(gui, buttons.panel, buttons.groupCriterion, line.joinArguments(1));
    gui.chooseButtonValue(buttons.panel, buttons.groupCriterion, value);
    const auto items = gui.getButtonItems(buttons.panel, buttons.groupCriterion);
    const auto chosen = std::ranges::find(items, value, &host::CGui::ButtonItem::value);
    out << fmt::format("grouping of {}: {}\n", model::toUtf8(CExplorerLookup(session_).getGroup(groupIndex).getName()),
                       chosen == items.end() ? model::toUtf8(value) : model::toUtf8(chosen->label));
}

void CGroupingCommands::chooseSortOrder(const CCommandLine& line, std::ostream& out)
{
    const auto [groupIndex, buttons] = groupWithButtons(line);
    const std::string& order = line.getArgument(1).text;
    const bool ascending = order == "asc" || order == "ascending";
    if (!ascending && order != "desc" && order != "descending")
        throw common::EException(fmt::format("Sort \"{}\"? Sort asc or desc.", order));
    session_.getGui().chooseButtonValue(
        buttons.panel, buttons.sortOrder,
        std::wstring(ascending ? host::CGui::ascendingValue : host::CGui::descendingValue));
    out << fmt::format("sort of {}: {}\n", model::toUtf8(CExplorerLookup(session_).getGroup(groupIndex).getName()),
                       ascending ? "ascending" : "descending");
}

std::pair<int, host::GroupingButtonIds> CGroupingCommands::groupWithButtons(const CCommandLine& line) const
{
    const CExplorerLookup lookup(session_);
    const int groupIndex = lookup.findGroup(line.getArgument(0));
    const std::optional<host::GroupingButtonIds> buttons = host::groupingButtonsOf(lookup.getGroupInfo(groupIndex));
    if (!buttons)
        throw common::EException(
            fmt::format("{} has no grouping.", model::toUtf8(lookup.getGroup(groupIndex).getName())));
    return {groupIndex, *buttons};
}

} // namespace aec::shell
