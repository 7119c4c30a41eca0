#include "HostChecks/ExplorerConsistencyCheck.h"

#include "AecModel/Project.h"
#include "AecModel/WideText.h"
#include "Common/Exception.h"
#include "Common/NameBasedUuid.h"
#include "HostChecks/ExpectedSubgroups.h"
#include "HostFrame/ExplorerSession.h"
#include "HostFrame/Gui.h"
#include "HostServices/HostServices.h"
#include "ProjectExplorerLib/ProjectExplorerExports.h"
#include "aec/ClipboardFormats.h"
#include "aec/Commands.h"
#include "aec/Entity.h"
#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerEntitySelection.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerGroupInfo.h"
#include "aec/ProjectExplorerGroupingModel.h"
#include "aec/ProjectExplorerStateMonitor.h"
#include "aec/ProjectExplorerSubgroup.h"
#include "aec/ProjectPreferences.h"

#include <algorithm>
#include <fmt/format.h>
#include <fmt/ranges.h>
#include <iterator>
#include <vector>

namespace aec::host
{

namespace
{

std::string quoted(const std::wstring& name)
{
    return fmt::format("\"{}\"", model::toUtf8(name));
}

// The entities by identifier and, where the project has them, name.
std::string describe(const IProject& project, const EntityIdSet& entities)
{
    std::vector<std::string> described;
    for (const EntityId& id : entities)
    {
        const IEntity* const entity = project.findEntity(id);
        described.push_back(entity != nullptr
                                ? fmt::format("{} {}", id.uuid().toString(), quoted(entity->getName()))
                                : id.uuid().toString());
    }
    return fmt::format("{{{}}}", fmt::join(described, ", "));
}

EntityIdSet difference(const EntityIdSet& left, const EntityIdSet& right)
{
    EntityIdSet result;
    std::ranges::set_difference(left, right, std::inserter(result, result.end()));
    return result;
}

std::vector<std::string> namesOf(const std::vector<SubgroupDescriptor>& subgroups)
{
    std::vector<std::string> names;
    std::ranges::transform(subgroups, std::back_inserter(names),
                           [](const SubgroupDescriptor& subgroup) { return quoted(subgroup.name); });
    return names;
}

std::vector<SubgroupDescriptor> shownSubgroups(const IProjectExplorerGroup& group)
{
    std::vector<SubgroupDescriptor> shown;
    for (const IProjectExplorerSubgroup& subgroup : group.getSubgroups())
        shown.push_back(
            {subgroup.getName(), EntityIdSet(subgroup.getEntities().begin(), subgroup.getEntities().end())});
    return shown;
}

std::optional<std::string> compareSubgroups(const IProject& project, const IProjectExplorerGroup& group,
                                            const std::vector<SubgroupDescriptor>& expected)
{
    const std::vector<SubgroupDescriptor> shown = shownSubgroups(group);
    const std::string groupName = quoted(group.getName());
    if (shown.size() != expected.size())
        return fmt::format("Group {} shows the subgroups [{}] where the project makes [{}]", groupName,
                           fmt::join(namesOf(shown), ", "), fmt::join(namesOf(expected), ", "));
    for (std::size_t index = 0; index < shown.size(); ++index)
    {
        if (shown[index].name != expected[index].name)
            return fmt::format("Group {} shows the subgroups [{}] where the project makes [{}]", groupName,
                               fmt::join(namesOf(shown), ", "), fmt::join(namesOf(expected), ", "));
        if (shown[index].entities != expected[index].entities)
            return fmt::format(
                "Group {}, subgroup {}: shows {} that the project puts elsewhere and lacks {} that "
                "the project puts there",
                groupName, quoted(shown[index].name),
                describe(project, difference(shown[index].entities, expected[index].entities)),
                describe(project, difference(expected[index].entities, shown[index].entities)));
    }
    return std::nullopt;
}

std::optional<std::string> compareGroupRecord(const IProjectExplorerGroup& group,
                                              const ProjectExplorerGroupState& recorded,
                                              std::string_view record)
{
    const std::string groupName = quoted(group.getName());
    const IProjectExplorerGroupingModel& model = group.getGroupingModel();
    if (recorded.sortOrder != static_cast<std::uint32_t>(model.getSortOrder()))
        return fmt::format("The {} has sort order {} for group {}, which shows sort order {}", record,
                           recorded.sortOrder, groupName, model.getSortOrder());
    const PropertyAssignmentKey key = model.getGroupingKey();
    if (recorded.groupingPath != key.getPath() || recorded.groupingProperty != key.getProperty())
        return fmt::format("The {} has grouping key {} for group {}, which is grouped by {}", record,
                           recorded.groupingProperty.toString(), groupName, key.getProperty().toString());
    if (recorded.expanded != group.isExpanded())
        return fmt::format("The {} has group {} {}, which the tree shows {}", record, groupName,
                           recorded.expanded ? "unfolded" : "folded",
                           group.isExpanded() ? "unfolded" : "folded");
    std::size_t subgroupCount = 0;
    for (const IProjectExplorerSubgroup& subgroup : group.getSubgroups())
    {
        ++subgroupCount;
        const auto entry =
            recorded.subgroupExpanded.find(common::makeNameBasedUuid(group.getId(), subgroup.getName()));
        if (entry == recorded.subgroupExpanded.end())
            return fmt::format("The {} lacks subgroup {} of group {}", record, quoted(subgroup.getName()),
                               groupName);
        if (entry->second != subgroup.isExpanded())
            return fmt::format("The {} has subgroup {} of group {} {}, which the tree shows {}", record,
                               quoted(subgroup.getName()), groupName, entry->second ? "unfolded" : "folded",
                               subgroup.isExpanded() ? "unfolded" : "folded");
    }
    if (recorded.subgroupExpanded.size() != subgroupCount)
        return fmt::format("The {} has {} subgroups of group {}, which shows {}", record,
                           recorded.subgroupExpanded.size(), groupName, subgroupCount);
    return std::nullopt;
}

std::optional<std::string> compareRecord(const IProjectExplorer& explorer,
                                         const ProjectExplorerState& recorded, std::string_view record)
{
    std::size_t groupCount = 0;
    for (const IProjectExplorerGroup& group : explorer.getGroups())
    {
        ++groupCount;
        const auto entry = recorded.find(group.getId());
        if (entry == recorded.end())
            return fmt::format("The {} lacks group {}", record, quoted(group.getName()));
        if (std::optional<std::string> difference = compareGroupRecord(group, entry->second, record))
            return difference;
    }
    if (recorded.size() != groupCount)
        return fmt::format("The {} has {} groups where the explorer has {}", record, recorded.size(),
                           groupCount);
    return std::nullopt;
}

} // namespace

CExplorerConsistencyCheck::CExplorerConsistencyCheck(const IProjectExplorer& explorer,
                                                     const IProject& project,
                                                     const IAttributeValueFormatter& formatter)
    : explorer_(explorer), project_(project), formatter_(formatter),
      monitor_(project_explorer::createProjectExplorerStateMonitor(explorer))
{
}

CExplorerConsistencyCheck::CExplorerConsistencyCheck(CExplorerSession& session)
    : CExplorerConsistencyCheck(session.getExplorer(), session.getProject(),
                                session.getHostServices().getAttributeValueFormatter())
{
    preferences_ = &session.getProject().getPreferences();
    gui_ = &session.getGui();
    clipboard_ = &session.getHostServices().getClipboard();
}

CExplorerConsistencyCheck::~CExplorerConsistencyCheck() = default;

std::optional<std::string> CExplorerConsistencyCheck::findDifference() const
{
    if (std::optional<std::string> difference = findTreeDifference())
        return difference;
    if (std::optional<std::string> difference =
            compareRecord(explorer_, monitor_->getGroupStates(), "state monitor's record"))
        return difference;
    if (preferences_ != nullptr)
        if (const std::optional<ProjectExplorerState> stored = preferences_->getProjectExplorerState())
            if (std::optional<std::string> difference =
                    compareRecord(explorer_, *stored, "stored explorer state"))
                return difference;
    if (std::optional<std::string> difference = findSelectionDifference())
        return difference;
    return findCommandDifference();
}

void CExplorerConsistencyCheck::verify() const
{
    if (const std::optional<std::string> difference = findDifference())
        throw common::EException(*difference);
}

std::optional<std::string> CExplorerConsistencyCheck::findTreeDifference() const
{
    const std::vector<ProjectExplorerGroupInfo>& groups = projectExplorerGroups();
    std::size_t index = 0;
    for (const IProjectExplorerGroup& group : explorer_.getGroups())
    {
        if (index == groups.size())
            return fmt::format("The explorer has more than the host's {} groups", groups.size());
        const ProjectExplorerGroupInfo& info = groups[index++];
        if (group.getId() != info.id || group.getName() != info.name)
            return fmt::format("Group {} is {} where the host has {}", index, quoted(group.getName()),
                               quoted(info.name));
        const IProjectExplorerGroupingModel& model = group.getGroupingModel();
        if (std::optional<std::string> difference =
                compareSubgroups(project_, group,
                                 expectedSubgroups(project_, formatter_, info.collection,
                                                   model.getGroupingKey(), model.getSortOrder())))
            return difference;
    }
    if (index != groups.size())
        return fmt::format("The explorer has {} groups where the host has {}", index, groups.size());
    return std::nullopt;
}

std::optional<std::string> CExplorerConsistencyCheck::findSelectionDifference() const
{
    for (const EntityId& selected : explorer_.getEntitySelection().getSelection())
    {
        const auto shows = [&selected](const IProjectExplorerGroup& group)
        {
            return std::ranges::any_of(group.getSubgroups(),
                                       [&selected](const IProjectExplorerSubgroup& subgroup)
                                       { return subgroup.contains(selected); });
        };
        if (!std::ranges::any_of(explorer_.getGroups(), shows))
            return fmt::format("The selection holds {}, which the tree does not show",
                               describe(project_, EntityIdSet{selected}));
    }
    return std::nullopt;
}

std::optional<std::string> CExplorerConsistencyCheck::findCommandDifference() const
{
    if (gui_ == nullptr)
        return std::nullopt;
    const bool selected = !explorer_.getEntitySelection().getSelection().empty();
    for (const auto& [command, name] : {std::pair{commands::copy, "Copy"}, std::pair{commands::cut, "Cut"}})
        if (gui_->isCommandEnabledByOwner(command) != selected)
            return fmt::format("{} is {} while {} selected", name,
                               gui_->isCommandEnabledByOwner(command) ? "enabled" : "disabled",
                               selected ? "entities are" : "nothing is");
    const bool pasteable = clipboard_->hasData(clipboardFormatProjectEntities);
    if (gui_->isCommandEnabled(commands::paste) != pasteable)
        return fmt::format("Paste is {} while the clipboard holds {}project entities",
                           pasteable ? "disabled" : "enabled", pasteable ? "" : "no ");
    return std::nullopt;
}

} // namespace aec::host
