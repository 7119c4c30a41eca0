#include "ExplorerShell/TreeCommands.h"

#include "AecModel/WideText.h"
#include "Common/NameBasedUuid.h"
#include "ExplorerShell/CommandLine.h"
#include "ExplorerShell/CommandTable.h"
#include "ExplorerShell/ExplorerLookup.h"
#include "ExplorerShell/TreeWriter.h"
#include "HostFrame/ExplorerPanel.h"
#include "HostFrame/ExplorerSession.h"
#include "ProjectExplorerLib/ProjectExplorerExports.h"
#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerGroupingModel.h"
#include "aec/ProjectExplorerStateMonitor.h"
#include "aec/ProjectExplorerSubgroup.h"

#include <algorithm>
#include <fmt/format.h>
#include <fmt/ranges.h>
#include <iterator>
#include <ostream>

namespace aec::shell
{

namespace
{

const char* foldState(bool expanded)
{
    return expanded ? "unfolded" : "folded";
}

// How the record's grouping key reads: "none", the display name under which the group offers it,
// or else its identifiers.
std::string groupingText(const IProjectExplorerGroup& group, const ProjectExplorerGroupState& state)
{
    const PropertyAssignmentKey key(state.groupingPath, state.groupingProperty);
    if (key == PropertyAssignmentKey::noGrouping())
        return "none";
    const IProjectExplorerGroupingModel& model = group.getGroupingModel();
    if (key == model.getGroupingKey())
        for (const GroupingOption& option : model.getGroupingOptions())
            if (option.value == model.getGroupingKeyText())
                return model::toUtf8(option.displayName);
    std::vector<std::string> parts;
    for (const common::UUID& step : key.getPath())
        parts.push_back(step.toString());
    parts.push_back(key.getProperty().toString());
    return fmt::format("{}", fmt::join(parts, "#"));
}

} // namespace

CTreeCommands::CTreeCommands(host::CExplorerSession& session, CCommandTable& table) : session_(session)
{
    table.add({"tree", "", "show the tree: [+] folded, [-] unfolded, (count), * selected", 0, 0, true,
               [this](const CCommandLine&, std::ostream& out) { CTreeWriter(session_).writeTree(out); }});
    table.add({"dump", "", "the tree as tab-separated lines, one node a line", 0, 0, true,
               [this](const CCommandLine&, std::ostream& out) { CTreeWriter(session_).writeDump(out); }});
    table.add({"toggle", "G [S]", "fold or unfold group G (number or name) or its subgroup S (number)", 1, 2,
               true, [this](const CCommandLine& line, std::ostream& out) { toggle(line, out); }});
    table.add({"state", "", "the recorded state: grouping, sort order and folds of every group", 0, 0, true,
               [this](const CCommandLine&, std::ostream& out) { writeState(out); }});
}

void CTreeCommands::toggle(const CCommandLine& line, std::ostream& out)
{
    const CExplorerLookup lookup(session_);
    const int groupIndex = lookup.findGroup(line.getArgument(0));
    const std::string groupName = model::toUtf8(lookup.getGroup(groupIndex).getName());
    if (line.getArgumentCount() == 1)
    {
        session_.getPanel().toggleGroup(groupIndex);
        out << foldState(lookup.getGroup(groupIndex).isExpanded()) << ": " << groupName << '\n';
        return;
    }
    const int subgroupIndex = lookup.findSubgroup(groupIndex, line.getArgument(1));
    session_.getPanel().toggleSubgroup(groupIndex, subgroupIndex);
    const IProjectExplorerSubgroup& subgroup =
        *std::next(lookup.getGroup(groupIndex).getSubgroups().begin(), subgroupIndex);
    out << fmt::format("{}: {} {} {}\n", foldState(subgroup.isExpanded()), groupName, subgroupIndex,
                       CCommandLine::quote(model::toUtf8(subgroup.getName())));
}

void CTreeCommands::writeState(std::ostream& out)
{
    const std::unique_ptr<IProjectExplorerStateMonitor> monitor =
        project_explorer::createProjectExplorerStateMonitor(session_.getExplorer());
    const ProjectExplorerState& record = monitor->getGroupStates();
    for (const IProjectExplorerGroup& group : session_.getExplorer().getGroups())
    {
        const auto state = record.find(group.getId());
        if (state == record.end())
            continue;
        const std::string groupName = CTreeWriter::dumpField(group.getName());
        out << fmt::format("group\t{}\t{:d}\t{}\t{}\n", groupName, state->second.expanded,
                           state->second.sortOrder == IProjectExplorerGroupingModel::ascending ? "asc" : "desc",
                           groupingText(group, state->second));
        for (const IProjectExplorerSubgroup& subgroup : group.getSubgroups())
        {
            const auto expanded =
                state->second.subgroupExpanded.find(common::makeNameBasedUuid(group.getId(), subgroup.getName()));
            if (expanded != state->second.subgroupExpanded.end())
                out << fmt::format("subgroup\t{}\t{}\t{:d}\n", groupName, CTreeWriter::dumpField(subgroup.getName()),
                                   expanded->second);
        }
    }
}

} // namespace aec::shell
