// The terminal program must never lose what a user made or answer a user with an internal error:
// unsaved changes, identifiers of seeded runs, names that must stay reachable, and commands that
// explain themselves.

#include "AecModel/Project.h"
#include "AecModel/WideText.h"
#include "ExplorerShell/ShellCommandInterpreter.h"
#include "HostFrame/ExplorerSession.h"
#include "HostServices/HostServices.h"
#include "ShellInterpreterTest.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>
#include <string>

namespace aec::shell
{
namespace
{

using ::testing::HasSubstr;
using ::testing::Not;

class UserWorkTest : public test::CShellInterpreterTest
{
protected:
    UserWorkTest() : CShellInterpreterTest(5) {}
    ~UserWorkTest() override { std::filesystem::remove_all(folder); }

    std::string nameOf(const std::string& idText)
    {
        const auto id = common::UUID::tryParse(std::string_view(idText));
        return id ? model::toUtf8(session.getProject().findEntity(EntityId(*id))->getName()) : "";
    }

    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() /
        ("aec-user-work-" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()));
};

TEST_F(UserWorkTest, QuitAndLoadAskBeforeUnsavedChangesAreLost)
{
    std::filesystem::create_directories(folder);
    const std::string file = (folder / "saved.json").string();
    run("quit");
    EXPECT_TRUE(interpreter.hasQuit()) << "nothing to lose, nothing to ask";

    CShellCommandInterpreter shell(session, out, &errors);
    const auto& questions = session.getHostServices().getDialogService().getQuestions();
    ASSERT_TRUE(shell.execute("create sheet Plan"));
    EXPECT_FALSE(shell.execute("quit")) << "the default answer keeps the changes";
    EXPECT_FALSE(shell.hasQuit());
    EXPECT_THAT(errors.str(), HasSubstr("The changes were kept; save them with save FILE"));
    EXPECT_THAT(model::toUtf8(questions.back().text), HasSubstr("Discard the changes?"));
    EXPECT_FALSE(shell.execute("load " + file));
    EXPECT_TRUE(session.getProject().canonicalDump().find("Plan") != std::string::npos);

    // Undoing back to the state opened is clean again; redoing is not.
    ASSERT_TRUE(shell.execute("undo"));
    EXPECT_FALSE(session.hasUnsavedChanges());
    ASSERT_TRUE(shell.execute("redo"));
    EXPECT_TRUE(session.hasUnsavedChanges());
    ASSERT_TRUE(shell.execute("save " + file));
    EXPECT_FALSE(session.hasUnsavedChanges());
    ASSERT_TRUE(shell.execute("undo"));
    EXPECT_TRUE(session.hasUnsavedChanges()) << "the saved file has the sheet";
    ASSERT_TRUE(shell.execute("redo"));
    ASSERT_TRUE(shell.execute("rename Plan Section"));
    const std::size_t asked = questions.size();
    ASSERT_TRUE(shell.execute("answer yes"));
    ASSERT_TRUE(shell.execute("load " + file));
    EXPECT_EQ(questions.size(), asked + 1);
    ASSERT_TRUE(shell.execute("select Plan")) << "the file's sheet is back";
    ASSERT_TRUE(shell.execute("QUIT")) << "command words in any case";
    EXPECT_TRUE(shell.hasQuit());
}

// A project saved by a run with one seed holds the identifiers that another run with that seed makes
// next; the model must not be handed one of them.
TEST_F(UserWorkTest, ASeededRunSkipsTheIdentifiersOfTheProjectItOpens)
{
    std::filesystem::create_directories(folder);
    const std::filesystem::path file = folder / "seeded.json";
    {
        host::CExplorerSession first{1};
        first.open(model::buildSampleProject());
        first.save(file);
    }
    host::CExplorerSession second{1};
    second.load(file);
    std::ostringstream output;
    CShellCommandInterpreter shell(second, output);
    const std::size_t before = second.getProject().entityCount();
    EXPECT_TRUE(shell.execute("create sheet X")) << output.str();
    EXPECT_EQ(second.getProject().entityCount(), before + 1);
}

TEST_F(UserWorkTest, EveryEntityCanBeNamedEvenWhenNamesRepeatAcrossGroups)
{
    run("rename \"Sheet S-1\" \"Door schedule\"");
    EXPECT_THAT(fail("select \"Door schedule\""), HasSubstr("0:Door schedule, 1:Door schedule"));
    run("select \"0:Door schedule\"");
    ASSERT_EQ(session.getSelection().size(), 1u);
    const EntityId sheet = *session.getSelection().begin();
    EXPECT_EQ(session.getProject().findEntity(sheet)->getCollection(), EntityCollection::Sheets);
    run("select \"1:Door schedule\"");
    EXPECT_NE(*session.getSelection().begin(), sheet);
    run("select " + sheet.uuid().toString());
    EXPECT_EQ(*session.getSelection().begin(), sheet);

    // Names that differ only in case, leading zeros or blanks around them are one name.
    EXPECT_THAT(fail("rename \"Sheet S-10\" \"sheet s-02\""),
                HasSubstr("already a sheet named \"Sheet S-2\""));
    run("rename \"Sheet S-10\" \"  Sheet S-11 \"");
    run("select \"Sheet S-11\"");
}

TEST_F(UserWorkTest, TopicsLinkedModelsAndImagesAreRenamedOrRefusedInWords)
{
    run("rename \"level 2\" \"Level 2\"");
    run("select \"Sheet A-3\"");
    EXPECT_THAT(run("tree"), Not(HasSubstr("level 2")));
    EXPECT_THAT(fail("rename Logo Emblem"), HasSubstr("image"));
    EXPECT_THAT(fail("rename \"Site model\" Site"), HasSubstr("linked model"));
    EXPECT_THAT(run("history"), HasSubstr("Rename topic “Level 2”"));
}

TEST_F(UserWorkTest, TopicsAreMadeListedDeletedAndCleared)
{
    run("topics new \" Roof \"");
    EXPECT_THAT(fail("topics new roof"), HasSubstr("already a topic named \"Roof\""));
    const std::string listed = run("topics");
    EXPECT_LT(listed.find("\"level 2\""), listed.find("\"Level 10\"")) << "natural order";
    EXPECT_THAT(listed, HasSubstr("\"Roof\"\t0\n"));

    const auto topicOf = [this](std::wstring_view name)
    {
        for (const EntityId& id : session.getProject().getEntities(EntityCollection::Sheets))
            if (session.getProject().findEntity(id)->getName() == name)
                return session.getProject().findEntity(id)->getTopic();
        return std::optional<TopicId>();
    };
    EXPECT_EQ(run("topics delete Structure"), "asked: Delete the topic “Structure”? 10 entities have it and "
                                              "will have no topic.\nkept: topic \"Structure\"\n");
    EXPECT_TRUE(topicOf(L"Sheet S-1").has_value());
    run("answer yes");
    run("topics delete Structure");
    EXPECT_FALSE(topicOf(L"Sheet S-1").has_value());
    run("undo");
    EXPECT_TRUE(topicOf(L"Sheet S-1").has_value());

    run("select \"Sheet A-101\"");
    EXPECT_EQ(run("topics clear"), "topic: none\n");
    EXPECT_FALSE(topicOf(L"Sheet A-101").has_value());
    run("select Logo");
    EXPECT_THAT(fail("topics clear"), HasSubstr("has no topic to clear"));
}

TEST_F(UserWorkTest, HistoryAndUndoSpeakOfWhatChanged)
{
    run("create sheet \"A-9\"");
    run("rename \"A-9\" \"A-10\"");
    run("select \"Sheet A-3\" \"Sheet A-20\" \"Sheet S-1\"");
    run("answer yes");
    run("delete");
    run("select \"Door schedule\"");
    run("copy");
    run("paste");
    EXPECT_EQ(run("history"), "undo\tPaste table “Door schedule (2)”\n"
                              "undo\tDelete 3 entities\n"
                              "undo\tRename sheet “A-10”\n"
                              "undo\tCreate sheet “A-9”\n");
    EXPECT_EQ(run("undo"), "undone: Paste table “Door schedule (2)”\n");
}

// A selection of thousands is told by its start and a count, not name by name.
TEST_F(UserWorkTest, LongSelectionsAreSummarisedWithACount)
{
    for (int number = 0; number < 30; ++number)
        run("create material");
    const std::string selected = run("select all 3");
    EXPECT_THAT(selected, HasSubstr(" and 28 more (38 in all)"));
    EXPECT_EQ(std::ranges::count(selected, '"'), 20) << selected;
}

} // namespace
} // namespace aec::shell
