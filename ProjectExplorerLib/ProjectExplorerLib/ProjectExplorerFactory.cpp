#include "ProjectExplorerLib/ProjectExplorerFactory.h"

#include "ProjectExplorerLib/ProjectExplorer.h"
#include "ProjectExplorerLib/ProjectExplorerAutoUnfoldingDecorator.h"
#include "ProjectExplorerLib/ProjectExplorerEntitySelection.h"
#include "ProjectExplorerLib/ProjectExplorerGroup.h"
#include "ProjectExplorerLib/ProjectExplorerPreferencesUpdatingDecorator.h"

#include "aec/ProjectExplorerGroupInfo.h"
#include "aec/ProjectExplorerGroupingModel.h"
#include "aec/ProjectExplorerGroupingModelFactory.h"
#include "aec/ProjectPreferences.h"

#include "Common/NameBasedUuid.h"

#include <algorithm>

namespace project_explorer
{

CProjectExplorerFactory::CProjectExplorerFactory(const aec::IProjectExplorerGroupingModelFactory& groupingModelFactory,
                                                 const aec::IProjectExplorerGroupMaker& groupMaker,
                                                 const aec::IProjectExplorerEntityProvider& entityProvider)
    : groupingModelFactory_(groupingModelFactory), groupMaker_(groupMaker), entityProvider_(entityProvider)
{
}

CProjectExplorerFactory::~CProjectExplorerFactory() = default;

std::unique_ptr<aec::IProjectExplorer> CProjectExplorerFactory::createProjectExplorer(
    aec::IProjectPreferences& preferences, const aec::IProject& project, const aec::IPropertyCatalog& catalog) const
{
    auto selection = std::make_unique<CProjectExplorerEntitySelection>();

    const std::optional<aec::ProjectExplorerState> stored = preferences.getProjectExplorerState();
    std::vector<std::unique_ptr<aec::IProjectExplorerGroup>> groups;
    for (const aec::ProjectExplorerGroupInfo& info : aec::projectExplorerGroups())
    {
        const aec::ProjectExplorerGroupState* storedGroup = nullptr;
        if (stored)
        {
            const auto found = stored->find(info.id);
            storedGroup = found != stored->end() ? &found->second : nullptr;
        }
        groups.push_back(createGroup(info, storedGroup, project, catalog));
    }

    auto explorer = std::make_unique<CProjectExplorer>(std::move(groups), std::move(selection));
    auto unfolding = std::make_unique<CProjectExplorerAutoUnfoldingDecorator>(std::move(explorer));
    return std::make_unique<CProjectExplorerPreferencesUpdatingDecorator>(std::move(unfolding), preferences);
}

std::unique_ptr<aec::IProjectExplorerGroup> CProjectExplorerFactory::createGroup(
    const aec::ProjectExplorerGroupInfo& info, const aec::ProjectExplorerGroupState* stored,
    const aec::IProject& project, const aec::IPropertyCatalog& catalog) const
{
    std::vector<aec::PropertyAssignmentKey> candidateKeys;
    if (info.groupable)
        candidateKeys.push_back(aec::PropertyAssignmentKey::topic());

    // The grouping goes into the model before the group exists, so the group builds its subgroups
    // once, already grouped as stored.
    auto model = groupingModelFactory_.createGroupingModel(info.id, candidateKeys, project, catalog);
    if (stored != nullptr)
        restoreGrouping(*model, *stored);

    auto group = std::make_unique<CProjectExplorerGroup>(info.id, info.name, std::move(model), groupMaker_,
                                                         entityProvider_);
    if (stored != nullptr)
        restoreFoldState(*group, *stored);
    return group;
}

void CProjectExplorerFactory::restoreGrouping(aec::IProjectExplorerGroupingModel& model,
                                              const aec::ProjectExplorerGroupState& stored)
{
    // The record keeps the sort order as the unsigned image of the model's int; the cast back is exact.
    model.setSortOrder(static_cast<int>(stored.sortOrder));

    const aec::PropertyAssignmentKey key(stored.groupingPath, stored.groupingProperty);
    if (model.isGroupingKeyAvailable(key))
        model.setGroupingKey(key);
}

void CProjectExplorerFactory::restoreFoldState(aec::IProjectExplorerGroup& group,
                                               const aec::ProjectExplorerGroupState& stored)
{
    group.setExpanded(stored.expanded);

    // A new subgroup is folded, so only the stored unfolded ones need finding. A subgroup is known in
    // the record by a hash of its name (SHA-1), which costs more than the rest of restoring it, so
    // the search stops once every unfolded one is found; mostly few or none are.
    // std::views::values over the map would read better, but clang 14 rejects libstdc++ 12's views.
    auto unfolded = std::count_if(stored.subgroupExpanded.begin(), stored.subgroupExpanded.end(),
                                  [](const auto& entry) { return entry.second; });
    for (aec::IProjectExplorerSubgroup& subgroup : group.getSubgroups())
    {
        if (unfolded == 0)
            return;
        const auto found = stored.subgroupExpanded.find(common::makeNameBasedUuid(group.getId(), subgroup.getName()));
        if (found != stored.subgroupExpanded.end() && found->second)
        {
            subgroup.setExpanded(true);
            --unfolded;
        }
    }
}

} // namespace project_explorer
