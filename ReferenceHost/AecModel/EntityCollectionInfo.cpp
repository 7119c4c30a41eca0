#include "AecModel/EntityCollectionInfo.h"

#include "Common/Check.h"

#include "aec/EntityTypes.h"

#include <algorithm>

namespace aec::model
{

const EntityCollectionInfos& entityCollections()
{
    namespace types = entity_types;
    // The seven collections that the explorer groups by topic are the ones whose entities carry one.
    static const EntityCollectionInfos infos{{
        {EntityCollection::Sheets, "sheets", types::sheet(), true},
        {EntityCollection::Tables, "tables", types::table(), true},
        {EntityCollection::Assemblies, "assemblies", types::assembly(), true},
        {EntityCollection::Materials, "materials", types::material(), true},
        {EntityCollection::DoorStyles, "doorStyles", types::doorStyle(), true},
        {EntityCollection::WindowStyles, "windowStyles", types::windowStyle(), true},
        {EntityCollection::ReinforcementStyles, "reinforcementStyles", types::reinforcementStyle(), true},
        {EntityCollection::Topics, "topics", types::topic(), false},
        {EntityCollection::LinkedModels, "linkedModels", types::linkedModel(), false},
        {EntityCollection::Images, "images", types::image(), false},
    }};
    return infos;
}

const EntityCollectionInfo& collectionInfo(EntityCollection collection)
{
    const std::size_t index = collectionIndex(collection);
    COMMON_PRECONDITION(index < entityCollections().size());
    return entityCollections()[index];
}

std::optional<EntityCollection> collectionFromKey(std::string_view key)
{
    const EntityCollectionInfos& infos = entityCollections();
    const auto found = std::find_if(infos.begin(), infos.end(),
                                    [key](const EntityCollectionInfo& info) { return info.key == key; });
    if (found == infos.end())
        return std::nullopt;
    return found->collection;
}

} // namespace aec::model
