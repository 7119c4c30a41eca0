#include "EntityOperationsFixture.h"
#include "ViolationSite.h"

#include "ProjectExplorerLib/ProjectExplorerCopierToClipboard.h"
#include "ProjectExplorerLib/ProjectExplorerExports.h"

#include "AecModel/AttributeValueFormatter.h"
#include "AecModel/EditingService.h"
#include "AecModel/PropertyCatalog.h"

#include "aec/ClipboardFormats.h"
#include "aec/EntityTypes.h"
#include "aec/ObjectEvents.h"
#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerEntityProvider.h"
#include "aec/ProjectExplorerFactory.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerGroupMaker.h"
#include "aec/ProjectExplorerGroupingModel.h"
#include "aec/ProjectExplorerGroupingModelFactory.h"
#include "aec/ProjectExplorerSubgroup.h"

#include "Common/AssertionViolation.h"
#include "Common/Exception.h"

#include <map>

namespace project_explorer::test
{
namespace
{

namespace types = aec::entity_types;

constexpr const char* controllerFile = "ProjectExplorerLib/ProjectExplorerLib/ProjectExplorerEntityController.cpp";
const std::string removeStep = "Remove entities from project explorer";

using EntityControllerTest = EntityOperationsFixture;

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
    EXPECT_EQ(undoNames(), (std::vector<std::string>{"Create entity with type " + types::material().toString(),
                                                     "Create entity with type " + types::sheet().toString()}));
}

TEST_F(EntityControllerTest, RenamesHandledTypesInANamedStepAndStylesThroughTheEditingService)
{
    controller->renameEntity(sheet1, L"Ground floor");
    controller->renameEntity(doorStyle, L"Double leaf");

    EXPECT_EQ(nameOf(sheet1), L"Ground floor");
    EXPECT_EQ(nameOf(doorStyle), L"Double leaf");
    EXPECT_EQ(undoNames(), (std::vector<std::string>{std::string(aec::model::CEditingService::stepName),
                                                     "Rename entity with type " + types::sheet().toString()}));
    ASSERT_TRUE(project.getChangeOrigin());
    EXPECT_EQ(project.getChangeOrigin()->file, controllerFile);
}

TEST_F(EntityControllerTest, DeleteAsksFirstAndRemovesOnlyOnYes)
{
    dialogs.answer = aec::DialogAnswer::No;
    controller->deleteWithConfirmation({sheet1});
    EXPECT_TRUE(exists(sheet1));

    dialogs.answer = aec::DialogAnswer::Yes;
    controller->deleteWithConfirmation({sheet1, doorStyle, missing, sheet2});

    ASSERT_EQ(dialogs.questions.size(), 2u);
    EXPECT_EQ(dialogs.questions[0].title, L"T42 {}");
    EXPECT_EQ(dialogs.questions[0].question, L"T43 Plan");
    EXPECT_EQ(dialogs.questions[0].buttons, aec::dialogButtonsYesNo);
    EXPECT_EQ(dialogs.questions[1].question, L"T44 2");
    EXPECT_FALSE(exists(sheet1));
    EXPECT_FALSE(exists(sheet2));
    EXPECT_TRUE(exists(doorStyle));
    EXPECT_EQ(undoNames(), std::vector<std::string>{removeStep});
}

TEST_F(EntityControllerTest, DeleteOfNothingDeletableAsksNothing)
{
    controller->deleteWithConfirmation({doorStyle, image, missing});
    controller->deleteWithConfirmation({});

    EXPECT_TRUE(dialogs.questions.empty());
    EXPECT_TRUE(undoNames().empty());
}

TEST_F(EntityControllerTest, CopyThenPasteMakesNewEntitiesWhileTheDocumentStopsFollowing)
{
    // The linked model cannot be copied and the missing entity is gone: both are left out.
    controller->copy({sheet1, linkedModel, image, missing});
    EXPECT_TRUE(undoNames().empty());
    ASSERT_TRUE(clipboard.hasData(aec::clipboardFormatProjectEntities));

    controller->paste();

    const aec::EntityIdList sheets = project.getEntities(aec::EntityCollection::Sheets);
    ASSERT_EQ(sheets.size(), 3u);
    EXPECT_EQ(nameOf(sheets.back()), L"Plan (copy)");
    EXPECT_EQ(nameOf(project.getEntities(aec::EntityCollection::Images).back()), L"Logo (copy)");
    EXPECT_EQ(project.getEntities(aec::EntityCollection::LinkedModels).size(), 1u);
    EXPECT_EQ(undoNames(), std::vector<std::string>{"Paste entities from clipboard to project explorer"});
    EXPECT_EQ(documentGui.followingSet, (std::vector<bool>{false, true}));
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

// Counts the project's object events and, given an explorer, rebuilds every group on each, as the
// explorer's panel does.
class RegroupingPanel : public aec::IObjectEvents
{
public:
    RegroupingPanel(aec::model::CProject& project, aec::IProjectExplorer* explorer)
        : project_(project), explorer_(explorer)
    {
        project_.getObjectEvents().addObserver(*this);
    }
    ~RegroupingPanel() override { project_.getObjectEvents().removeObserver(*this); }

    void onProjectOpened() override {}
    void onObjectsChanged(std::uint32_t, std::uint32_t, const aec::EntityIdSet&, const aec::EntityIdSet&) override
    {
        ++events;
        if (explorer_ != nullptr)
            for (aec::IProjectExplorerGroup& group : explorer_->getGroups())
                group.rebuild();
    }
    void onProjectClosing() override {}

    int events = 0;

private:
    aec::model::CProject& project_;
    aec::IProjectExplorer* explorer_;
};

std::map<std::wstring, aec::EntityIdSet> subgroupsOf(const aec::IProjectExplorerGroup& group)
{
    std::map<std::wstring, aec::EntityIdSet> subgroups;
    for (const aec::IProjectExplorerSubgroup& subgroup : group.getSubgroups())
        subgroups[subgroup.getName()] = aec::EntityIdSet(subgroup.getEntities().begin(), subgroup.getEntities().end());
    return subgroups;
}

TEST_F(EntityControllerTest, ChangeTopicRegroupsTheEntitiesAfterOneNotification)
{
    const aec::model::CAttributeValueFormatter formatter(sessions);
    const aec::model::CPropertyCatalog catalog;
    const auto modelFactory = createGroupingModelFactory();
    const auto groupMaker = createGroupMaker(formatter, sessions);
    const auto entityProvider = createProjectExplorerEntityProvider(sessions);
    const auto explorerFactory = createProjectExplorerFactory(*modelFactory, *groupMaker, *entityProvider);
    const auto explorer = explorerFactory->createProjectExplorer(project.getPreferences(), project, catalog);
    aec::IProjectExplorerGroup& sheets = *explorer->getGroups().begin();
    sheets.getGroupingModel().setGroupingKey(aec::PropertyAssignmentKey::topic());
    RegroupingPanel panel(project, explorer.get());

    controller->changeTopic({sheet1}, topicB);

    EXPECT_EQ(panel.events, 1);
    EXPECT_EQ(subgroupsOf(sheets), (std::map<std::wstring, aec::EntityIdSet>{{L"Alpha", {sheet2}}, {L"Beta", {sheet1}}}));
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
    controller->editProperties({sheet1});
    EXPECT_TRUE(propertyEditor.edited.empty());

    project.getDocument().setPropertyContext(&propertyEditor);
    controller->editProperties({material, sheet1, material});
    EXPECT_EQ(propertyEditor.edited, std::vector<aec::EntityIdSet>{(aec::EntityIdSet{material, sheet1})});

    propertyEditor.hasOwner = false;
    const std::string ownerSite = violationSite<common::ECheckViolation>([this] { controller->editProperties({sheet1}); });
    documentGui.present = false;
    const std::string guiSite = violationSite<common::ECheckViolation>([this] { controller->forwardToGuiHandler(sheet1); });
    EXPECT_EQ(siteFile(ownerSite), controllerFile);
    EXPECT_EQ(siteFile(guiSite), controllerFile);
    EXPECT_NE(ownerSite, guiSite);
    project.getDocument().setPropertyContext(nullptr);
}

TEST_F(EntityControllerTest, OpenAndForwardReachTheDocumentUserInterface)
{
    controller->open({sheet1, table});
    controller->forwardToGuiHandler(material);
    documentGui.present = false;
    controller->open({sheet2});

    EXPECT_EQ(documentGui.opened, std::vector<aec::EntityIdList>{(aec::EntityIdList{sheet1, table})});
    EXPECT_EQ(documentGui.handled, aec::EntityIdList{material});
}

TEST_F(EntityControllerTest, ImportAddsTheTableUnlessTheUserCancels)
{
    controller->importTableFromFile();
    EXPECT_TRUE(undoNames().empty());

    dialogs.fileAnswer = L"/projects/lists/Windows.csv";
    controller->importTableFromFile();

    EXPECT_EQ(nameOf(project.getEntities(aec::EntityCollection::Tables).back()), L"Windows");
    EXPECT_EQ(undoNames(), std::vector<std::string>{"Import table from file"});
}

TEST_F(EntityControllerTest, AFailingServiceLeavesProjectAndHistoryAsTheyWere)
{
    controller->copy({sheet1});
    controller->renameEntity(table, L"Door list");
    RegroupingPanel events(project, nullptr);
    const std::string dump = project.canonicalDump();
    const std::vector<std::string> history = undoNames();
    const auto expectUnchangedAfter = [&](const auto& action) {
        EXPECT_THROW(action(), common::EException);
        EXPECT_EQ(project.canonicalDump(), dump);
        EXPECT_EQ(undoNames(), history);
    };

    // The sheet handler fails after the table is gone and the sheet removed.
    sheetHandler.failing = true;
    expectUnchangedAfter([this] { controller->deleteWithConfirmation({table, sheet1}); });
    expectUnchangedAfter([this] {
        aec::EntityId id;
        controller->createEntity(types::sheet(), id);
    });
    sheetHandler.failing = false;

    serializer.failing = true;
    expectUnchangedAfter([this] { controller->paste(); });
    EXPECT_TRUE(documentGui.following);
    serializer.failing = false;

    clipboard.failing = true;
    expectUnchangedAfter([this] { controller->cut({sheet2}); });
    clipboard.failing = false;
    clipboard.content.clear();
    expectUnchangedAfter([this] { controller->paste(); });
    expectUnchangedAfter([this] { controller->changeTopic({sheet1, linkedModel}, topicB); });

    // The guard and the notification batch were let go: the next change runs and is reported.
    events.events = 0;
    controller->deleteWithConfirmation({table});
    EXPECT_FALSE(exists(table));
    EXPECT_EQ(events.events, 1);
}

TEST_F(EntityControllerTest, ContractBreachesNameTheirSites)
{
    aec::EntityId id;
    const std::string createSite =
        violationSite<common::ENotImplemented>([&] { controller->createEntity(types::doorStyle(), id); });
    EXPECT_EQ(siteFile(createSite), controllerFile);
    EXPECT_TRUE(undoNames().empty());

    const std::string swappedSite = violationSite<common::EPreconditionViolation>([this] {
        factory->createController(classifier, classifier, copyDataBuilder, tableHandler, sheetHandler, assemblyHandler,
                                  materialHandler, guards, pasteHandler);
    });
    EXPECT_EQ(siteFile(swappedSite), controllerFile);

    // Copying what the copy format has no place for is refused before the clipboard is touched.
    const CProjectExplorerCopierToClipboard copier(clipboard, classifier, classifier, copyDataBuilder, serializer);
    const std::string copySite = violationSite<common::ENotImplemented>([&] { copier.copyToClipboard({linkedModel}); });
    EXPECT_EQ(siteFile(copySite), "ProjectExplorerLib/ProjectExplorerLib/ProjectExplorerCopierToClipboard.cpp");
    EXPECT_TRUE(clipboard.content.empty());
}

} // namespace
} // namespace project_explorer::test
