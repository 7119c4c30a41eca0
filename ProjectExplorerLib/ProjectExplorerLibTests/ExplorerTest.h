#pragma once

#include "ProjectExplorerLib/ProjectExplorerEntityProvider.h"
#include "ProjectExplorerLib/ProjectExplorerFactory.h"
#include "ProjectExplorerLib/ProjectExplorerGroup.h"
#include "ProjectExplorerLib/ProjectExplorerGroupMaker.h"
#include "ProjectExplorerLib/ProjectExplorerGroupingModelFactory.h"

#include "AecModel/AttributeValueFormatter.h"
#include "AecModel/Project.h"
#include "AecModel/PropertyCatalog.h"
#include "AecModel/SessionManager.h"

#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerGroupInfo.h"
#include "aec/ProjectExplorerGroupingModel.h"
#include "aec/ProjectExplorerSubgroup.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

namespace project_explorer::test
{

// The first item of the range whose getName() or name reads so.
template <class Range>
auto& named(Range&& range, std::wstring_view name)
{
    for (auto& item : range)
    {
        if constexpr (requires { item.getName(); })
        {
            if (item.getName() == name)
                return item;
        }
        else if (item.name == name)
            return item;
    }
    throw std::out_of_range("nothing named so in the test's tree");
}

inline const aec::ProjectExplorerGroupInfo& groupInfo(std::wstring_view name)
{
    return named(aec::projectExplorerGroups(), name);
}

inline std::vector<std::wstring> subgroupNames(const aec::IProjectExplorerGroup& group)
{
    std::vector<std::wstring> names;
    for (const aec::IProjectExplorerSubgroup& subgroup : group.getSubgroups())
        names.push_back(subgroup.getName());
    return names;
}

inline aec::EntityIdSet entitiesOf(const aec::IProjectExplorerSubgroup& subgroup)
{
    return aec::EntityIdSet(subgroup.getEntities().begin(), subgroup.getEntities().end());
}

// Where the items of a range live, to tell the same objects from equal ones.
template <class Range>
std::vector<const void*> addressesOf(Range&& range)
{
    std::vector<const void*> addresses;
    for (auto& item : range)
        addresses.push_back(&item);
    return addresses;
}

// Counts the emissions of a signal for as long as it lives.
class CSignalCounter
{
public:
    explicit CSignalCounter(aec::VoidSignal& signal) : connection_(signal.connect([this] { ++count_; })) {}
    int count() const { return count_; }

private:
    int count_ = 0;
    boost::signals2::scoped_connection connection_;
};

// The reference host's project, session, formatter and catalog, with the library's factories
// wired over them as a host wires them.
class ExplorerTest : public ::testing::Test
{
protected:
    ExplorerTest() { sessions.setCurrentProject(&project); }

    // The group of that name on its own, with its real grouping model, grouped by topic if it can be.
    std::unique_ptr<CProjectExplorerGroup> makeGroup(std::wstring_view name, bool byTopic = true)
    {
        const aec::ProjectExplorerGroupInfo& info = groupInfo(name);
        std::vector<aec::PropertyAssignmentKey> candidates;
        if (info.groupable)
            candidates.push_back(aec::PropertyAssignmentKey::topic());
        auto model = groupingModelFactory.createGroupingModel(info.id, candidates, project, catalog);
        if (byTopic && info.groupable)
            model->setGroupingKey(aec::PropertyAssignmentKey::topic());
        return std::make_unique<CProjectExplorerGroup>(info.id, info.name, std::move(model), groupMaker, entityProvider);
    }

    std::unique_ptr<aec::IProjectExplorer> makeExplorer()
    {
        return explorerFactory.createProjectExplorer(project.getPreferences(), project, catalog);
    }

    aec::model::CProject project;
    aec::model::CSessionManager sessions;
    aec::model::CAttributeValueFormatter formatter{sessions};
    aec::model::CPropertyCatalog catalog;
    CProjectExplorerGroupingModelFactory groupingModelFactory;
    CProjectExplorerGroupMaker groupMaker{formatter, sessions};
    CProjectExplorerEntityProvider entityProvider{sessions};
    CProjectExplorerFactory explorerFactory{groupingModelFactory, groupMaker, entityProvider};
};

} // namespace project_explorer::test
