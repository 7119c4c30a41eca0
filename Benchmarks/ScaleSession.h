#pragma once

#include "HostFrame/ExplorerSession.h"
#include "HostFrame/GroupingButtons.h"
#include "aec/EntityCollection.h"
#include "aec/EntityId.h"
#include "aec/ProjectExplorerGroupInfo.h"

#include <cstddef>
#include <string>

namespace aec
{
class IProjectExplorerGroup;
} // namespace aec

namespace benchmarks
{

// The reference host's explorer session over a synthetic project, left as a user would leave it
// before the measured clicks: the seven groupable groups grouped by topic through their grouping
// buttons (so that the project's preferences hold that state), the largest group and its first
// subgroup unfolded, nothing selected. Confirmations are answered yes.
//
// A benchmark may change the session while it runs but must leave it in this state when done,
// since the benchmarks of one size share one session.
class CScaleSession
{
public:
    explicit CScaleSession(std::size_t entityCount);
    CScaleSession(const CScaleSession&) = delete;
    CScaleSession& operator=(const CScaleSession&) = delete;

    // One session per size, made on first use and kept for the whole run: making the project and
    // the session costs far more than any one measurement.
    static CScaleSession& of(std::size_t entityCount);

    aec::host::CExplorerSession& session() noexcept { return session_; }
    std::size_t entityCount() const noexcept { return entityCount_; }

    // The groupable group with the most entities, where every click costs the most.
    int largestGroupIndex() const noexcept { return largestGroupIndex_; }
    aec::IProjectExplorerGroup& largestGroup();
    const aec::host::GroupingButtonIds& largestGroupButtons() const noexcept { return largestGroupButtons_; }
    // The value of the grouping criterion buttons that groups by topic.
    const std::wstring& topicGroupingValue() const noexcept { return topicGroupingValue_; }
    // The largest subgroup of the largest group, by index.
    int largestSubgroupIndex();

    // Every entity of the project.
    const aec::EntityIdSet& allEntities() const noexcept { return allEntities_; }
    // `count` entities spread evenly over the collection's order.
    aec::EntityIdSet spreadOver(aec::EntityCollection collection, std::size_t count);
    // The entities of the seven groupable groups, which group rebuilds and their peers go through.
    std::size_t groupableEntityCount();

private:
    void groupByTopic();

    std::size_t entityCount_;
    aec::host::CExplorerSession session_;
    int largestGroupIndex_ = 0;
    aec::host::GroupingButtonIds largestGroupButtons_{};
    std::wstring topicGroupingValue_;
    aec::EntityIdSet allEntities_;
};

} // namespace benchmarks
