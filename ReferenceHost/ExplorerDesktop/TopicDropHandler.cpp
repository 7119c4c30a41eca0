#include "ExplorerDesktop/TopicDropHandler.h"

#include "AecModel/Project.h"
#include "AecModel/PropertyCatalog.h"
#include "ExplorerDesktop/CommandRunner.h"
#include "ExplorerDesktop/ExplorerItemModel.h"
#include "HostFrame/ExplorerPanel.h"
#include "HostFrame/ExplorerSession.h"
#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerEntityController.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerGroupingModel.h"

#include <algorithm>

namespace aec::desktop
{

CTopicDropHandler::CTopicDropHandler(CExplorerItemModel& model, host::CExplorerSession& session,
                                     CCommandRunner& runner)
    : model_(model), session_(session), runner_(runner)
{
}

std::optional<TopicId> CTopicDropHandler::topicOfDrop(const EntityIdList& entities,
                                                      const QModelIndex& itemIndex) const
{
    const CExplorerTreeNode* const target = model_.nodeAt(itemIndex);
    if (entities.empty() || target == nullptr || target->getKind() != CExplorerTreeNode::Kind::Subgroup ||
        !session_.hasProject())
        return std::nullopt;
    const std::optional<common::UUID> group = model_.groupIdAt(itemIndex);
    if (!group || !isSplitByTopic(*group))
        return std::nullopt;

    bool allThere = true;
    for (const EntityId& entity : entities)
    {
        const QModelIndex entityIndex = model_.indexOfEntity(entity);
        if (!entityIndex.isValid() || model_.groupIdAt(entityIndex) != group)
            return std::nullopt;
        allThere = allThere && entityIndex.parent() == itemIndex;
    }
    // Moving entities to the topic they have would be an undo step that changes nothing.
    if (allThere || !session_.getEntityController().canChangeTopic(entities))
        return std::nullopt;

    // Subgroups of a group split by topic are named after their topics; entities without a topic
    // make a subgroup of their own that no topic is named after, and that takes no drops.
    const std::vector<CTopic> topics = session_.getProject().getProjectTopics();
    const auto topic = std::ranges::find_if(topics, [target](const CTopic& candidate)
                                            { return candidate.getName() == target->getDisplay().name; });
    if (topic == topics.end())
        return std::nullopt;
    return topic->getId();
}

bool CTopicDropHandler::drop(const EntityIdList& entities, const QModelIndex& itemIndex)
{
    const std::optional<TopicId> topic = topicOfDrop(entities, itemIndex);
    if (!topic)
        return false;
    return runner_.run([this, &entities, &topic]
                       { session_.getEntityController().changeTopic(entities, *topic); });
}

bool CTopicDropHandler::isSplitByTopic(const common::UUID& group) const
{
    host::CExplorerPanel& panel = session_.getPanel();
    if (!panel.hasExplorer())
        return false;
    for (const IProjectExplorerGroup& candidate : panel.getExplorer().getGroups())
        if (candidate.getId() == group)
        {
            const PropertyAssignmentKey key = candidate.getGroupingModel().getGroupingKey();
            return model::CPropertyCatalog().getDisplayName(key) == model::CPropertyCatalog::topicDisplayName;
        }
    return false;
}

} // namespace aec::desktop
