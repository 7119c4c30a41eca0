#include "HostFrame/ExplorerSession.h"

#include "AecModel/Document.h"
#include "AecModel/Project.h"
#include "AecModel/SampleProject.h"
#include "Common/AssertionViolation.h"
#include "Common/Exception.h"
#include "HostFrame/ExplorerPanel.h"
#include "HostFrame/GroupingButtons.h"
#include "HostFrame/Gui.h"
#include "HostServices/HostServices.h"
#include "aec/Commands.h"
#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerGroupInfo.h"
#include "aec/ProjectExplorerGroupingModel.h"
#include "aec/ProjectExplorerSubgroup.h"
#include "aec/PropertyContext.h"
#include "aec/TextIds.h"

#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

namespace aec::host
{
namespace
{

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

const ProjectExplorerGroupInfo& sheetsInfo()
{
    return projectExplorerGroups().front();
}

// A session over the sample project, made reproducible by a seed.
class ExplorerSessionTest : public ::testing::Test
{
protected:
    ExplorerSessionTest()
    {
        session.open(model::buildSampleProject());
        session.getPanel().treeChangedSignal().connect([this] { ++treeChanges; });
    }

    IProjectExplorerGroup& sheets() { return *session.getExplorer().getGroups().begin(); }

    EntityIdSet shownSheets()
    {
        EntityIdSet entities;
        for (const IProjectExplorerSubgroup& subgroup : sheets().getSubgroups())
            entities.insert(subgroup.getEntities().begin(), subgroup.getEntities().end());
        return entities;
    }

    const ProjectExplorerGroupState& storedSheetsState()
    {
        const std::optional<ProjectExplorerState> state =
            session.getProject().getPreferences().getProjectExplorerState();
        EXPECT_TRUE(state.has_value() && state->contains(sheetsInfo().id))
            << "no state of the sheets is stored";
        storedState = state.value_or(ProjectExplorerState{});
        return storedState[sheetsInfo().id];
    }

    CExplorerSession session{42};
    ProjectExplorerState storedState;
    int treeChanges = 0;
};

TEST_F(ExplorerSessionTest, UnfoldSelectDeleteAndUndo)
{
    ASSERT_EQ(sheets().getName(), sheetsInfo().name);
    CGui& gui = session.getGui();
    EXPECT_FALSE(gui.isCommandEnabled(commands::copy));
    EXPECT_FALSE(gui.isCommandEnabled(commands::cut));

    session.getPanel().toggleGroup(0);
    EXPECT_TRUE(sheets().isExpanded());
    EXPECT_TRUE(storedSheetsState().expanded) << "the preferences hold the new fold state";

    const EntityIdList all = session.getProject().getEntities(EntityCollection::Sheets);
    const EntityIdSet chosen{all[1], all[3]};
    session.getPanel().changeSelection(chosen, {});
    EXPECT_EQ(session.getSelection(), chosen);
    EXPECT_TRUE(gui.isCommandEnabled(commands::copy));
    EXPECT_TRUE(gui.isCommandEnabled(commands::cut));

    CHostServices& services = session.getHostServices();
    services.getDialogService().queueAnswer(DialogAnswer::Yes);
    const int changesBefore = treeChanges;
    gui.runCommand(commands::deleteSelection);

    const CTranslation& translation = services.getTranslation();
    ASSERT_EQ(services.getDialogService().getQuestions().size(), 1u);
    EXPECT_EQ(services.getDialogService().getQuestions()[0].title,
              translation.getText(text_ids::deleteTitle));
    EXPECT_EQ(services.getDialogService().getQuestions()[0].text,
              translation.fillIn(translation.getText(text_ids::deleteManyQuestion), L"2"));
    for (const EntityId& entity : chosen)
    {
        EXPECT_EQ(session.getProject().findEntity(entity), nullptr);
        EXPECT_THAT(shownSheets(), Not(Contains(entity)));
    }
    EXPECT_THAT(session.getUndoHistory().getUndoNames(),
                ElementsAre("Remove entities from project explorer"));
    EXPECT_THAT(session.getSelection(), IsEmpty()) << "deleted entities leave the selection";
    EXPECT_FALSE(gui.isCommandEnabled(commands::copy));
    EXPECT_GT(treeChanges, changesBefore);

    session.getUndoHistory().undo();
    for (const EntityId& entity : chosen)
        EXPECT_THAT(shownSheets(), Contains(entity));
    EXPECT_TRUE(storedSheetsState().expanded);
}

TEST_F(ExplorerSessionTest, RenameFromTheContextMenuAsksThePanel)
{
    const EntityId sheet = session.getProject().getEntities(EntityCollection::Sheets).front();
    std::vector<EntityId> renames;
    session.getPanel().renameRequestedSignal().connect([&renames](const EntityId& entity)
                                                       { renames.push_back(entity); });
    session.getPanel().changeSelection({sheet}, {});

    CGui& gui = session.getGui();
    gui.requestContextMenu({10.0, 20.0});
    const std::wstring renameText = session.getHostServices().getTranslation().getText(text_ids::rename);
    const std::vector<CContextMenuItem>& menu = gui.getLastContextMenu();
    const auto rename = std::ranges::find(menu, renameText, &CContextMenuItem::getText);
    ASSERT_NE(rename, menu.end()) << "the menu of one entity offers renaming";

    gui.chooseContextMenuItem(std::array{static_cast<std::size_t>(rename - menu.begin())});
    EXPECT_EQ(renames, std::vector<EntityId>{sheet});
}

TEST_F(ExplorerSessionTest, SortButtonsKeepTheirItemsAndShowTheChoice)
{
    const GroupingButtonIds buttons = groupingButtonsOf(sheetsInfo()).value();
    CGui& gui = session.getGui();
    EXPECT_EQ(gui.getButtonValue(buttons.panel, buttons.sortOrder), std::wstring(CGui::ascendingValue));
    EXPECT_EQ(gui.getButtonValue(buttons.panel, buttons.groupCriterion), L"0");

    gui.chooseButtonValue(buttons.panel, buttons.sortOrder, std::wstring(CGui::descendingValue));
    EXPECT_EQ(sheets().getGroupingModel().getSortOrder(), IProjectExplorerGroupingModel::descending);
    EXPECT_EQ(gui.getButtonValue(buttons.panel, buttons.sortOrder), std::wstring(CGui::descendingValue));
    EXPECT_EQ(gui.getButtonItems(buttons.panel, buttons.sortOrder).size(), 2u)
        << "the model's refresh emptied the button, and it was refilled";
    EXPECT_EQ(storedSheetsState().sortOrder,
              static_cast<std::uint32_t>(IProjectExplorerGroupingModel::descending));
}

TEST_F(ExplorerSessionTest, LoadingReplacesTheProjectAndRestoresItsState)
{
    const std::filesystem::path file =
        std::filesystem::temp_directory_path() /
        ("explorer-session-" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) + ".json");
    session.getPanel().toggleGroup(0);
    session.save(file);
    const model::CProject* const first = &session.getProject();

