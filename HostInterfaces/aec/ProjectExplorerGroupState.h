#pragma once

#include "Common/UUID.h"

#include <cstdint>
#include <map>
#include <vector>

namespace aec
{

// What the state monitor records of one group: its grouping choice and the fold state of the
// group and of each subgroup (subgroups are named by a UUID derived from the group and the name).
struct ProjectExplorerGroupState
{
    std::uint32_t sortOrder = 1;
    std::vector<common::UUID> groupingPath;
    common::UUID groupingProperty;
    std::map<common::UUID, bool> subgroupExpanded;
    bool expanded = false;

    friend bool operator==(const ProjectExplorerGroupState&, const ProjectExplorerGroupState&) = default;
};

// The whole record, by group identifier.
using ProjectExplorerState = std::map<common::UUID, ProjectExplorerGroupState>;

} // namespace aec
