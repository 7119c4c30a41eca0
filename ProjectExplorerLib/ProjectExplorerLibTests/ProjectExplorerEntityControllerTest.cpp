#include "EntityOperationsFixture.h"
#include "ViolationSite.h"

#include "ProjectExplorerLib/ProjectExplorerCopierToClipboard.h"
#include "ProjectExplorerLib/ProjectExplorerEntityController.h"

#include "AecModel/EditingService.h"

#include "aec/ClipboardFormats.h"
#include "aec/EntityTypes.h"
#include "aec/ObjectEvents.h"
#include "aec/TextIds.h"

#include "Common/AssertionViolation.h"
#include "Common/Exception.h"

#include <filesystem>
#include <fstream>
#include <utility>

namespace project_explorer::test
{
namespace
{

namespace types = aec::entity_types;

constexpr const char* controllerFile =
    "ProjectExplorerLib/ProjectExplorerLib/ProjectExplorerEntityController.cpp";
const std::string removeStep = "Remove entities from project explorer";

using EntityControllerTest = EntityOperationsFixture;

// A listener of the project that cannot follow the next change it is told of, as a host view
// whose services fail.
class CFailingListener final : public aec::IObjectEvents
{
public:
    explicit CFailingListener(aec::model::CProject& project) : project_(project)
    {
        project_.getObjectEvents().addObserver(*this);
    }
    ~CFailingListener() override { project_.getObjectEvents().removeObserver(*this); }
    CFailingListener(const CFailingListener&) = delete;
    CFailingListener& operator=(const CFailingListener&) = delete;

