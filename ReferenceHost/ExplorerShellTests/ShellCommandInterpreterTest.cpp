#include "ExplorerShell/ShellCommandInterpreter.h"

#include "AecModel/Project.h"
#include "AecModel/SampleProject.h"
#include "AecModel/WideText.h"
#include "HostFrame/ExplorerSession.h"
#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerGroupingModel.h"
#include "aec/ProjectExplorerSubgroup.h"

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>
#include <string>

namespace aec::shell
{
namespace
{

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

// An interpreter over the sample project, reproducible by its seed.
class ShellCommandInterpreterTest : public ::testing::Test
{
protected:
    ShellCommandInterpreterTest() { session.open(model::buildSampleProject()); }

    // The output of a line that must succeed.
    std::string run(std::string_view line)
    {
        out.str({});
        EXPECT_TRUE(interpreter.execute(line)) << line << " failed: " << out.str();
        return out.str();
    }

    // The error line of a line that must fail.
    std::string fail(std::string_view line)
    {
        out.str({});
        EXPECT_FALSE(interpreter.execute(line)) << line << " succeeded: " << out.str();
        return out.str();
    }

    EntityId entityNamed(EntityCollection collection, std::wstring_view name)
    {
        for (const EntityId& id : session.getProject().getEntities(collection))
            if (session.getProject().findEntity(id)->getName() == name)
                return id;
        ADD_FAILURE() << "no entity " << model::toUtf8(name);
        return {};
    }

    std::wstring topicOf(const EntityId& id)
    {
        const std::optional<TopicId> topic = session.getProject().findEntity(id)->getTopic();
        if (!topic)
            return {};
        for (const CTopic& known : session.getProject().getTopics())
            if (known.getId() == *topic)
                return known.getName();
        return L"?";
    }

    IProjectExplorerGroup& sheets() { return *session.getExplorer().getGroups().begin(); }

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

