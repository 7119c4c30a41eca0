#include "ExplorerShell/TreeWriter.h"

#include "AecModel/WideText.h"
#include "ExplorerShell/EntityTypeNames.h"
#include "ExplorerShell/ExplorerLookup.h"
#include "HostFrame/ExplorerSession.h"
#include "aec/Entity.h"
#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerSubgroup.h"

#include <fmt/format.h>
#include <iterator>
#include <ostream>
#include <string>

namespace aec::shell
{

namespace
{

std::size_t entityCount(const IProjectExplorerSubgroup& subgroup)
{
    return static_cast<std::size_t>(std::ranges::distance(subgroup.getEntities()));
}

std::size_t entityCount(const IProjectExplorerGroup& group)
{
    std::size_t count = 0;
    for (const IProjectExplorerSubgroup& subgroup : group.getSubgroups())
        count += entityCount(subgroup);
    return count;
}

const char* foldMarker(bool expanded)
{
    return expanded ? "[-]" : "[+]";
}

} // namespace

CTreeWriter::CTreeWriter(host::CExplorerSession& session) : session_(session) {}

void CTreeWriter::writeTree(std::ostream& out) const
{
    const EntityIdSet& selection = session_.getSelection();
    const CExplorerLookup lookup(session_);
    int groupIndex = 0;
    for (const IProjectExplorerGroup& group : session_.getExplorer().getGroups())
    {
        out << fmt::format("{} {} {} ({})\n", foldMarker(group.isExpanded()), groupIndex,
                           model::toUtf8(group.getName()), entityCount(group));
        int subgroupIndex = 0;
        for (const IProjectExplorerSubgroup& subgroup : group.getSubgroups())
        {
            if (!group.isExpanded())
                break;
            // The one subgroup of a group without grouping has no name.
            const std::string name =
                subgroup.getName().empty() ? "(no grouping)" : model::toUtf8(subgroup.getName());
            out << fmt::format("    {} {}.{} {} ({})\n", foldMarker(subgroup.isExpanded()), groupIndex,
                               subgroupIndex++, name, entityCount(subgroup));
            if (!subgroup.isExpanded())
                continue;
            for (const EntityId& id : lookup.entitiesOf(subgroup))
                out << fmt::format("        {} {}\n", selection.contains(id) ? '*' : ' ',
                                   model::toUtf8(lookup.getEntity(id).getName()));
        }
        ++groupIndex;
    }
}

void CTreeWriter::writeDump(std::ostream& out) const
{
    const EntityIdSet& selection = session_.getSelection();
    const CExplorerLookup lookup(session_);
    int groupIndex = 0;
    for (const IProjectExplorerGroup& group : session_.getExplorer().getGroups())
    {
        out << fmt::format("group\t{}\t{:d}\t{}\t{}\n", groupIndex, group.isExpanded(), dumpField(group.getName()),
                           entityCount(group));
        int subgroupIndex = 0;
        for (const IProjectExplorerSubgroup& subgroup : group.getSubgroups())
        {
            out << fmt::format("subgroup\t{}\t{}\t{:d}\t{}\t{}\n", groupIndex, subgroupIndex++,
                               subgroup.isExpanded(), dumpField(subgroup.getName()), entityCount(subgroup));
            if (!group.isExpanded() || !subgroup.isExpanded())
                continue;
            for (const EntityId& id : lookup.entitiesOf(subgroup))
            {
                const IEntity& entity = lookup.getEntity(id);
                out << fmt::format("entity\t{:d}\t{}\t{}\t{}\n", selection.contains(id),
                                   dumpField(entity.getName()), entityTypeName(entity.getType()),
                                   id.uuid().toString());
            }
        }
        ++groupIndex;
    }
}

std::string CTreeWriter::dumpField(std::wstring_view name)
{
    std::string field;
    for (const char character : model::toUtf8(name))
        switch (character)
        {
        case '\t': field += "\\t"; break;
        case '\n': field += "\\n"; break;
        case '\r': field += "\\r"; break;
        case '\\': field += "\\\\"; break;
        default: field += character;
        }
    return field;
}

} // namespace aec::shell