    void onProjectOpened() override {}
    void onObjectsChanged(std::uint32_t, std::uint32_t, const aec::EntityIdSet&, const aec::EntityIdSet&) override
    {
        if (std::exchange(failNext_, false))
            throw common::EException("the listener cannot follow");
    }
    void onProjectClosing() override {}

private:
    aec::model::CProject& project_;
    bool failNext_ = true;
};

TEST_F(EntityControllerTest, CreateWritesAGeneratedIdentifierBackAndKeepsAGivenOne)
{
    aec::EntityId generated;
    controller->createEntity(types::sheet(), generated);
    const aec::EntityId given(common::UUID::generate());
    aec::EntityId used = given;
    controller->createEntity(types::material(), used);

    ASSERT_FALSE(generated.isNull());
    EXPECT_EQ(project.findEntity(generated)->getType(), types::sheet());
    EXPECT_EQ(used, given);
    EXPECT_EQ(project.findEntity(given)->getType(), types::material());
    EXPECT_EQ(undoNames(),
              (std::vector<std::string>{"Create entity with type " + types::material().toString(),
                                        "Create entity with type " + types::sheet().toString()}));
}

TEST_F(EntityControllerTest, RenamesHandledTypesInANamedStepAndStylesThroughTheEditingService)
{
    controller->renameEntity(sheet1, L"Ground floor");
    controller->renameEntity(doorStyle, L"Double leaf");

    EXPECT_EQ(nameOf(sheet1), L"Ground floor");
    EXPECT_EQ(nameOf(doorStyle), L"Double leaf");
    EXPECT_EQ(undoNames(),
              (std::vector<std::string>{std::string(aec::model::CEditingService::stepName),
                                        "Rename entity with type " + types::sheet().toString()}));
    ASSERT_TRUE(project.getChangeOrigin());
    EXPECT_EQ(project.getChangeOrigin()->file, controllerFile);
}

TEST_F(EntityControllerTest, DeleteAsksFirstAndRemovesOnlyOnYes)
{
    aec::host::CScriptedDialogService& dialogs = host.getDialogService();
    dialogs.queueAnswer(aec::DialogAnswer::No);
    controller->deleteWithConfirmation({sheet1});
    EXPECT_TRUE(exists(sheet1));

    dialogs.queueAnswer(aec::DialogAnswer::Yes);
    controller->deleteWithConfirmation({sheet1, doorStyle, missing, sheet2});

    const aec::ITranslation& translation = host.getTranslation();
    const std::wstring title = text(aec::text_ids::deleteTitle);
    EXPECT_EQ(dialogs.getQuestions(),
              (std::vector<aec::host::CScriptedDialogService::Question>{
                  {title, translation.fillIn(text(aec::text_ids::deleteOneQuestion), L"Plan"),
                   aec::dialogButtonsYesNo},
                  {title, translation.fillIn(text(aec::text_ids::deleteManyQuestion), L"2"),
                   aec::dialogButtonsYesNo}}));
    EXPECT_FALSE(exists(sheet1));
    EXPECT_FALSE(exists(sheet2));
    EXPECT_TRUE(exists(doorStyle));
    EXPECT_EQ(undoNames(), std::vector<std::string>{removeStep});
}

TEST_F(EntityControllerTest, DeleteOfNothingDeletableAsksNothing)
{
    controller->deleteWithConfirmation({doorStyle, image, missing});
    controller->deleteWithConfirmation({});

    EXPECT_TRUE(host.getDialogService().getQuestions().empty());
    EXPECT_TRUE(undoNames().empty());
}

TEST_F(EntityControllerTest, CopyThenPasteMakesNewEntitiesWhileTheDocumentStopsFollowing)
{
    // The linked model cannot be copied and the missing entity is gone: both are left out.
    controller->copy({sheet1, linkedModel, image, missing});
    EXPECT_TRUE(undoNames().empty());
    ASSERT_TRUE(clipboard.hasData(aec::clipboardFormatProjectEntities));
    std::vector<bool> followingWhilePasting;
    serializer.whileDecoding = [&]
    {
        followingWhilePasting.push_back(documentGui().isFollowingChanges());
    };

    controller->paste();

    const aec::EntityIdList sheets = project.getEntities(aec::EntityCollection::Sheets);
    ASSERT_EQ(sheets.size(), 3u);
    EXPECT_EQ(nameOf(sheets.back()), L"Plan (2)");
    EXPECT_EQ(nameOf(project.getEntities(aec::EntityCollection::Images).back()), L"Logo (2)");
    EXPECT_EQ(project.getEntities(aec::EntityCollection::LinkedModels).size(), 1u);
    EXPECT_EQ(undoNames(), std::vector<std::string>{"Paste entities from clipboard to project explorer"});
    EXPECT_EQ(followingWhilePasting, std::vector<bool>{false});
    EXPECT_TRUE(documentGui().isFollowingChanges());
}

TEST_F(EntityControllerTest, CutRemovesTheEntitiesInOneUndoStepAndTheyCanBePastedBack)
{
    controller->cut({sheet1, sheet2, doorStyle});
    EXPECT_FALSE(exists(sheet1));
    EXPECT_FALSE(exists(sheet2));
    EXPECT_TRUE(exists(doorStyle));
    EXPECT_EQ(undoNames(), std::vector<std::string>{removeStep});

    project.getUndoHistory().undo();
    EXPECT_TRUE(exists(sheet1));
    EXPECT_TRUE(exists(sheet2));

    controller->paste();
    EXPECT_EQ(project.getEntities(aec::EntityCollection::Sheets).size(), 4u);
    EXPECT_EQ(project.getEntities(aec::EntityCollection::DoorStyles).size(), 1u);
}

// Counts the project's object events: a panel rebuilds its groups on each one.
class EventCounter : public aec::IObjectEvents
{
public:
    explicit EventCounter(aec::model::CProject& project) : project_(project)
    {
        project_.getObjectEvents().addObserver(*this);
    }
    ~EventCounter() override { project_.getObjectEvents().removeObserver(*this); }

    void onProjectOpened() override {}
    void onObjectsChanged(std::uint32_t, std::uint32_t, const aec::EntityIdSet&,
                          const aec::EntityIdSet&) override
    {
        ++events;
    }
    void onProjectClosing() override {}