    host::CExplorerSession session{42};
    std::ostringstream out;
    CShellCommandInterpreter interpreter{session, out};
};

TEST_F(ShellCommandInterpreterTest, EveryBadCommandPrintsOneErrorLineAndChangesNothing)
{
    const std::filesystem::path broken =
        std::filesystem::temp_directory_path() / "explorer-shell-broken.json";
    std::ofstream(broken) << R"({"format": "aec-model-project", "version": 1, "collections": )";
    run("toggle 0");
    run(R"(select "Sheet A-101" "Cover sheet")");

    // Each line with a piece of the message that tells the user what to do.
    const std::vector<std::pair<std::string, std::string>> cases{
        {"frobnicate", "Unknown command \"frobnicate\""},
        {"toggle", "Usage: toggle G [S]"},
        {"toggle 10", "no group 10; groups are numbered 0 to 9"},
        {"toggle -1", "no group -1"},
        {"toggle Nowhere", "There is no group \"Nowhere\""},
        {"toggle 0 99", "Sheets has no subgroup 99"},
        {"toggle 0 first", "number within Sheets"},
        {"toggle 0 0 0", "Usage: toggle G [S]"},
        {"select Nobody", "No entity is named \"Nobody\""},
        {R"(select "Cover sheet" Nobody)", "No entity is named \"Nobody\""},
        {"select +", "Name an entity after + or -"},
        {"select all", "Usage: select all G"},
        {"select none more", "select none takes no names"},
        {"select \"Cover", "A quote is not closed"},
        {R"(rename "Sheet A-20" "Sheet A-101")", "There is already a sheet named \"Sheet A-101\""},
        {R"(rename "Sheet A-20" " ")", "needs a name"},
        {"rename Nobody Somebody", "No entity is named \"Nobody\""},
        {"create widget", "Cannot create a \"widget\""},
        {R"(create sheet "Sheet A-101")", "There is already a sheet named \"Sheet A-101\""},
        {"paste", "The clipboard holds no entities"},
        {"properties", "cannot be edited here"},
        {"import no-such-table.csv", "no-such-table.csv"},
        {"load no-such-project.json", "no-such-project.json"},
        {"load " + broken.string(), broken.filename().string()},
        {"save /no-such-directory/project.json", "/no-such-directory/project.json"},
        {"topic Nowhere", "There is no topic \"Nowhere\""},
        {"menu Nothing", "The context menu has no item \"Nothing\""},
        {"menu Change topic", "opens a submenu"},
        {"menu Change topic/Nowhere", "\"Change topic\" has no item \"Nowhere\""},
        {"menu Paste", "disabled"},
        {"group Sheets Colour", "\"Colour\" is not offered"},
        {"group Topics none", "Topics has no grouping"},
        {"sort Sheets upwards", "Sort asc or desc"},
        {"undo", "nothing to undo"},
        {"redo", "nothing to redo"},
        {"answer maybe", "Answer yes or no"},
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
    std::filesystem::remove(broken);

    run("select none");
    for (const std::string line : {"delete", "copy", "cut", "open", "topic Structure"})
    {
        const std::string before = everything();
        EXPECT_THAT(fail(line), HasSubstr("Nothing is selected")) << line;
        EXPECT_EQ(everything(), before) << line;
    }
}

TEST_F(ShellCommandInterpreterTest, SelectReplacesAddsAndRemovesByName)
{
    const EntityId cover = entityNamed(EntityCollection::Sheets, L"Cover sheet");
    const EntityId plan = entityNamed(EntityCollection::Sheets, L"Sheet A-101");
    const EntityId door = entityNamed(EntityCollection::DoorStyles, L"Door 900");

    EXPECT_EQ(run(R"(select "Sheet A-101" "Cover sheet")"), "selected: \"Cover sheet\", \"Sheet A-101\"\n")
        << "names in tree order";
    run(R"(select +"Door 900" -"Cover sheet")");
    EXPECT_EQ(session.getSelection(), (EntityIdSet{plan, door}));
    run(R"(select "Cover sheet" +"Door 900")");
    EXPECT_EQ(session.getSelection(), (EntityIdSet{cover, door})) << "a plain name replaces the rest";
    EXPECT_EQ(run("select none"), "selected: nothing\n");
    EXPECT_THAT(session.getSelection(), IsEmpty());

    run("select all tables");
    const EntityIdList tables = session.getProject().getEntities(EntityCollection::Tables);
    EXPECT_EQ(session.getSelection(), EntityIdSet(tables.begin(), tables.end()));

    // Words in quotes are names even where a keyword would be.
    run("create sheet none");
    run(R"(select "none")");
    EXPECT_EQ(session.getSelection(), EntityIdSet{entityNamed(EntityCollection::Sheets, L"none")});
}

TEST_F(ShellCommandInterpreterTest, CreateWithANameIsOneStepAndUndoTakesItAway)
{
    const std::size_t sheetsBefore = session.getProject().getEntities(EntityCollection::Sheets).size();
    EXPECT_EQ(run(R"(create sheet "Site plan")"), "created: sheet \"Site plan\"\n");
    entityNamed(EntityCollection::Sheets, L"Site plan");
    EXPECT_EQ(session.getUndoHistory().getUndoNames().size(), 1u);

    EXPECT_THAT(run("undo"), StartsWith("undone: Create entity with type"));
    EXPECT_EQ(session.getProject().getEntities(EntityCollection::Sheets).size(), sheetsBefore);
    run("redo");
    entityNamed(EntityCollection::Sheets, L"Site plan");

    EXPECT_EQ(run("create material"), "created: material \"Material 1\"\n");
    EXPECT_THAT(run("history"), StartsWith("undo\tCreate entity with type "));
}

TEST_F(ShellCommandInterpreterTest, DeleteFollowsTheAnswerToItsQuestion)
{
    const EntityId first = entityNamed(EntityCollection::Sheets, L"Sheet S-1");
    const EntityId second = entityNamed(EntityCollection::Sheets, L"Sheet S-2");
    run(R"(select "Sheet S-1" "Sheet S-2")");

    EXPECT_EQ(run("delete"), "asked: Delete 2 entities?\nkept: the deletion was not confirmed\n")
        << "an unanswered question is answered no";
    EXPECT_NE(session.getProject().findEntity(first), nullptr);

    run("answer yes");
    EXPECT_EQ(run("delete"), "asked: Delete 2 entities?\ndeleted: \"Sheet S-1\", \"Sheet S-2\"\n");
    EXPECT_EQ(session.getProject().findEntity(first), nullptr);
    EXPECT_EQ(session.getProject().findEntity(second), nullptr);
    EXPECT_THAT(session.getUndoHistory().getUndoNames(),
                ElementsAre("Remove entities from project explorer"));
}

TEST_F(ShellCommandInterpreterTest, CopyCutAndPasteGoThroughTheClipboard)
{
    run(R"(select "Sheet A-101" "Door 900")");
    EXPECT_EQ(run("copy"), "copied: \"Sheet A-101\", \"Door 900\"\n");
    EXPECT_EQ(run("paste"), "pasted: \"Sheet A-101 (2)\", \"Door 900 (2)\"\n");

    run(R"(select "Sheet A-20")");
    EXPECT_EQ(run("cut"), "cut: \"Sheet A-20\"\n");
    EXPECT_EQ(run("paste"), "pasted: \"Sheet A-20\"\n") << "the cut name is free again";
    EXPECT_THAT(session.getUndoHistory().getUndoNames(),
                ElementsAre("Paste entities from clipboard to project explorer",
                            "Remove entities from project explorer",
                            "Paste entities from clipboard to project explorer"));
}

TEST_F(ShellCommandInterpreterTest, ContextMenuShowsAndRunsItsItems)
{
    const EntityId concrete = entityNamed(EntityCollection::Materials, L"Concrete C30/37");
    run(R"(select "Concrete C30/37")");

    const std::string menu = run("menu");
    EXPECT_THAT(menu, StartsWith("Open\n---\nRename\n---\nChange topic\n  Architecture\n"));
    EXPECT_THAT(menu, HasSubstr("\n---\nCut\nCopy\nPaste (disabled)\n"));

    EXPECT_EQ(run("menu change topic/LEVEL 2"), "chose: Change topic/level 2\n")
        << "case is no matter when unique";
    EXPECT_EQ(topicOf(concrete), L"level 2");
    EXPECT_EQ(run("topic Structure"), "topic: \"Structure\"\n");
    EXPECT_EQ(topicOf(concrete), L"Structure");

    EXPECT_EQ(run("properties"),
              "properties of \"Concrete C30/37\" (material, topic \"Structure\"):\n  density: 2400 kg/m³\n");
    EXPECT_EQ(run("open"), "opened: \"Concrete C30/37\"\n");
    EXPECT_EQ(run("menu Rename"), "rename requested: \"Concrete C30/37\" (type: rename \"Concrete C30/37\" "
                                  "NEWNAME)\nchose: Rename\n")
        << "what the host was asked comes before the outcome";
}

TEST_F(ShellCommandInterpreterTest, GroupingAndSortGoThroughTheButtons)
{
    EXPECT_EQ(run("group sheets topic"), "grouping of Sheets: Topic\n");
    EXPECT_EQ(sheets().getGroupingModel().getGroupingKey(), PropertyAssignmentKey::topic());
    EXPECT_EQ(run("sort 0 desc"), "sort of Sheets: descending\n");
    EXPECT_EQ(sheets().getGroupingModel().getSortOrder(), IProjectExplorerGroupingModel::descending);

    const std::string options = run("options Sheets");
    EXPECT_THAT(options, HasSubstr("  * Topic ["));
    EXPECT_THAT(options, HasSubstr("sort:\n    Ascending [1]\n  * Descending [2]\n"));
    EXPECT_THAT(run("state"), StartsWith("group\tSheets\t0\tdesc\tTopic\nsubgroup\tSheets\t"));

    run("group Sheets none");
    EXPECT_EQ(sheets().getGroupingModel().getGroupingKey(), PropertyAssignmentKey::noGrouping());
}

TEST_F(ShellCommandInterpreterTest, SaveAndLoadBringBackFoldsAndGrouping)
{
    const std::filesystem::path file =
        std::filesystem::temp_directory_path() / "explorer-shell-round-trip.json";
    run("group Sheets Topic");
    run("sort Sheets desc");
    run("toggle Sheets");
    run("toggle Sheets 1");
    run("toggle Tables");
    const std::string saved = run("dump");
    run("save " + file.string());

    run("group Sheets none");
    run("toggle Tables");
    ASSERT_NE(run("dump"), saved);
    EXPECT_EQ(run("load " + file.string()), "loaded: \"" + file.string() + "\"\n");
    std::filesystem::remove(file);
    EXPECT_EQ(run("dump"), saved);
    EXPECT_THAT(session.getUndoHistory().getUndoNames(), IsEmpty())
        << "a loaded project starts its own history";
}

TEST_F(ShellCommandInterpreterTest, ToggleFoldsGroupsAndSubgroupsByNumberOrName)
{
    EXPECT_EQ(run("toggle \"door STYLES\""), "unfolded: Door styles\n");
    EXPECT_EQ(run("toggle 4 0"), "unfolded: Door styles 0 \"\"\n");
    EXPECT_EQ(run("toggle 4"), "folded: Door styles\n");
    EXPECT_TRUE(std::next(session.getExplorer().getGroups().begin(), 4)->getSubgroups().begin()->isExpanded())
        << "folding the group keeps the fold state of its subgroups";
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
