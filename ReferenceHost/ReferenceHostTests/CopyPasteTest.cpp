#include "AecModel/CopiedEntities.h"
#include "AecModel/PasteDataSerializer.h"
#include "AecModel/Project.h"
#include "AecModel/ProjectServices.h"
#include "AecModel/SampleProject.h"
#include "AecModel/TableImporter.h"
#include "AecModel/WideText.h"

#include "aec/PasteContext.h"
#include "aec/Transaction.h"

#include "Common/UUID.h"
#include "TemporaryDirectory.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>

namespace aec::model
{
namespace
{

const std::vector<EntityCollection> copyableCollections{EntityCollection::Sheets,
                                                        EntityCollection::Tables,
                                                        EntityCollection::Assemblies,
                                                        EntityCollection::Materials,
                                                        EntityCollection::DoorStyles,
                                                        EntityCollection::WindowStyles,
                                                        EntityCollection::ReinforcementStyles,
                                                        EntityCollection::Topics,
                                                        EntityCollection::Images};

EntityId named(const CProject& project, EntityCollection collection, const std::wstring& name)
{
    for (const EntityId& id : project.getEntities(collection))
        if (project.findEntity(id)->getName() == name)
            return id;
    ADD_FAILURE() << "no entity named " << toUtf8(name);
    return {};
}

// The sample project and its services; copies and pastes go the way the explorer takes them.
class CopyPasteTest : public ::testing::Test
{
protected:
    // The entity source's set, each entity under the first classifier question that claims it.
    CopyCollections collect(const EntityIdList& entities) const
    {
        const IEntityClassifier& classifier = services.getClassifier();
        CopyCollections collections;
        for (const EntityId& id : services.getEntitySource().getEntities(entities))
        {
            std::optional<CopyCollection> collection = classifier.classifyAsDocument(id);
            if (!collection)
                collection = classifier.classifyAsStyle(id);
            if (!collection)
                collection = classifier.classifyAsResource(id);
            if (collection)
                collections[static_cast<std::size_t>(*collection)].push_back(id);
        }
        return collections;
    }

    std::unique_ptr<IProjectEntityCopyData> build(const EntityIdList& entities) const
    {
        return services.getCopyDataBuilder().build(collect(entities));
    }

    static const CCopiedEntities& copies(const auto& data)
    {
        return dynamic_cast<const CCopiedEntities&>(*data);
    }

    std::wstring copy(const EntityIdList& entities) { return serializer.serialize(*build(entities)); }

    EntityIdList paste(CProject& target, const std::wstring& text)
    {
        const std::unique_ptr<IProjectEntityPasteData> data =
            serializer.deserialize(text, PasteContext{target, copyableCollections});
        const auto transaction = target.getTransactionHost().openTransaction("Paste");
        const EntityIdList pasted = services.getPasteHandler().paste(target, *data);
        transaction->commit();
        return pasted;
    }

