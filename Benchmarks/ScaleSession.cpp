#include "ScaleSession.h"

#include "AecModel/Project.h"
#include "HostFrame/ExplorerPanel.h"
#include "HostFrame/Gui.h"
#include "HostServices/HostServices.h"
#include "SyntheticProject/SyntheticProjectBuilder.h"
#include "aec/GeneralPurposeDialogService.h"
#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerSubgroup.h"

#include <algorithm>
#include <boost/range/begin.hpp>
#include <boost/range/distance.hpp>
#include <iterator>
#include <map>
#include <memory>
#include <stdexcept>

namespace benchmarks
{

namespace
{

constexpr std::uint32_t projectSeed = 2024;
constexpr std::uint64_t uuidSeed = 7;
// The criterion value that stands for no grouping.
const std::wstring noGroupingValue = L"0";

} // namespace

CScaleSession::CScaleSession(std::size_t entityCount) : entityCount_(entityCount), session_(uuidSeed)
{
    session_.open(CSyntheticProjectBuilder(projectSeed).build(entityCount));
    session_.getHostServices().getDialogService().setDefaultAnswer(aec::DialogAnswer::Yes);

    aec::model::CProject& project = session_.getProject();
    const std::vector<aec::ProjectExplorerGroupInfo>& groups = aec::projectExplorerGroups();
    std::size_t largestSize = 0;
    for (std::size_t index = 0; index < groups.size(); ++index)
    {
        const aec::EntityIdList ids = project.getEntities(groups[index].collection);
        allEntities_.insert(ids.begin(), ids.end());
        if (groups[index].groupable && ids.size() > largestSize)
        {
            largestSize = ids.size();
            largestGroupIndex_ = static_cast<int>(index);
            largestGroupButtons_ = *aec::host::groupingButtonsOf(groups[index]);
        }
    }

    groupByTopic();
    session_.getPanel().toggleGroup(largestGroupIndex_);
    session_.getPanel().toggleSubgroup(largestGroupIndex_, 0);
}

CScaleSession& CScaleSession::of(std::size_t entityCount)
{
    // Never destroyed: at exit the sessions would outlive the statics of the libraries they use
    // (the host's group table among them), and tearing down a million entities only costs time.
    static auto* const sessions = new std::map<std::size_t, std::unique_ptr<CScaleSession>>;
    std::unique_ptr<CScaleSession>& session = (*sessions)[entityCount];
    if (session == nullptr)
        session = std::make_unique<CScaleSession>(entityCount);
    return *session;
}

aec::IProjectExplorerGroup& CScaleSession::largestGroup()
{
    return *std::next(boost::begin(session_.getExplorer().getGroups()), largestGroupIndex_);
}

int CScaleSession::largestSubgroupIndex()
{
    int largest = 0;
    std::ptrdiff_t largestSize = -1;
    int index = 0;
    for (const aec::IProjectExplorerSubgroup& subgroup : largestGroup().getSubgroups())
    {
        if (const std::ptrdiff_t size = boost::distance(subgroup.getEntities()); size > largestSize)
        {
            largestSize = size;
            largest = index;
        }
        ++index;
    }
    return largest;
}

aec::EntityIdSet CScaleSession::spreadOver(aec::EntityCollection collection, std::size_t count)
{
    const aec::EntityIdList ids = session_.getProject().getEntities(collection);
    if (ids.size() < count)
        throw std::invalid_argument("the collection holds fewer entities than asked for");
    aec::EntityIdSet chosen;
    for (std::size_t index = 0; index < count; ++index)
        chosen.insert(ids[index * ids.size() / count]);
    return chosen;
}

std::size_t CScaleSession::groupableEntityCount()
{
    std::size_t count = 0;
    for (const aec::ProjectExplorerGroupInfo& group : aec::projectExplorerGroups())
        if (group.groupable)
            count += session_.getProject().getEntities(group.collection).size();
    return count;
}

void CScaleSession::groupByTopic()
{
    aec::host::CGui& gui = session_.getGui();
    for (const aec::ProjectExplorerGroupInfo& group : aec::projectExplorerGroups())
    {
        const std::optional<aec::host::GroupingButtonIds> buttons = aec::host::groupingButtonsOf(group);
        if (!buttons)
            continue;
        const std::vector<aec::host::CGui::ButtonItem> items =
            gui.getButtonItems(buttons->panel, buttons->groupCriterion);
        const auto topic = std::ranges::find_if(items, [](const aec::host::CGui::ButtonItem& item)
                                                { return item.value != noGroupingValue; });
        if (topic == items.end())
            throw std::logic_error("a groupable group offers no grouping by topic");
        topicGroupingValue_ = topic->value;
        gui.chooseButtonValue(buttons->panel, buttons->groupCriterion, topic->value);
    }
}

} // namespace benchmarks
