#include "ExplorerShell/EntityTypeNames.h"

#include "aec/EntityTypes.h"

#include <algorithm>
#include <array>
#include <utility>

namespace aec::shell
{

namespace
{

using NamedType = std::pair<std::string_view, const EntityTypeId& (*)()>;

// The first four are the creatable ones.
constexpr std::size_t creatableCount = 4;
constexpr std::array<NamedType, 10> namedTypes{{
    {"sheet", &entity_types::sheet},
    {"table", &entity_types::table},
    {"assembly", &entity_types::assembly},
    {"material", &entity_types::material},
    {"door style", &entity_types::doorStyle},
    {"window style", &entity_types::windowStyle},
    {"reinforcement style", &entity_types::reinforcementStyle},
    {"topic", &entity_types::topic},
    {"linked model", &entity_types::linkedModel},
    {"image", &entity_types::image},
}};

} // namespace

std::string entityTypeName(const EntityTypeId& type)
{
    const auto named = std::ranges::find_if(namedTypes, [&type](const NamedType& entry) { return entry.second() == type; });
    return named == namedTypes.end() ? type.toString() : std::string(named->first);
}

std::optional<EntityTypeId> creatableEntityType(std::string_view name)
{
    const auto end = namedTypes.begin() + creatableCount;
    const auto named = std::find_if(namedTypes.begin(), end, [name](const NamedType& entry) { return entry.first == name; });
    if (named == end)
        return std::nullopt;
    return named->second();
}

std::string_view creatableEntityTypeNames()
{
    return "sheet, table, assembly or material";
}

} // namespace aec::shell
