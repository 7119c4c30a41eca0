#include "HostFrame/ExplorerSession.h"

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

} // namespace
} // namespace aec::host
