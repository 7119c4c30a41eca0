#pragma once

#include "aec/ProjectExplorerGroupState.h"

#include <nlohmann/json.hpp>

#include <optional>
#include <string>
#include <vector>

namespace aec::model
{

// The JSON form of the explorer's state record:
//
//   {"groups": [{"id": "<group uuid>", "sortOrder": 1, "groupingPath": ["<uuid>", ...],
//                "groupingProperty": "<uuid>", "expanded": false,
//                "subgroups": [{"id": "<subgroup uuid>", "expanded": true}, ...]}, ...]}
nlohmann::json explorerStateToJson(const ProjectExplorerState& state);

// Reads what still reads and fits the explorer's groups; every entry dropped adds a warning. Nothing
// when the record as a whole is not in the form above or none of its entries could be kept.
std::optional<ProjectExplorerState> explorerStateFromJson(const nlohmann::json& json,
                                                          std::vector<std::string>& warnings);

} // namespace aec::model
