#include "AecModel/ExplorerStateJson.h"

#include "AecModel/JsonFieldError.h"
#include "AecModel/JsonFields.h"
#include "AecModel/WideText.h"

#include "aec/ProjectExplorerGroupInfo.h"
#include "aec/PropertyAssignmentKey.h"

#include "Common/UUID.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdint>
#include <limits>

namespace aec::model
{

namespace
{

using nlohmann::json;
namespace fields = json_fields;

std::uint32_t readSortOrder(const json& value)
{
    if (!value.is_number_unsigned() || value.get<std::uint64_t>() > std::numeric_limits<std::uint32_t>::max())
        throw EJsonFieldError("\"sortOrder\" is not a whole number from 0 to 4294967295");
    return static_cast<std::uint32_t>(value.get<std::uint64_t>());
}

const ProjectExplorerGroupInfo* findGroup(const common::UUID& id)
{
    const auto& groups = projectExplorerGroups();
    const auto found = std::find_if(groups.begin(), groups.end(),
                                    [&id](const ProjectExplorerGroupInfo& group) { return group.id == id; });
    return found == groups.end() ? nullptr : &*found;
}

// A grouping the group can still use: none chosen yet, no grouping, or the topic where the group
// offers it.
void checkGrouping(const ProjectExplorerGroupInfo& group, const ProjectExplorerGroupState& state)
{
    const PropertyAssignmentKey key(state.groupingPath, state.groupingProperty);
    const bool unset = state.groupingPath.empty() && state.groupingProperty.isNull();
    if (unset || key == PropertyAssignmentKey::noGrouping() ||
        (group.groupable && key == PropertyAssignmentKey::topic()))
        return;
    throw EJsonFieldError(fmt::format("the group \"{}\" cannot be grouped by the stored property {}",
                                      toUtf8(group.name), state.groupingProperty.toString()));
}

std::pair<common::UUID, ProjectExplorerGroupState> readGroup(const json& entry)
{
    const common::UUID id = fields::uuid(fields::member(entry, "id"), "id");
    const ProjectExplorerGroupInfo* const group = findGroup(id);
    if (group == nullptr)
        throw EJsonFieldError(fmt::format("it names the group {}, which does not exist", id.toString()));

    ProjectExplorerGroupState state;
    state.sortOrder = readSortOrder(fields::member(entry, "sortOrder"));
    for (const json& step : fields::array(entry, "groupingPath"))
        state.groupingPath.push_back(fields::uuid(step, "groupingPath"));
    state.groupingProperty = fields::uuid(fields::member(entry, "groupingProperty"), "groupingProperty");
    state.expanded = fields::boolean(fields::member(entry, "expanded"), "expanded");
    for (const json& subgroup : fields::array(entry, "subgroups"))
        state.subgroupExpanded[fields::uuid(fields::member(subgroup, "id"), "id")] =
            fields::boolean(fields::member(subgroup, "expanded"), "expanded");
    checkGrouping(*group, state);
    return {id, std::move(state)};
}

json uuidText(const common::UUID& uuid)
{
    return uuid.toString();
}

} // namespace

json explorerStateToJson(const ProjectExplorerState& state)
{
    json groups = json::array();
    for (const auto& [id, group] : state)
    {
        json path = json::array();
        for (const common::UUID& step : group.groupingPath)
            path.push_back(uuidText(step));
        json subgroups = json::array();
        for (const auto& [subgroupId, expanded] : group.subgroupExpanded)
            subgroups.push_back({{"id", uuidText(subgroupId)}, {"expanded", expanded}});
        groups.push_back({{"id", uuidText(id)},
                          {"sortOrder", group.sortOrder},
                          {"groupingPath", std::move(path)},
                          {"groupingProperty", uuidText(group.groupingProperty)},
                          {"expanded", group.expanded},
                          {"subgroups", std::move(subgroups)}});
    }
    return json{{"groups", std::move(groups)}};
}

std::optional<ProjectExplorerState> explorerStateFromJson(const json& stored,
                                                          std::vector<std::string>& warnings)
{
    const auto groups = stored.is_object() ? stored.find("groups") : stored.end();
    if (!stored.is_object() || groups == stored.end() || !groups->is_array())
    {
        warnings.push_back(
            "The stored explorer state is not a JSON object with a list of \"groups\"; the explorer "
            "starts with its default state.");
        return std::nullopt;
    }
    ProjectExplorerState state;
    std::size_t position = 0;
    for (const json& entry : *groups)
    {
        ++position;
        try
        {
            auto [id, group] = readGroup(entry);
            if (!state.emplace(id, std::move(group)).second)
                throw EJsonFieldError(fmt::format("the group {} is stored twice", id.toString()));
        }
        catch (const EJsonFieldError& reason)
        {
            warnings.push_back(fmt::format("Entry {} of the stored explorer state was dropped: {}.", position,
                                           reason.what()));
        }
    }
    if (state.empty() && position > 0)
        return std::nullopt;
    return state;
}

} // namespace aec::model