    EXPECT_THROW(session.load(file.string() + ".missing"), common::EException);
    EXPECT_EQ(&session.getProject(), first) << "a file that does not load leaves the project open";

    const int changesBefore = treeChanges;
    session.load(file);
    std::filesystem::remove(file);
    EXPECT_NE(&session.getProject(), first);
    EXPECT_TRUE(sheets().isExpanded()) << "the fold state came back with the project";
    EXPECT_GT(treeChanges, changesBefore) << "the panel and its listeners outlive the project";

    // The new project's handlers are bound once: commands run against it.
    const EntityId sheet = session.getProject().getEntities(EntityCollection::Sheets).front();
    session.getPanel().changeSelection({sheet}, {});
    session.getHostServices().getDialogService().queueAnswer(DialogAnswer::Yes);
    session.getGui().runCommand(commands::deleteSelection);
    EXPECT_EQ(session.getProject().findEntity(sheet), nullptr);

    session.close();
    EXPECT_FALSE(session.hasProject());
    EXPECT_FALSE(session.getPanel().hasExplorer());
    EXPECT_FALSE(session.getGui().hasCommandHandler(commands::deleteSelection));
    EXPECT_FALSE(session.getGui().hasDocumentActivatedRegistration());
    EXPECT_THROW(session.getExplorer(), common::EPreconditionViolation);
}

TEST_F(ExplorerSessionTest, EditPropertiesReachesTheEditorThroughTheDocumentsContext)
{
    // Assemblies are among the entities whose properties the explorer lets the host edit.
    const EntityId assembly = session.getProject().getEntities(EntityCollection::Assemblies).front();
    IPropertyContext* const context = session.getProject().getDocument().getPropertyContext();
    ASSERT_NE(context, nullptr) << "without a context the explorer keeps edit properties from the host";
    session.getPanel().changeSelection({assembly}, {});
    session.getGui().runCommand(commands::editProperties);
    const auto& request = session.getHostServices().getPropertyEditor().getLastRequest();
    ASSERT_TRUE(request.has_value());
    EXPECT_EQ(request->owner, context->getOwner());
    EXPECT_EQ(request->entities, EntityIdSet{assembly});

    // A document that comes with a context of its own keeps it.
    struct COwnContext final : IPropertyContext, IPropertyContextOwner
    {
        IPropertyContextOwner* getOwner() const override { return const_cast<COwnContext*>(this); }
    } own;
    auto project = model::buildSampleProject();
    project->getDocument().setPropertyContext(&own);
    session.open(std::move(project));
    EXPECT_EQ(session.getProject().getDocument().getPropertyContext(), &own);
    session.close();
}

} // namespace
} // namespace aec::host
