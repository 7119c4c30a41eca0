#include "TemporaryDirectory.h"

#include "AecModel/ProjectFile.h"
#include "AecModel/Project.h"
#include "AecModel/SampleProject.h"

#include "aec/ProjectExplorerGroupInfo.h"

#include "Common/Exception.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <fstream>
#include <string>

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
    EXPECT_FALSE(fs::exists(directory / "project.json.saving"));
}

TEST_F(ProjectFileTest, BrokenFilesAreRefusedWithTheirTrouble)
{
    expectBroken(directory / "missing.json", "does not exist");
    expectBroken(write("text.json", "just some text"), "not valid JSON");
    expectBroken(write("huge-number.json", "{\"format\": \"aec-model-project\", \"version\": 1e999}"),
                 "not valid JSON");
    expectBroken(write("array.json", "[1, 2, 3]"), "not a JSON object");

    json other = savedSample();
    other["format"] = "spreadsheet";
    expectBroken(write("other.json", other.dump()), "not a project file");

    json newer = savedSample();
    newer["version"] = 2;
    expectBroken(write("newer.json", newer.dump()), "version 2");

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

    json unknownCollection = savedSample();
    unknownCollection["collections"]["furniture"] = json::array();
    expectBroken(write("furniture.json", unknownCollection.dump()), "\"furniture\"");
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
