#pragma once

#include "ProjectExplorerLib/ProjectExplorerBaseDecorator.h"

#include "aec/EntityId.h"
#include "aec/Signals.h"

#include <boost/signals2/connection.hpp>

#include <memory>
#include <unordered_set>
#include <vector>

namespace aec
{
class IProjectExplorerGroup;
class IProjectExplorerSubgroup;
} // namespace aec

namespace project_explorer
{

class CStateChangeBatch;

// Unfolds what the user should see: when entities become selected, the subgroups that hold them
// and their groups; when a rebuild makes new subgroups, or moves entities into kept ones, those
// that hold selected entities. It never folds anything.
class CProjectExplorerAutoUnfoldingDecorator final : public CProjectExplorerBaseDecorator
{
public:
    explicit CProjectExplorerAutoUnfoldingDecorator(std::unique_ptr<aec::IProjectExplorer> explorer);
    ~CProjectExplorerAutoUnfoldingDecorator() override;

    // Makes the unfolds that follow one selection change or one rebuild count as one change of the
    // state in the batch, if given; the batch must outlive the decorator or be replaced first.
    void batchUnfoldsIn(CStateChangeBatch* batch) noexcept;

private:
    struct WatchedGroup;
    using SubgroupSet = std::unordered_set<const aec::IProjectExplorerSubgroup*>;

    // Watches every current subgroup of the group exactly once; returns those not watched before.
    SubgroupSet reconnectSubgroups(WatchedGroup& watched);
    void onSelectionChanged(const aec::EntityIdSet& added);
    // Runs the unfolds inside a scope of the batch, if there is one.
    template <class Unfolds>
    void asOneChange(Unfolds&& unfolds);
    // Unfolds the group's subgroups that hold any of the entities, among `candidates` only when
    // given; starts over when a listener of an unfold rebuilt the group.
    void unfoldHolders(WatchedGroup& watched, const aec::EntityIdSet& entities, const SubgroupSet* candidates);
    void onSubgroupsChanged(WatchedGroup& watched);
    void onEntitiesChanged(WatchedGroup& watched, aec::IProjectExplorerSubgroup& subgroup,
                           const aec::EntityChangeset& changeset);
    static void unfold(aec::IProjectExplorerGroup& group, aec::IProjectExplorerSubgroup& subgroup);

    boost::signals2::scoped_connection selectionConnection_;
    std::vector<std::unique_ptr<WatchedGroup>> watchedGroups_;
    CStateChangeBatch* batch_ = nullptr;
};

} // namespace project_explorer