    std::unique_ptr<CProject> source = buildSampleProject();
    CProjectServices services{*source};
    CPasteDataSerializer serializer;
};

TEST_F(CopyPasteTest, ClassifierSortsEachCollectionIntoOneKind)
{
    struct Expected
    {
        EntityCollection collection;
        std::optional<CopyCollection> document;
        std::optional<CopyCollection> style;
        std::optional<CopyCollection> resource;
    };
    const std::vector<Expected> expected{
        {EntityCollection::Sheets, CopyCollection::Sheets, {}, {}},
        {EntityCollection::Tables, CopyCollection::Tables, {}, {}},
        {EntityCollection::Assemblies, {}, {}, CopyCollection::Assemblies},
        {EntityCollection::Materials, {}, CopyCollection::Materials, {}},
        {EntityCollection::DoorStyles, {}, CopyCollection::DoorStyles, {}},
        {EntityCollection::WindowStyles, {}, CopyCollection::WindowStyles, {}},
        {EntityCollection::ReinforcementStyles, {}, CopyCollection::ReinforcementStyles, {}},
        {EntityCollection::Topics, {}, {}, CopyCollection::Topics},
        {EntityCollection::LinkedModels, {}, {}, {}},
        {EntityCollection::Images, {}, {}, CopyCollection::Images},
    };
    const IEntityClassifier& classifier = services.getClassifier();
    for (const Expected& entry : expected)
        for (const EntityId& id : source->getEntities(entry.collection))
        {
            EXPECT_EQ(classifier.classifyAsDocument(id), entry.document)
                << static_cast<int>(entry.collection);
            EXPECT_EQ(classifier.classifyAsStyle(id), entry.style) << static_cast<int>(entry.collection);
            EXPECT_EQ(classifier.classifyAsResource(id), entry.resource)
                << static_cast<int>(entry.collection);
        }
    const EntityId unknown(common::UUID::create());
    EXPECT_FALSE(classifier.classifyAsDocument(unknown) || classifier.classifyAsStyle(unknown) ||
                 classifier.classifyAsResource(unknown));
}

TEST_F(CopyPasteTest, CopyDataHoldsTypeNameTopicAndPropertiesOfEveryCopyableCollection)
{
    EntityIdList requested{EntityId(common::UUID::create())}; // gone before the copy: left out
    for (int index = 0; index < entityCollectionCount; ++index)
        requested.push_back(source->getEntities(static_cast<EntityCollection>(index)).front());
    const auto built = build(requested);
    const CCopiedEntities& data = copies(built);

    ASSERT_EQ(data.entityCount(), 9u); // every collection but the linked models
    for (std::size_t index = 0; index < copyCollectionCount; ++index)
    {
        const std::vector<CopiedEntity>& entities = data.collection(static_cast<CopyCollection>(index));
        ASSERT_EQ(entities.size(), 1u) << index;
        const CEntity& original = *source->findEntity(entities[0].id);
        EXPECT_EQ(entities[0].type, original.getType());
        EXPECT_EQ(entities[0].name, original.getName());
        EXPECT_EQ(entities[0].properties, original.getProperties());
        EXPECT_EQ(entities[0].topic.has_value(), original.getTopic().has_value());
    }
    const CopiedEntity& sheet = data.collection(CopyCollection::Sheets)[0];
    EXPECT_EQ(sheet.name, L"Sheet A-101");
    EXPECT_EQ(sheet.topic,
              (CopiedEntity::Topic{TopicId(named(*source, EntityCollection::Topics, L"Architecture").uuid()),
                                   L"Architecture"}));
    EXPECT_EQ(sheet.properties.at("drawnBy"), L"Zoë Ångström");
}

TEST_F(CopyPasteTest, EverythingCopiedReadsBackAsItWasCopied)
{
    source->addEntity(EntityCollection::Tables, L"Quotes \" and \\ and\nnew line, tab\t and \U0001F3E0");
    source->setEntityProperty(source->getEntities(EntityCollection::Images).front(), "caption",
                              L"{\"json\": 1}");
    EntityIdList everything;
    for (const EntityCollection collection : copyableCollections)
        for (const EntityId& id : source->getEntities(collection))
            everything.push_back(id);
    const auto copied = build(everything);

    const std::wstring text = serializer.serialize(*copied);
    const nlohmann::json document = nlohmann::json::parse(toUtf8(text));
    EXPECT_EQ(document["format"], "project-entities");
    EXPECT_EQ(document["version"], 1);

    const auto read = serializer.deserialize(text, PasteContext{*source, copyableCollections});
    EXPECT_EQ(copies(read), copies(copied));
}

// An imported table's cells are one store that the copy shares; pasted, they read as the same text.
TEST_F(CopyPasteTest, AnImportedTablePastesWithItsCells)
{
    const test::CTemporaryDirectory temporary("aec-copy-paste-");
    const auto transaction = source->getTransactionHost().openTransaction("Import table from file");
    const EntityId table =
        CTableImporter().importTable(*source, temporary.write("Doors.csv", "Mark;Width\nD1;\"9,5\"\nD2;8\n"));
    transaction->commit();
    const std::string cells(CTableImporter::cellsProperty);
    const CPropertyValue& imported = *source->findEntity(table)->findProperty(cells);
    ASSERT_NE(imported.getCells(), nullptr);

    const auto built = build({table});
    EXPECT_EQ(copies(built).collection(CopyCollection::Tables).at(0).properties.at(cells).getCells(),
              imported.getCells());
    const EntityIdList pasted = paste(*source, serializer.serialize(*built));
    ASSERT_EQ(pasted.size(), 1u);
    EXPECT_EQ(source->findEntity(pasted[0])->getProperty(cells), L"[[\"D1\",\"9,5\"],[\"D2\",\"8\"]]");
    EXPECT_EQ(source->findEntity(pasted[0])->getProperties(), source->findEntity(table)->getProperties());
}

TEST_F(CopyPasteTest, PasteIntoTheSameProjectMakesNumberedCopiesInTheirTopics)
{
    const EntityId sheet = named(*source, EntityCollection::Sheets, L"Sheet A-101");
    const EntityId concrete = named(*source, EntityCollection::Materials, L"Concrete C30/37");
    const std::wstring text = copy({concrete, sheet});

    const EntityIdList first = paste(*source, text);
    const EntityIdList second = paste(*source, text);

    ASSERT_EQ(first.size(), 2u);
    ASSERT_EQ(second.size(), 2u);
    const CEntity& sheetCopy = *source->findEntity(first[0]); // sheets come before materials
    EXPECT_EQ(sheetCopy.getName(), L"Sheet A-101 (2)");
    EXPECT_EQ(source->findEntity(second[0])->getName(), L"Sheet A-101 (3)");
    EXPECT_EQ(source->findEntity(first[1])->getName(), L"Concrete C30/37 (2)");
    EXPECT_EQ(sheetCopy.getTopic(), source->findEntity(sheet)->getTopic());
    EXPECT_EQ(sheetCopy.getProperties(), source->findEntity(sheet)->getProperties());
    EXPECT_EQ(source->findEntity(first[1])->getProperty("density"), L"2400 kg/m³");
    for (const EntityId& id : {first[0], first[1], second[0], second[1]})
        EXPECT_TRUE(id != sheet && id != concrete);
    EXPECT_NE(first[0], second[0]);

    source->getUndoHistory().undo();
    EXPECT_EQ(source->findEntity(second[0]), nullptr);
    EXPECT_NE(source->findEntity(first[0]), nullptr);

    // A copy of a numbered copy is numbered after the original, whatever digits its number holds.
    const EntityId tenth = source->addEntity(EntityCollection::Sheets, L"Sheet A-101 (10)");
    EXPECT_EQ(source->findEntity(paste(*source, copy({tenth})).at(0))->getName(), L"Sheet A-101 (3)");
}

TEST_F(CopyPasteTest, PasteIntoAnotherProjectFindsTopicsByNameOrDropsThem)
{
    const EntityId structuralSheet = named(*source, EntityCollection::Sheets, L"Sheet S-1");
    const EntityId architecturalSheet = named(*source, EntityCollection::Sheets, L"Sheet A-101");
    const EntityId architecture = named(*source, EntityCollection::Topics, L"Architecture");

    CProject target;
    const TopicId structure = target.addTopic(L"Structure");
    target.addEntity(EntityCollection::Sheets, L"Sheet S-1");
    const EntityIdList pasted = paste(target, copy({structuralSheet, architecturalSheet}));

    ASSERT_EQ(pasted.size(), 2u);
    const CEntity& a101 = *target.findEntity(pasted[0]);
    const CEntity& s1 = *target.findEntity(pasted[1]);
    EXPECT_EQ(a101.getName(), L"Sheet A-101");
    EXPECT_EQ(a101.getTopic(), std::nullopt); // the target has no "Architecture"
    EXPECT_EQ(s1.getName(), L"Sheet S-1 (2)");
    EXPECT_EQ(s1.getTopic(), structure);

    // A topic copied along is pasted first, and its entities follow it.
    const EntityIdList withTopic = paste(target, copy({architecturalSheet, architecture}));
    ASSERT_EQ(withTopic.size(), 2u);
    const CEntity& pastedTopic = *target.findEntity(withTopic[1]);
    EXPECT_EQ(pastedTopic.getName(), L"Architecture");
    EXPECT_EQ(target.findEntity(withTopic[0])->getName(), L"Sheet A-101 (2)");
    EXPECT_EQ(target.findEntity(withTopic[0])->getTopic(), TopicId(pastedTopic.getId().uuid()));
}

} // namespace
} // namespace aec::model
