#include "EntityOperationsFixture.h"

#include "ProjectExplorerLib/ProjectExplorerCopyCutController.h"
#include "ProjectExplorerLib/ProjectExplorerEntitySelection.h"

#include "aec/ClipboardFormats.h"
#include "aec/Commands.h"

#include <optional>

namespace project_explorer::test
{
namespace
{

class CopyCutControllerTest : public EntityOperationsFixture
{
protected:
    bool copyEnabled() const { return gui.isCommandEnabled(aec::commands::copy); }
    bool cutEnabled() const { return gui.isCommandEnabled(aec::commands::cut); }

    CProjectExplorerEntitySelection selection;
    std::optional<CProjectExplorerCopyCutController> copyCut;
};

TEST_F(CopyCutControllerTest, CommandsFollowTheSelectionAndTheActiveFlag)
{
    copyCut.emplace(gui, *controller, selection);
    EXPECT_FALSE(copyEnabled());
    EXPECT_FALSE(cutEnabled());

    selection.setSelection({sheet1});
    EXPECT_TRUE(copyEnabled());
    EXPECT_TRUE(cutEnabled());

    copyCut->setActive(false);
    EXPECT_FALSE(copyEnabled());
    EXPECT_FALSE(cutEnabled());
    // A host that runs the commands anyway finds them doing nothing.
    gui.enableCommand(aec::commands::copy, true);
    gui.enableCommand(aec::commands::cut, true);
    gui.runCommand(aec::commands::copy);
    gui.runCommand(aec::commands::cut);
    EXPECT_FALSE(clipboard.hasData(aec::clipboardFormatProjectEntities));
    EXPECT_TRUE(exists(sheet1));
    gui.enableCommand(aec::commands::copy, false);
    gui.enableCommand(aec::commands::cut, false);

    copyCut->setActive(true);
    EXPECT_TRUE(cutEnabled());
    selection.setSelection({});
    EXPECT_FALSE(copyEnabled());
    EXPECT_FALSE(cutEnabled());
}

TEST_F(CopyCutControllerTest, CommandsRunOnTheSelection)
{
    copyCut.emplace(gui, *controller, selection);
    selection.setSelection({sheet1, sheet2});
    gui.runCommand(aec::commands::copy);
    EXPECT_TRUE(clipboard.hasData(aec::clipboardFormatProjectEntities));
    EXPECT_TRUE(undoNames().empty());

    gui.runCommand(aec::commands::cut);
    EXPECT_FALSE(exists(sheet1));
    EXPECT_FALSE(exists(sheet2));
    EXPECT_EQ(undoNames(), std::vector<std::string>{"Remove entities from project explorer"});
}

TEST_F(CopyCutControllerTest, StartsFromTheCurrentSelectionAndLetsGoOfTheCommands)
{
    selection.setSelection({material});
    copyCut.emplace(gui, *controller, selection);
    EXPECT_TRUE(copyEnabled());
    EXPECT_TRUE(gui.hasCommandHandler(aec::commands::copy));
    EXPECT_TRUE(gui.hasCommandHandler(aec::commands::cut));

    copyCut.reset();
    EXPECT_FALSE(copyEnabled());
    EXPECT_FALSE(cutEnabled());
    EXPECT_FALSE(gui.hasCommandHandler(aec::commands::copy));
    EXPECT_FALSE(gui.hasCommandHandler(aec::commands::cut));
    // The destroyed controller no longer listens.
    selection.setSelection({sheet1});
    EXPECT_FALSE(copyEnabled());
}

} // namespace
} // namespace project_explorer::test
