#include "AecModel/CopyCollectionInfo.h"

#include "Common/Check.h"

#include <algorithm>

namespace aec::model
{

const CopyCollectionInfos& copyCollections()
{
    static const CopyCollectionInfos infos{{
        {CopyCollection::Sheets, EntityCollection::Sheets, CopyKind::Document},
        {CopyCollection::Tables, EntityCollection::Tables, CopyKind::Document},
        {CopyCollection::Assemblies, EntityCollection::Assemblies, CopyKind::Resource},
        {CopyCollection::Materials, EntityCollection::Materials, CopyKind::Style},
        {CopyCollection::DoorStyles, EntityCollection::DoorStyles, CopyKind::Style},
        {CopyCollection::WindowStyles, EntityCollection::WindowStyles, CopyKind::Style},
        {CopyCollection::ReinforcementStyles, EntityCollection::ReinforcementStyles, CopyKind::Style},
        {CopyCollection::Topics, EntityCollection::Topics, CopyKind::Resource},
        {CopyCollection::Images, EntityCollection::Images, CopyKind::Resource},
    }};
    return infos;
}

const CopyCollectionInfo& copyCollectionInfo(CopyCollection copyCollection)
{
    const std::size_t index = copyCollectionIndex(copyCollection);
    COMMON_PRECONDITION(index < copyCollections().size());
    return copyCollections()[index];
}

const CopyCollectionInfo* findCopyCollectionInfo(EntityCollection collection)
{
    const CopyCollectionInfos& infos = copyCollections();
    const auto found = std::find_if(infos.begin(), infos.end(), [collection](const CopyCollectionInfo& info)
                                    { return info.collection == collection; });
    return found == infos.end() ? nullptr : &*found;
}

} // namespace aec::model
