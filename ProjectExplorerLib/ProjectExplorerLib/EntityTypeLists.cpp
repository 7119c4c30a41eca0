#include "ProjectExplorerLib/EntityTypeLists.h"

#include "aec/EntityTypes.h"

namespace project_explorer
{

namespace types = aec::entity_types;

const std::array<aec::EntityTypeId, handledTypeCount>& handledEntityTypes()
{
    static const std::array<aec::EntityTypeId, handledTypeCount> list{types::sheet(), types::table(),
                                                                      types::assembly(), types::material()};
    return list;
}

const std::array<aec::EntityTypeId, 3>& directRenameEntityTypes()
{
    static const std::array<aec::EntityTypeId, 3> list{types::doorStyle(), types::windowStyle(),
                                                       types::reinforcementStyle()};
    return list;
}

const std::array<aec::EntityTypeId, 7>& explorerEntityTypes()
{
    static const std::array<aec::EntityTypeId, 7> list{types::sheet(),     types::table(),
                                                       types::assembly(),  types::material(),
                                                       types::doorStyle(), types::windowStyle(),
                                                       types::reinforcementStyle()};
    return list;
}

const std::array<aec::EntityTypeId, 3>& propertyEditingEntityTypes()
{
    static const std::array<aec::EntityTypeId, 3> list{types::topic(), types::linkedModel(), types::image()};
    return list;
}

const std::array<aec::EntityTypeId, 5>& furtherPropertyEditingEntityTypes()
{
    static const std::array<aec::EntityTypeId, 5> list{types::assembly(), types::material(), types::doorStyle(),
                                                       types::windowStyle(), types::reinforcementStyle()};
    return list;
}

std::optional<std::size_t> handledTypeIndex(const aec::EntityTypeId& type)
{
    // First match wins, in the handlers' order.
    const auto& handled = handledEntityTypes();
    const auto found = std::ranges::find(handled, type);
    if (found == handled.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - handled.begin());
}

} // namespace project_explorer
