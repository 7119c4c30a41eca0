#pragma once

#include "ProjectExplorerLib/ProjectExplorerSubgroup.h"

#include "aec/ProjectExplorerGroup.h"

#include <boost/signals2/connection.hpp>

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace aec
{
class IProjectExplorerEntityProvider;
class IProjectExplorerGroupMaker;
} // namespace aec

namespace project_explorer
{

// A top-level group of the tree. It owns its grouping model and rebuilds its subgroups whenever
// the model changes; a rebuild keeps the subgroups whose name survives.
class CProjectExplorerGroup final : public aec::IProjectExplorerGroup
{
public:
    // Builds the subgroups at once, so the group is complete when constructed.
    CProjectExplorerGroup(const common::UUID& id, std::wstring name,
                          std::unique_ptr<aec::IProjectExplorerGroupingModel> groupingModel,
                          const aec::IProjectExplorerGroupMaker& groupMaker,
                          const aec::IProjectExplorerEntityProvider& entityProvider);
    ~CProjectExplorerGroup() override;

    common::UUID getId() const override;
    const std::wstring& getName() const override;
    aec::IProjectExplorerGroupingModel& getGroupingModel() override;
    const aec::IProjectExplorerGroupingModel& getGroupingModel() const override;
    aec::SubgroupRange getSubgroups() override;
    aec::ConstSubgroupRange getSubgroups() const override;
    bool isExpanded() const override;
    void setExpanded(bool expanded) override;
    void rebuild() override;
    aec::VoidSignal& subgroupsChangedSignal() const override;
    aec::VoidSignal& expandedChangedSignal() const override;

private:
    // Keyed by views of the subgroups' own names, which live as long as the subgroups and never
    // change: a rebuild then copies no name and finds each kept subgroup by one hash.
    using SubgroupsByName = std::unordered_map<std::wstring_view, std::unique_ptr<CProjectExplorerSubgroup>>;

    SubgroupsByName takeSubgroupsByName();
    // Appends the maker's subgroups in its order, reusing those of `previous` by name; sets
    // `madeNew` as soon as one subgroup had to be made, so it is right even when this throws.
    void appendSubgroupsFromMaker(SubgroupsByName& previous, bool& madeNew);

    common::UUID id_;
    std::wstring name_;
    std::unique_ptr<aec::IProjectExplorerGroupingModel> groupingModel_;
    const aec::IProjectExplorerGroupMaker& groupMaker_;
    const aec::IProjectExplorerEntityProvider& entityProvider_;
    std::vector<std::unique_ptr<CProjectExplorerSubgroup>> subgroups_;
    bool expanded_ = false;
    mutable aec::VoidSignal subgroupsChanged_;
    mutable aec::VoidSignal expandedChanged_;
    boost::signals2::scoped_connection rebuildConnection_;
};

} // namespace project_explorer
