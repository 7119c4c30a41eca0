#include "AecModel/ProjectFile.h"

#include "AecModel/Project.h"
#include "AecModel/SampleProject.h"
#include "Common/Exception.h"
#include "TemporaryDirectory.h"
#include "aec/ProjectExplorerGroupInfo.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace aec::model
{
namespace
{

using nlohmann::json;
namespace fs = std::filesystem;

class ProjectFileTest : public ::testing::Test
{
protected:
    fs::path write(const std::string& name, const std::string& text) const
    {
        return temporary.write(name, text);
    }

    json savedSample() const
    {
        const fs::path path = directory / "sample.json";
        CProjectFile::save(*buildSampleProject(), path);
        return json::parse(std::ifstream(path));
    }

    // Loading must fail with a message that names the file and the trouble.
    void expectBroken(const fs::path& path, const std::string& trouble) const
    {
        try
        {
            (void)CProjectFile::load(path);
            ADD_FAILURE() << "a broken file loaded: " << trouble;
        }
        catch (const common::EException& error)
        {
            const std::string message = error.what();
            EXPECT_NE(message.find(path.string()), std::string::npos) << message;
            EXPECT_NE(message.find(trouble), std::string::npos) << message;
        }
    }

    test::CTemporaryDirectory temporary{"aec-model-"};
    const fs::path& directory = temporary.path();
};

TEST_F(ProjectFileTest, SavedProjectLoadsAsItWas)
{
    const auto project = buildSampleProject();
    ProjectExplorerGroupState sheets;
    sheets.expanded = true;
    ProjectExplorerState state{{projectExplorerGroups().front().id, sheets}};
    project->getPreferences().setProjectExplorerState(state);

    const fs::path path = directory / "project.json";
    CProjectFile::save(*project, path);
    const auto loaded = CProjectFile::load(path);

    EXPECT_EQ(loaded->canonicalDump(), project->canonicalDump());
    EXPECT_EQ(loaded->getPreferences().getProjectExplorerState(), state);
    EXPECT_FALSE(loaded->getUndoHistory().canUndo());
    EXPECT_EQ(std::distance(fs::directory_iterator(directory), fs::directory_iterator()), 1);
}

TEST_F(ProjectFileTest, BrokenFilesAreRefusedWithTheirTrouble)
{
    expectBroken(directory / "missing.json", "does not exist");
    expectBroken(write("text.json", "just some text"), "not valid JSON at line 1, column 1: a value");
    expectBroken(write("huge-number.json", "{\"format\": \"aec-model-project\", \"version\": 1e999}"),
                 "a number is too large");
    expectBroken(write("no-colon.json", "{\n  \"format\": \"aec-model-project\",\n  \"ver\u00e9sion\" 1}"),
                 "line 3, column 14: a colon (:) after the field name was expected");
    expectBroken(write("cut-short.json", "{\"format\": [1, 2"), "line 1, column 17: the file ends");
    expectBroken(write("array.json", "[1, 2, 3]"), "not a JSON object");

    json other = savedSample();
    other["format"] = "spreadsheet";
    expectBroken(write("other.json", other.dump()), "not a project file");

    json older = savedSample();
    older["version"] = 0;
    expectBroken(write("older.json", older.dump()), "version 0");

    json duplicate = savedSample();
    const json sheet = duplicate["collections"]["sheets"][0];
    duplicate["collections"]["images"].push_back(sheet);
    expectBroken(write("duplicate.json", duplicate.dump()),
                 "the entity " + sheet["id"].get<std::string>() + " appears twice");

    json badId = savedSample();
    badId["collections"]["tables"][2]["id"] = "12345";
    expectBroken(write("bad-id.json", badId.dump()), "entity 3 of the collection \"tables\"");

    json nilId = savedSample();
    nilId["collections"]["topics"][0]["id"] = "00000000-0000-0000-0000-000000000000";
    expectBroken(write("nil-id.json", nilId.dump()), "\"id\" is the nil UUID");

    json unnamedProperty = savedSample();
    unnamedProperty["collections"]["sheets"][0]["properties"][""] = "1:50";
    expectBroken(write("unnamed-property.json", unnamedProperty.dump()), "a property without a name");

    json lostTopic = savedSample();
    lostTopic["collections"]["topics"].erase(0);
    expectBroken(write("lost-topic.json", lostTopic.dump()), "which is not in the file");
}

// A parser's own words ("syntax error while parsing object", its exception ids) mean nothing to a
// user; the message says where and what was expected.
TEST_F(ProjectFileTest, SyntaxErrorsAreToldInTheProgramsOwnWords)
{
    const fs::path path = write("broken.json", "{\"format\": \"aec-model-project\",, }");
    try
    {
        (void)CProjectFile::load(path);
        FAIL() << "a broken file loaded";
    }
    catch (const common::EException& error)
    {
        const std::string message = error.what();
        EXPECT_NE(message.find("line 1, column 32: a field name in double quotes was expected"),
                  std::string::npos)
            << message;
        for (const char* internal : {"json.exception", "syntax error", "parse_error", "string literal"})
            EXPECT_EQ(message.find(internal), std::string::npos) << message;
    }
}

// A newer version may add fields anywhere; an older one keeps them through a load and a save, and
// says once that the file is newer.
TEST_F(ProjectFileTest, FieldsOfANewerVersionSurviveALoadAndASave)
{
    json document = savedSample();
    document["version"] = 3;
    document["author"] = {{"name", "R. Example"}};
    document["collections"]["furniture"] = json::array({{{"id", "x"}, {"legs", 4}}});
    document["collections"]["sheets"][0]["revision"] = "C";
    document["collections"]["topics"][1]["colour"] = {1, 2, 3};
    document["preferences"]["units"] = "mm";
    const fs::path path = write("newer.json", document.dump());

    const auto loaded = CProjectFile::load(path);
    ASSERT_EQ(loaded->getLoadNotes().size(), 1u);
    EXPECT_NE(loaded->getLoadNotes().front().find("newer version"), std::string::npos);

    CProjectFile::save(*loaded, path);
    const json saved = json::parse(std::ifstream(path));
    EXPECT_EQ(saved["author"], document["author"]);
    EXPECT_EQ(saved["collections"]["furniture"], document["collections"]["furniture"]);
    EXPECT_EQ(saved["collections"]["sheets"][0], document["collections"]["sheets"][0]);
    EXPECT_EQ(saved["collections"]["topics"][1], document["collections"]["topics"][1]);
    EXPECT_EQ(saved["preferences"]["units"], "mm");
    EXPECT_TRUE(CProjectFile::load(path)->getLoadNotes().empty()) << "the saved file is of this version";
}

// A file written by hand may break the naming rule; its entities are kept, under names that follow
// the rule, and the user is told which names changed.
TEST_F(ProjectFileTest, NamesThatBreakTheRuleAreMendedOnLoad)
{
    json document = savedSample();
    json& sheets = document["collections"]["sheets"];
    sheets[0]["name"] = "Sheet S-2";
    sheets[1]["name"] = "sheet s-02";
    sheets[2]["name"] = " \t ";
    sheets[3]["name"] = "  Plan\u0001 ";
    const auto loaded = CProjectFile::load(write("names.json", document.dump()));

    EXPECT_EQ(loaded->entityCount(), buildSampleProject()->entityCount());
    std::vector<std::wstring> names;
    for (const EntityId& id : loaded->getEntities(EntityCollection::Sheets))
        names.push_back(loaded->findEntity(id)->getName());
    EXPECT_EQ(std::vector<std::wstring>(names.begin(), names.begin() + 4),
              (std::vector<std::wstring>{L"Sheet S-2", L"sheet s-02 (2)", L"Sheet", L"Plan"}));
    // The sample's own "Sheet S-2" comes later and is mended too, past the name taken above.
    EXPECT_EQ(names[6], L"Sheet S-2 (3)");
    ASSERT_EQ(loaded->getLoadNotes().size(), 1u);
    EXPECT_NE(loaded->getLoadNotes().front().find("4 names did not follow the naming rule"),
              std::string::npos)
        << loaded->getLoadNotes().front();
}

TEST_F(ProjectFileTest, BrokenPreferencesDoNotStopTheLoad)
{
    json document = savedSample();
    document["preferences"] = {{"projectExplorer", "folded"}};
    const auto loaded = CProjectFile::load(write("preferences.json", document.dump()));
    EXPECT_EQ(loaded->entityCount(), buildSampleProject()->entityCount());
    EXPECT_EQ(loaded->getPreferences().getProjectExplorerState(), std::nullopt);
    EXPECT_EQ(loaded->getPreferences().getWarnings().size(), 1u);
}

TEST_F(ProjectFileTest, SavingWhereNoFileCanBeWrittenThrows)
{
    const fs::path path = directory / "no such folder" / "project.json";
    try
    {
        CProjectFile::save(CProject(), path);
        FAIL() << "saved into a folder that does not exist";
    }
    catch (const common::EException& error)
    {
        EXPECT_NE(std::string(error.what()).find(path.string()), std::string::npos) << error.what();
    }
}

} // namespace
} // namespace aec::model
