#pragma once

#include "AecModel/AecModelApi.h"

#include "aec/ProjectPreferences.h"

#include <nlohmann/json_fwd.hpp>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace aec::model
{

// The project's preferences: the explorer's state record, saved with the project as JSON.
//
// Stored state is read leniently: what does not read (not JSON, wrong types, identifiers that are
// not UUIDs) or names what the explorer does not have (an unknown group, a grouping key the group
// cannot use) is dropped, one group's entry at a time where the rest still reads, and each drop
// leaves a readable warning. Reading never throws for bad stored state.
class AECMODEL_API CProjectPreferences final : public IProjectPreferences
{
public:
    CProjectPreferences() = default;
    ~CProjectPreferences() override;

    std::optional<ProjectExplorerState> getProjectExplorerState() const override;
    void setProjectExplorerState(const ProjectExplorerState& state) override;

    nlohmann::json toJson() const;
    // Replaces the stored state and the warnings with what the JSON holds.
    void fromJson(const nlohmann::json& json);
    // As fromJson, from stored text that may not even be JSON.
    void fromJsonText(std::string_view text);

    // What the last read dropped, one sentence each.
    const std::vector<std::string>& getWarnings() const noexcept { return warnings_; }

private:
    std::optional<ProjectExplorerState> explorerState_;
    std::vector<std::string> warnings_;
};

} // namespace aec::model
