// Decodes the input as clipboard paste data against the sample project. Data that does not decode
// must be refused with the clipboard message and leave the project untouched; data that decodes
// must survive another trip through the clipboard, paste as one undo step with names unique in
// their collections, and undo back to the project as it was.

#include "AecModel/CopiedEntities.h"
#include "AecModel/EntityCollectionInfo.h"
#include "AecModel/PasteDataSerializer.h"
#include "AecModel/PasteHandler.h"
#include "AecModel/Project.h"
#include "AecModel/SampleProject.h"
#include "Common/Exception.h"
#include "Support/FuzzCheck.h"
#include "Support/WideInput.h"
#include "aec/PasteContext.h"
#include "aec/Transaction.h"

#include <cstddef>
#include <cstdint>
#include <fuzzer/FuzzedDataProvider.h>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace
{

using namespace aec;
using namespace aec::model;

constexpr std::string_view refusal = "The clipboard's content cannot be pasted: ";

// The collections that the paste may go into, one bit each.
std::vector<EntityCollection> pasteTargets(std::uint16_t mask)
{
    std::vector<EntityCollection> collections;
    for (const EntityCollectionInfo& info : entityCollections())
        if ((mask >> collectionIndex(info.collection)) & 1u)
            collections.push_back(info.collection);
    return collections;
}

bool namesUniqueInEveryCollection(const CProject& project)
{
    for (const EntityCollectionInfo& info : entityCollections())
    {
        std::set<std::wstring> names;
        for (const EntityId& id : project.getEntities(info.collection))
            if (!names.insert(project.findEntity(id)->getName()).second)
                return false;
    }
    return true;
}

void checkPaste(const std::wstring& text, std::uint16_t targetMask)
{
    const std::unique_ptr<CProject> project = buildSampleProject();
    const std::string dumpBefore = project->canonicalDump();
    const std::size_t countBefore = project->entityCount();
    const PasteContext context{*project, pasteTargets(targetMask)};
    CPasteDataSerializer serializer;

    std::unique_ptr<IProjectEntityPasteData> decoded;
    try
    {
        decoded = serializer.deserialize(text, context);
    }
    catch (const common::EException& error)
    {
        const std::string_view message = error.what();
        FUZZ_CHECK(message.starts_with(refusal) && message.ends_with('.'));
        FUZZ_CHECK(project->canonicalDump() == dumpBefore);
        return;
    }
    FUZZ_CHECK(project->canonicalDump() == dumpBefore);
    const auto* const data = dynamic_cast<const CCopiedEntities*>(decoded.get());
    FUZZ_CHECK(data != nullptr);

    // What was decoded is what the clipboard would carry when copied again.
    const std::unique_ptr<IProjectEntityPasteData> again =
        serializer.deserialize(serializer.serialize(*data), context);
    FUZZ_CHECK(*dynamic_cast<const CCopiedEntities*>(again.get()) == *data);

    {
        const auto transaction = project->getTransactionHost().openTransaction("Paste");
        const EntityIdList pasted = CPasteHandler().paste(*project, *data);
        transaction->commit();
        FUZZ_CHECK(pasted.size() == data->entityCount());
    }
    FUZZ_CHECK(project->entityCount() == countBefore + data->entityCount());
    FUZZ_CHECK(namesUniqueInEveryCollection(*project));

    CUndoHistory& history = project->getUndoHistory();
    FUZZ_CHECK(history.canUndo() == (data->entityCount() > 0));
    if (!history.canUndo())
    {
        FUZZ_CHECK(project->canonicalDump() == dumpBefore);
        return;
    }
    const std::string dumpAfter = project->canonicalDump();
    history.undo();
    FUZZ_CHECK(project->canonicalDump() == dumpBefore);
    history.redo();
    FUZZ_CHECK(project->canonicalDump() == dumpAfter);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    return fuzz::runOneInput(
        [&]
        {
            // The last two bytes choose the collections that take pastes; the rest is the text.
            FuzzedDataProvider input(data, size);
            const auto targetMask = input.ConsumeIntegral<std::uint16_t>();
            checkPaste(fuzz::widenFuzzInput(input.ConsumeRemainingBytesAsString()), targetMask);
        });
}
