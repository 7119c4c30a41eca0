#include "AecModel/PasteDataSerializer.h"
#include "AecModel/Project.h"
#include "AecModel/ProjectServices.h"
#include "AecModel/SampleProject.h"
#include "AecModel/WideText.h"

#include "aec/PasteContext.h"
#include "aec/ProjectEntityCopyData.h"

#include "Common/Exception.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>

namespace aec::model
{
namespace
{

using nlohmann::json;

// Clipboard texts that must not paste, each made from a good one with one fault.
class PasteDataSerializerTest : public ::testing::Test
{
protected:
    PasteDataSerializerTest()
    {
        CopyCollections collections;
        const auto first = [this](EntityCollection collection)
        {
            return project->getEntities(collection).front();
        };
        collections[static_cast<std::size_t>(CopyCollection::Sheets)] = {first(EntityCollection::Sheets)};
        collections[static_cast<std::size_t>(CopyCollection::Images)] = {first(EntityCollection::Images)};
        good = json::parse(toUtf8(serializer.serialize(*services.getCopyDataBuilder().build(collections))));
        dumpBefore = project->canonicalDump();
    }

    // Reading the text must fail with the fault in its message and leave the project alone.
    void expectRefused(const std::wstring& text, const std::string& fault,
                       const std::vector<EntityCollection>& collections = everyCollection())
    {
        try
        {
            (void)serializer.deserialize(text, PasteContext{*project, collections});
            ADD_FAILURE() << "accepted although " << fault;
        }
        catch (const common::EException& error)
        {
            const std::string message = error.what();
            EXPECT_EQ(message.rfind("The clipboard's content cannot be pasted: ", 0), 0u) << message;
            EXPECT_NE(message.find(fault), std::string::npos) << message;
        }
        EXPECT_EQ(project->canonicalDump(), dumpBefore);
    }

    void expectDocumentRefused(const json& document, const std::string& fault)
    {
        expectRefused(fromUtf8(document.dump()), fault);
    }

    static std::vector<EntityCollection> everyCollection()
    {
        std::vector<EntityCollection> collections;
        for (int index = 0; index < entityCollectionCount; ++index)
            collections.push_back(static_cast<EntityCollection>(index));
        return collections;
    }

    // The good document with one change made at the path.
    json with(const json::json_pointer& path, const json& value) const
    {
        json changed = good;
        changed[path] = value;
        return changed;
    }

    std::unique_ptr<CProject> project = buildSampleProject();
    CProjectServices services{*project};
    CPasteDataSerializer serializer;
    json good;
    std::string dumpBefore;
};

TEST_F(PasteDataSerializerTest, TextThatIsNoPasteDataIsRefused)
{
    expectRefused(L"", "the clipboard text is empty");
    expectRefused(L"Sheet A-101", "it is not valid JSON");
    expectRefused(L"{\"format\": \"project-entities\"", "it is not valid JSON");
    expectRefused(L"{\"format\": \"project-entities\", \"version\": 1e999}", "it is not valid JSON");
    expectRefused(L"[1, 2]", "it is not a JSON object");
    expectDocumentRefused(with(json::json_pointer("/format"), "aec-model-project"),
                          "it is not project entity data (\"format\" is not \"project-entities\")");
    expectDocumentRefused(with(json::json_pointer("/format"), 7), "\"format\" is not \"project-entities\"");
    expectDocumentRefused(with(json::json_pointer("/version"), 2),
                          "it has version 2, and this program reads version 1");
    expectDocumentRefused(with(json::json_pointer("/version"), "1"), "it has no \"version\" number");
    json noCollections = good;
    noCollections.erase("collections");
    expectDocumentRefused(noCollections, "\"collections\" is missing");
    expectDocumentRefused(with(json::json_pointer("/collections"), json::array()),
                          "\"collections\" is not a JSON object");
}

TEST_F(PasteDataSerializerTest, CollectionsAndEntitiesOfTheWrongShapeAreRefused)
{
    expectDocumentRefused(with(json::json_pointer("/collections/furniture"), json::array()),
                          "it has an unknown collection \"furniture\"");
    expectDocumentRefused(with(json::json_pointer("/collections/linkedModels"), json::array()),
                          "it has an unknown collection \"linkedModels\"");
    expectDocumentRefused(with(json::json_pointer("/collections/tables"), json::object()),
                          "the collection \"tables\" is not a list");

    const std::string sheet = "entity 1 of the collection \"sheets\" does not read: ";
    expectDocumentRefused(with(json::json_pointer("/collections/sheets/0"), "Sheet"),
                          sheet + "a JSON object");
    expectDocumentRefused(with(json::json_pointer("/collections/sheets/0/name"), 12),
                          sheet + "\"name\" is not a text");
    expectDocumentRefused(with(json::json_pointer("/collections/sheets/0/id"), "not-a-uuid"),
                          sheet + "\"id\" is not a UUID: \"not-a-uuid\"");
    expectDocumentRefused(with(json::json_pointer("/collections/sheets/0/topic/id"), "{1234}"),
                          sheet + "\"id\" is not a UUID");
    expectDocumentRefused(with(json::json_pointer("/collections/sheets/0/topic/name"), nullptr),
                          sheet + "\"name\" is not a text");
    expectDocumentRefused(
        with(json::json_pointer("/collections/sheets/0/type"), good["collections"]["images"][0]["type"]),
        sheet + "\"type\" is " + good["collections"]["images"][0]["type"].get<std::string>());
    expectDocumentRefused(with(json::json_pointer("/collections/sheets/0/properties"), json::array()),
                          sheet + "\"properties\" is not a JSON object");
    expectDocumentRefused(with(json::json_pointer("/collections/sheets/0/properties/scale"), 50),
                          sheet + "\"properties\" is not a text");
    // The project keeps no property without a name, so such data could never paste.
    expectDocumentRefused(with(json::json_pointer("/collections/sheets/0/properties/"), "1:50"),
                          sheet + "\"properties\" has a property without a name");
    json missingType = good;
    missingType["collections"]["sheets"][0].erase("type");
    expectDocumentRefused(missingType, sheet + "\"type\" is missing");
    expectDocumentRefused(
        with(json::json_pointer("/collections/images/0/topic"), good["collections"]["sheets"][0]["topic"]),
        "entity 1 of the collection \"images\" does not read: it has a \"topic\"");
}

TEST_F(PasteDataSerializerTest, EntitiesThatTheProjectDoesNotTakeAreRefused)
{
    expectRefused(fromUtf8(good.dump()), "entities of the collection \"images\" cannot be pasted here",
                  {EntityCollection::Sheets, EntityCollection::Tables});
    // An empty collection asks nothing of the project.
    json sheetsOnly = good;
    sheetsOnly["collections"]["images"] = json::array();
    EXPECT_NO_THROW((void)serializer.deserialize(fromUtf8(sheetsOnly.dump()),
                                                 PasteContext{*project, {EntityCollection::Sheets}}));
}

} // namespace
} // namespace aec::model
