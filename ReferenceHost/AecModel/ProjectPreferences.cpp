#include "AecModel/ProjectPreferences.h"

#include "AecModel/ExplorerStateJson.h"
#include "AecModel/JsonFields.h"

#include <algorithm>
#include <fmt/format.h>
#include <nlohmann/json.hpp>

namespace aec::model
{

namespace
{

constexpr const char* explorerStateKey = "projectExplorer";

} // namespace

CProjectPreferences::~CProjectPreferences() = default;

std::optional<ProjectExplorerState> CProjectPreferences::getProjectExplorerState() const
{
    return explorerState_;
}

void CProjectPreferences::setProjectExplorerState(const ProjectExplorerState& state)
{
    // The explorer hands the whole record over at every fold, and mostly the same groups come again.
    // Assigning group by group then reuses the nodes of the stored record, where replacing the
    // record would allocate every subgroup's entry anew.
    constexpr auto groupOf = &ProjectExplorerState::value_type::first;
    const bool sameGroups =
        explorerState_ && std::ranges::equal(*explorerState_, state, {}, groupOf, groupOf);
    if (!sameGroups)
    {
        explorerState_ = state;
        return;
    }
    auto stored = explorerState_->begin();
    for (const auto& entry : state)
        (stored++)->second = entry.second;
}

nlohmann::json CProjectPreferences::toJson() const
{
    nlohmann::json json = nlohmann::json::object();
    if (explorerState_)
        json[explorerStateKey] = explorerStateToJson(*explorerState_);
    return json;
}

void CProjectPreferences::fromJson(const nlohmann::json& json)
{
    explorerState_.reset();
    warnings_.clear();
    if (!json.is_object())
    {
        warnings_.push_back(fmt::format(
            "The stored preferences are not a JSON object but {}; they were dropped.", json.type_name()));
        return;
    }
    const auto stored = json.find(explorerStateKey);
    if (stored != json.end() && !stored->is_null())
        explorerState_ = explorerStateFromJson(*stored, warnings_);
}

void CProjectPreferences::fromJsonText(std::string_view text)
{
    nlohmann::json json;
    try
    {
        json = nlohmann::json::parse(text);
    }
    // Not only parse_error: a number beyond the range of double is an out_of_range error.
    catch (const nlohmann::json::exception& error)
    {
        explorerState_.reset();
        warnings_.assign(1, fmt::format("The stored preferences are not valid JSON ({}); they were dropped.",
                                        json_fields::parseFailure(error)));
        return;
    }
    fromJson(json);
}

} // namespace aec::model
