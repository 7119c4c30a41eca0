#pragma once

#include "aec/ProjectExplorerGroupInfo.h"

#include <cstdint>
#include <optional>

namespace aec::host
{

// The host's GUI resource numbers of one group's grouping buttons: the panel (toolbar) that holds
// them, the drop-down of the grouping criterion and that of the sort order.
struct GroupingButtonIds
{
    std::uint32_t panel;
    std::uint32_t groupCriterion;
    std::uint32_t sortOrder;

    friend bool operator==(const GroupingButtonIds&, const GroupingButtonIds&) = default;
};

// The grouping buttons of a group, or nothing for a group without grouping. The host's resources
// number them in three runs of seven, one run per button, by the group's kind number 3 to 9.
inline std::optional<GroupingButtonIds> groupingButtonsOf(const ProjectExplorerGroupInfo& group)
{
    constexpr int firstKind = 3;
    constexpr int lastKind = 9;
    if (group.kindNumber < firstKind || group.kindNumber > lastKind)
        return std::nullopt;
    const auto kind = static_cast<std::uint32_t>(group.kindNumber);
    return GroupingButtonIds{837 + kind, 844 + kind, 851 + kind};
}

} // namespace aec::host