    int events = 0;

private:
    aec::model::CProject& project_;
};

// How the tree regroups on the event is the panel's part, tested with it.
TEST_F(EntityControllerTest, ChangeTopicIsOneStepWithOneNotification)
{
    EventCounter counter(project);
    controller->changeTopic({sheet1, table}, topicB);

    EXPECT_EQ(counter.events, 1);
    EXPECT_EQ(project.findEntity(sheet1)->getTopic(), topicB);
    EXPECT_EQ(project.findEntity(table)->getTopic(), topicB);
    EXPECT_EQ(project.findEntity(sheet2)->getTopic(), topicA);
    EXPECT_EQ(undoNames(), std::vector<std::string>{"Change entities topic"});
}

TEST_F(EntityControllerTest, PropertyEditingAndTopicChangeFollowTheTypeLists)
{
    const aec::EntityId topic(topicA.uuid());
    EXPECT_FALSE(controller->canEditProperties({}));
    EXPECT_FALSE(controller->canEditProperties({missing, material}));
    EXPECT_FALSE(controller->canEditProperties({sheet1}));
    EXPECT_FALSE(controller->canEditProperties({table, material}));
    EXPECT_TRUE(controller->canEditProperties({material, sheet1}));
    EXPECT_TRUE(controller->canEditProperties({doorStyle}));
    EXPECT_TRUE(controller->canEditProperties({topic}));
    EXPECT_TRUE(controller->canEditProperties({linkedModel}));
    EXPECT_TRUE(controller->canEditProperties({image}));

    EXPECT_FALSE(controller->canChangeTopic({}));
    EXPECT_TRUE(controller->canChangeTopic({sheet1, table, material, doorStyle}));
    EXPECT_FALSE(controller->canChangeTopic({sheet1, image}));
    EXPECT_FALSE(controller->canChangeTopic({sheet1, topic}));
    EXPECT_FALSE(controller->canChangeTopic({sheet1, missing}));
}

TEST_F(EntityControllerTest, EditPropertiesNeedsThePropertyContextAndItsOwner)
{
    const aec::host::CPropertyContainerEditor& editor = host.getPropertyEditor();
    controller->editProperties({sheet1});
    EXPECT_EQ(editor.getRequestCount(), 0u);

    project.getDocument().setPropertyContext(&propertyContext);
    controller->editProperties({material, sheet1, material});
    ASSERT_EQ(editor.getRequestCount(), 1u);
    EXPECT_EQ(editor.getLastRequest()->owner, &propertyContext);
    EXPECT_EQ(editor.getLastRequest()->entities, (aec::EntityIdSet{material, sheet1}));

    propertyContext.owner = nullptr;
    const std::string ownerSite =
        violationSite<common::ECheckViolation>([this] { controller->editProperties({sheet1}); });
    host.getProxyAppGui().closeDocument(project.getDocument().getKey());
    const std::string guiSite =
        violationSite<common::ECheckViolation>([this] { controller->forwardToGuiHandler(sheet1); });
    EXPECT_EQ(siteFile(ownerSite), controllerFile);
    EXPECT_EQ(siteFile(guiSite), controllerFile);
    EXPECT_NE(ownerSite, guiSite);
}

TEST_F(EntityControllerTest, OpenAndForwardReachTheDocumentUserInterface)
{
    controller->open({sheet1, table});
    controller->forwardToGuiHandler(material);
    EXPECT_EQ(documentGui().getOpenedEntities(),
              std::vector<aec::EntityIdList>{(aec::EntityIdList{sheet1, table})});
    EXPECT_EQ(documentGui().getHandledEntities(), aec::EntityIdList{material});

    // Without a document user interface there is nowhere to open them.
    host.getProxyAppGui().closeDocument(project.getDocument().getKey());
    controller->open({sheet2});
}

TEST_F(EntityControllerTest, ImportAddsTheTableUnlessTheUserCancels)
{
    controller->importTableFromFile();
    EXPECT_TRUE(undoNames().empty());

    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / common::UUID::generate().toString();
    std::filesystem::create_directories(folder);
    // A name outside ASCII, as users name their files.
    std::ofstream(folder / std::filesystem::path(u8"Fen\u00eatres.csv")) << "Mark,Width\nW1,1200\n";
    host.getImportFileDialog().queueAnswer(folder.wstring() + L"/Fen\u00eatres.csv");
    controller->importTableFromFile();
    std::filesystem::remove_all(folder);

    EXPECT_EQ(host.getImportFileDialog().getAskCount(), 2u);
    EXPECT_EQ(nameOf(project.getEntities(aec::EntityCollection::Tables).back()), L"Fen\u00eatres");
    EXPECT_EQ(undoNames(), std::vector<std::string>{"Import table from file"});
}

// A failing host service is the fault-injection tests' part; these are the controller's own
// refusals, and they leave the project and its history as they were.
TEST_F(EntityControllerTest, PasteWithoutDataAndATopicForWhatHasNoneAreRefused)
{
    controller->copy({sheet1});
    controller->renameEntity(table, L"Door list");
    const std::string dump = project.canonicalDump();
    const std::vector<std::string> history = undoNames();

    host.getClipboard().clear();
    EXPECT_THROW(controller->paste(), common::EException);
    EXPECT_THROW(controller->changeTopic({sheet1, linkedModel}, topicB), common::EException);
    // The host model prepares the move and refuses a topic it does not hold, with its own message.
    EXPECT_THROW(controller->changeTopic({sheet1}, aec::TopicId(common::UUID::generate())), common::EException);
    // A listener that fails when the batch of the move closes fails the move.
    {
        const CFailingListener listener(project);
        EXPECT_THROW(controller->changeTopic({sheet1}, topicB), common::EException);
    }
    EXPECT_EQ(project.canonicalDump(), dump);
    EXPECT_EQ(undoNames(), history);
}

TEST_F(EntityControllerTest, ContractBreachesNameTheirSites)
{
    // A type without a handler fails where it is met, so that the site tells which operation met it.
    aec::EntityId id;
    const std::string createSite =
        violationSite<common::ENotImplemented>([&] { controller->createEntity(types::doorStyle(), id); });
    const std::string renameSite =
        violationSite<common::ENotImplemented>([&] { controller->renameEntity(linkedModel, L"Survey"); });
    auto& concrete = dynamic_cast<CProjectExplorerEntityController&>(*controller);
    const std::string removeSite = violationSite<common::ENotImplemented>([&] { concrete.remove({image}); });
    for (const std::string& site : {createSite, renameSite, removeSite})
        EXPECT_EQ(siteFile(site), controllerFile);
    EXPECT_NE(createSite, renameSite);
    EXPECT_NE(renameSite, removeSite);
    EXPECT_NE(createSite, removeSite);
    EXPECT_TRUE(undoNames().empty());
    EXPECT_TRUE(exists(image));

    const std::string swappedSite = violationSite<common::EPreconditionViolation>(
        [this]
        {
            factory->createController(services.getClassifier(), services.getEntitySource(),
                                      services.getCopyDataBuilder(), services.getTableHandler(),
                                      services.getSheetHandler(), services.getAssemblyHandler(),
                                      services.getMaterialHandler(), services.getOperationGuardSource(),
                                      services.getPasteHandler());
        });
    EXPECT_EQ(siteFile(swappedSite), controllerFile);

    // Copying what the copy format has no place for is refused before the clipboard is touched.
    const CProjectExplorerCopierToClipboard copier(clipboard, services.getClassifier(),
                                                   services.getEntitySource(), services.getCopyDataBuilder(),
                                                   serializer);
    const std::string copySite =
        violationSite<common::ENotImplemented>([&] { copier.copyToClipboard({linkedModel}); });
    EXPECT_EQ(siteFile(copySite),
              "ProjectExplorerLib/ProjectExplorerLib/ProjectExplorerCopierToClipboard.cpp");
    EXPECT_FALSE(clipboard.hasData(aec::clipboardFormatProjectEntities));
}

} // namespace
} // namespace project_explorer::test
