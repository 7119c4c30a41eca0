#include "ProjectExplorerLib/ProjectExplorerGroup.h"

#include "aec/ProjectExplorerEntityProvider.h"
#include "aec/ProjectExplorerGroupMaker.h"
#include "aec/ProjectExplorerGroupingModel.h"

#include "Common/Check.h"

#include <boost/range/adaptor/indirected.hpp>

#include <exception>
#include <utility>

namespace project_explorer
{

CProjectExplorerGroup::CProjectExplorerGroup(const common::UUID& id, std::wstring name,
                                             std::unique_ptr<aec::IProjectExplorerGroupingModel> groupingModel,
                                             const aec::IProjectExplorerGroupMaker& groupMaker,
                                             const aec::IProjectExplorerEntityProvider& entityProvider)
    : id_(id),
      name_(std::move(name)),
      groupingModel_(std::move(groupingModel)),
      groupMaker_(groupMaker),
      entityProvider_(entityProvider)
{
    COMMON_PRECONDITION(groupingModel_ != nullptr);

    rebuildConnection_ = groupingModel_->changedSignal().connect([this] { rebuild(); });
    rebuild();
}

CProjectExplorerGroup::~CProjectExplorerGroup()
{
    rebuildConnection_.disconnect();
}

common::UUID CProjectExplorerGroup::getId() const
{
    return id_;
}

const std::wstring& CProjectExplorerGroup::getName() const
{
    return name_;
}

aec::IProjectExplorerGroupingModel& CProjectExplorerGroup::getGroupingModel()
{
    return *groupingModel_;
}

const aec::IProjectExplorerGroupingModel& CProjectExplorerGroup::getGroupingModel() const
{
    return *groupingModel_;
}

aec::SubgroupRange CProjectExplorerGroup::getSubgroups()
{
    return subgroups_ | boost::adaptors::indirected;
}

aec::ConstSubgroupRange CProjectExplorerGroup::getSubgroups() const
{
    return subgroups_ | boost::adaptors::indirected;
}

bool CProjectExplorerGroup::isExpanded() const
{
    return expanded_;
}

void CProjectExplorerGroup::setExpanded(bool expanded)
{
    const bool wasExpanded = std::exchange(expanded_, expanded);
    if (wasExpanded != expanded)
        expandedChanged_();
}

void CProjectExplorerGroup::rebuild()
{
    SubgroupsByName previous = takeSubgroupsByName();

    bool madeNew = false;
    std::exception_ptr failure;
    try
    {
        appendSubgroupsFromMaker(previous, madeNew);
    }
    catch (...)
    {
        failure = std::current_exception();
    }

    // Listeners hold on to subgroups, so they hear of every subgroup made or destroyed, also when
    // the maker or the provider failed half way; a rebuild that only reorders subgroups or
    // changes the sets of kept ones says nothing here (kept subgroups report their own changes).
    const bool destroyedOld = !previous.empty();
    previous.clear();
    if (madeNew || destroyedOld)
        subgroupsChanged_();

    if (failure)
        std::rethrow_exception(failure);
}

aec::VoidSignal& CProjectExplorerGroup::subgroupsChangedSignal() const
{
    return subgroupsChanged_;
}

aec::VoidSignal& CProjectExplorerGroup::expandedChangedSignal() const
{
    return expandedChanged_;
}

CProjectExplorerGroup::SubgroupsByName CProjectExplorerGroup::takeSubgroupsByName()
{
    SubgroupsByName byName;
    for (auto& subgroup : subgroups_)
    {
        COMMON_CHECK(subgroup != nullptr);
        const std::wstring_view name = subgroup->getName();
        byName.emplace(name, std::move(subgroup));
    }
    subgroups_.clear();
    return byName;
}

void CProjectExplorerGroup::appendSubgroupsFromMaker(SubgroupsByName& previous, bool& madeNew)
{
    // Read one after the other: the host's services may fail, and which of them is asked first
    // must not depend on the compiler's order of evaluating arguments.
    const int sortOrder = groupingModel_->getSortOrder();
    const aec::PropertyAssignmentKey key = groupingModel_->getGroupingKey();
    const aec::EntityIdList entities = entityProvider_.getEntities(id_);
    std::vector<aec::SubgroupDescriptor> descriptors = groupMaker_.makeSubgroups(entities, key, sortOrder);

    subgroups_.reserve(descriptors.size());
    for (aec::SubgroupDescriptor& descriptor : descriptors)
    {
        if (auto kept = previous.extract(descriptor.name))
        {
            CProjectExplorerSubgroup& subgroup = *subgroups_.emplace_back(std::move(kept.mapped()));
            subgroup.setEntities(std::move(descriptor.entities));
        }
        else
        {
            subgroups_.push_back(std::make_unique<CProjectExplorerSubgroup>(std::move(descriptor)));
            madeNew = true;
        }
    }
}

} // namespace project_explorer
