#include "ProjectExplorerLib/ProjectExplorerCopierToClipboard.h"

#include "ProjectExplorerLib/CopyClassification.h"

#include "aec/Clipboard.h"
#include "aec/ClipboardFormats.h"
#include "aec/CopyDataBuilder.h"
#include "aec/EntitySource.h"
#include "aec/ProjectEntityCopyData.h"
#include "aec/ProjectEntityPasteDataSessionSerializer.h"

#include "Common/Check.h"

#include <string>

namespace project_explorer
{

CProjectExplorerCopierToClipboard::CProjectExplorerCopierToClipboard(
    aec::IClipboard& clipboard, const aec::IEntityClassifier& classifier, const aec::IEntitySource& entitySource,
    const aec::ICopyDataBuilder& copyDataBuilder,
    aec::serialization::IProjectEntityPasteDataSessionSerializer& serializer)
    : clipboard_(clipboard), classifier_(classifier), entitySource_(entitySource), copyDataBuilder_(copyDataBuilder),
      serializer_(serializer)
{
}

CProjectExplorerCopierToClipboard::~CProjectExplorerCopierToClipboard() = default;

void CProjectExplorerCopierToClipboard::copyToClipboard(const aec::EntityIdList& entities) const
{
    aec::CopyCollections collections;
    for (const aec::EntityId& entity : entitySource_.getEntities(entities))
    {
        const std::optional<aec::CopyCollection> collection = classifyForCopy(classifier_, entity);
        if (!collection)
            COMMON_NOT_IMPLEMENTED();
        const auto index = static_cast<std::size_t>(*collection);
        COMMON_CHECK(index < collections.size());
        collections[index].push_back(entity);
    }

    const std::unique_ptr<aec::IProjectEntityCopyData> data = copyDataBuilder_.build(collections);
    COMMON_CHECK(data != nullptr);
    const std::wstring text = serializer_.serialize(*data);
    clipboard_.setData(aec::clipboardFormatProjectEntities, text);
}

} // namespace project_explorer
