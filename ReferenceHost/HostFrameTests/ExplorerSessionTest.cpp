#include "HostFrame/ExplorerSession.h"

#include "AecModel/Document.h"
#include "AecModel/Project.h"
#include "AecModel/SampleProject.h"
#include "Common/AssertionViolation.h"
#include "Common/Exception.h"
#include "HostFrame/ExplorerPanel.h"
#include "HostFrame/Gui.h"
#include "HostServices/HostServices.h"
#include "aec/Commands.h"
#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/PropertyContext.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

namespace aec::host
{
namespace
{

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

    CExplorerSession session{42};
    int treeChanges = 0;
};

// How the session wires the explorer to the host for one project is pinned by the end-to-end
// shell scripts (delete and its question, renaming from the menu, sort buttons, stored folds);
// what they do not reach is replacing and closing the project under a panel that stays.
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
