#include "AecModel/Project.h"
#include "AecModel/WideText.h"
#include "HostChecks/RefusingProjectObserver.h"
#include "ShellInterpreterTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>
#include <string>

namespace aec::shell
{
namespace
{

using ::testing::HasSubstr;
using ::testing::StartsWith;

class ShellCommandInterpreterTest : public test::CShellInterpreterTest
{
protected:
    ShellCommandInterpreterTest() : CShellInterpreterTest(42) {}

    EntityId entityNamed(EntityCollection collection, std::wstring_view name)
    {
        for (const EntityId& id : session.getProject().getEntities(collection))
            if (session.getProject().findEntity(id)->getName() == name)
                return id;
        ADD_FAILURE() << "no entity " << model::toUtf8(name);
        return {};
    }

    // Everything a failed command must leave as it was: the project, the tree with its folds and
    // selection, and the undo history.
    std::string everything()
    {
        std::ostringstream dump;
        CShellCommandInterpreter(session, dump).execute("dump");
        const auto& history = session.getUndoHistory();
        return session.getProject().canonicalDump() + dump.str() +
               std::to_string(history.getUndoNames().size()) + ' ' +
               std::to_string(history.getRedoNames().size());
    }
};

// The transcript of scripts/bad_input.shell pins the message of every refused line of the shell;
// what only this test sees is the whole project and the undo history around each refusal, and
// the refusals that script does not make.
TEST_F(ShellCommandInterpreterTest, EveryBadCommandPrintsOneErrorLineAndChangesNothing)
{
    run("toggle 0");
    run(R"(select "Sheet A-101" "Cover sheet")");

    // Each line with a piece of the message that tells the user what to do.
    const std::vector<std::pair<std::string, std::string>> cases{
        {"toggle -1", "no group -1"},
        {"toggle 0 0 0", "Usage: toggle G [S]"},
        {"topic Nowhere", "There is no topic \"Nowhere\""},
        {"group Topics none", "Topics has no grouping"},
    };
    for (const auto& [line, message] : cases)
    {
        const std::string before = everything();
        const std::string error = fail(line);
        EXPECT_THAT(error, StartsWith("error: ")) << line;
        EXPECT_THAT(error, HasSubstr(message)) << line;
        EXPECT_EQ(std::ranges::count(error, '\n'), 1) << line << ": " << error;
        EXPECT_EQ(everything(), before) << line;
    }

    run("select none");
    for (const std::string line : {"delete", "copy", "cut", "open", "topic Structure"})
    {
        const std::string before = everything();
        EXPECT_THAT(fail(line), HasSubstr("Nothing is selected")) << line;
        EXPECT_EQ(everything(), before) << line;
    }
}

TEST_F(ShellCommandInterpreterTest, AnUndoOrRedoThatFailsPrintsItsErrorAndKeepsTheHistory)
{
    run("create sheet A");
    run("create sheet B");
    run("undo");
    const host::CRefusingProjectObserver drawing(session.getProject(),
                                                 "The drawing cannot follow the change.");
    for (const std::string line : {"undo", "redo"})
    {
        const std::string before = everything();
        EXPECT_EQ(fail(line), "error: The drawing cannot follow the change.\n");
        EXPECT_EQ(everything(), before) << line;
    }
}

// Words in quotes are names even where a keyword would be.
TEST_F(ShellCommandInterpreterTest, AQuotedKeywordIsAName)
{
    run("create sheet none");
    run(R"(select "none")");
    EXPECT_EQ(session.getSelection(), EntityIdSet{entityNamed(EntityCollection::Sheets, L"none")});
}

TEST_F(ShellCommandInterpreterTest, HelpQuitAndCommentsNeedNoProject)
{
    session.close();
    EXPECT_TRUE(interpreter.execute("# a comment"));
    EXPECT_TRUE(interpreter.execute("   "));
    EXPECT_THAT(fail("tree"), HasSubstr("No project is open"));
    const std::string help = '\n' + run("help");
    for (const char* command :
         {"tree", "dump",  "toggle",     "select", "open",   "create", "rename",  "delete", "copy",
          "cut",  "paste", "properties", "import", "topic",  "menu",   "options", "group",  "sort",
          "undo", "redo",  "history",    "state",  "answer", "save",   "load",    "help",   "quit"})
        EXPECT_THAT(help, HasSubstr(std::string("\n  ") + command)) << command;
    EXPECT_FALSE(interpreter.hasQuit());
    run("quit");
    EXPECT_TRUE(interpreter.hasQuit());
}

} // namespace
} // namespace aec::shell
