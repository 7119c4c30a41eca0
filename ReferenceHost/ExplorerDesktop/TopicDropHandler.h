#pragma once

#include "aec/EntityId.h"
#include "aec/Topic.h"

#include <QModelIndex>
#include <optional>

namespace aec::host
{
class CExplorerSession;
} // namespace aec::host

namespace aec::desktop
{

class CCommandRunner;
class CExplorerItemModel;

// Decides and carries out drops of entities on the explorer's tree. The one drop that means
// something is onto a topic subgroup, that is a subgroup of a group split by topic: the entities
// move to that topic, in one undo step, through the explorer's change of topic, as its
// context-menu item does. Entities from another group, another project, or all already in that
// subgroup are refused, as is any other row.
class CTopicDropHandler
{
public:
    // All three must outlive the handler.
    CTopicDropHandler(CExplorerItemModel& model, host::CExplorerSession& session, CCommandRunner& runner);

    // The topic the entities would move to when dropped on the row of the item model, or nothing.
    std::optional<TopicId> topicOfDrop(const EntityIdList& entities, const QModelIndex& itemIndex) const;
    // False when the drop is refused or the change failed (and was reported).
    bool drop(const EntityIdList& entities, const QModelIndex& itemIndex);

private:
    bool isSplitByTopic(const common::UUID& group) const;

    CExplorerItemModel& model_;
    host::CExplorerSession& session_;
    CCommandRunner& runner_;
};

} // namespace aec::desktop
