#include "AecModel/Project.h"
#include "AecModel/ProjectFile.h"
#include "AecModel/TableImporter.h"
#include "AecModel/WideText.h"

#include "aec/Transaction.h"

#include "Common/Exception.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace aec::model
{
namespace
{

namespace fs = std::filesystem;
using Cells = std::vector<std::vector<std::string>>;

class TableImporterTest : public ::testing::Test
{
protected:
    TableImporterTest()
    {
        const auto* const test = ::testing::UnitTest::GetInstance()->current_test_info();
        directory = fs::temp_directory_path() / (std::string("aec-table-import-") + test->name());
        fs::remove_all(directory);
        fs::create_directories(directory);
        project.addEntity(EntityCollection::Tables, L"Existing");
    }
    ~TableImporterTest() override { fs::remove_all(directory); }

    fs::path write(const std::string& name, const std::string& bytes) const
    {
        const fs::path path = directory / name;
        std::ofstream(path, std::ios::binary) << bytes;
        return path;
    }

    EntityId import(const fs::path& path)
    {
        const auto transaction = project.getTransactionHost().openTransaction("Import table from file");
        const EntityId id = importer.importTable(project, path);
        transaction->commit();
        return id;
    }

    Cells cellsOf(const EntityId& table) const
    {
        const CEntity& entity = *project.findEntity(table);
        const Cells cells =
            nlohmann::json::parse(toUtf8(*entity.getProperty(std::string(CTableImporter::cellsProperty))));
        EXPECT_EQ(entity.getProperty(std::string(CTableImporter::rowsProperty)), std::to_wstring(cells.size()));
        EXPECT_EQ(entity.getProperty(std::string(CTableImporter::columnsProperty)),
                  std::to_wstring(cells.empty() ? 0 : cells.front().size()));
        return cells;
    }

    // The import must fail with a message naming the file, the line and the fault, and leave the
    // project as it was.
    void expectRefused(const fs::path& path, const std::string& lineAndFault)
    {
        const std::string before = project.canonicalDump();
        try
        {
            (void)import(path);
            ADD_FAILURE() << "imported although " << lineAndFault;
        }
        catch (const common::EException& error)
        {
            const std::string message = error.what();
            EXPECT_NE(message.find("The table file \"" + path.string() + "\" cannot be imported: "), std::string::npos)
                << message;
            EXPECT_NE(message.find(lineAndFault), std::string::npos) << message;
        }
        EXPECT_EQ(project.canonicalDump(), before);
        EXPECT_FALSE(project.getUndoHistory().canUndo());
    }

    fs::path directory;
    CProject project;
    CTableImporter importer;
};

TEST_F(TableImporterTest, QuotedFieldsKeepCommasQuotesAndLineBreaks)
{
    const EntityId table = import(write("Door schedule.csv", "\xEF\xBB\xBF"
                                                             "Mark,Note\r\n"
                                                             "\"D1, left\",\"say \"\"hi\"\"\"\r\n"
                                                             "\"two\r\nlines\",\"\"\r\n"
                                                             "D3,\"a\nb\"\r\n"));
    EXPECT_EQ(project.findEntity(table)->getName(), L"Door schedule");
    EXPECT_EQ(cellsOf(table), (Cells{{"Mark", "Note"}, {"D1, left", "say \"hi\""}, {"two\nlines", ""}, {"D3", "a\nb"}}));
}

TEST_F(TableImporterTest, RaggedRowsArePaddedAndTextIsKeptAsItIs)
{
    const EntityId table = import(write("rooms.csv", "No,Name,Area\n"
                                                     "1,Küche\n"
                                                     "\n"
                                                     "2, Bad ,4.5,extra\n"
                                                     "3,\xF0\x9F\x8F\xA0,"));
    EXPECT_EQ(cellsOf(table), (Cells{{"No", "Name", "Area", ""},
                                     {"1", "K\xC3\xBC"
                                           "che",
                                      "", ""},
                                     {"", "", "", ""},
                                     {"2", " Bad ", "4.5", "extra"},
                                     {"3", "\xF0\x9F\x8F\xA0", "", ""}}));

    const EntityId empty = import(write("empty.csv", ""));
    EXPECT_EQ(cellsOf(empty), Cells{});
}

TEST_F(TableImporterTest, TablesAreNamedUniquelyAndKeepTheirContentThroughSaveAndUndo)
{
    const fs::path file = write("Existing.csv", "a,b\n");
    const EntityId first = import(file);
    const EntityId second = import(file);
    EXPECT_EQ(project.findEntity(first)->getName(), L"Existing (2)");
    EXPECT_EQ(project.findEntity(second)->getName(), L"Existing (3)");

    const fs::path saved = directory / "project.json";
    CProjectFile::save(project, saved);
    EXPECT_EQ(CProjectFile::load(saved)->canonicalDump(), project.canonicalDump());

    project.getUndoHistory().undo();
    EXPECT_EQ(project.findEntity(second), nullptr);
    EXPECT_EQ(cellsOf(first), (Cells{{"a", "b"}}));
}

TEST_F(TableImporterTest, FilesThatDoNotReadAreRefusedWithLineAndFault)
{
    expectRefused(directory / "missing.csv", "the file does not exist");
    expectRefused(directory, "it is not a regular file");
    expectRefused(write("latin1.csv", "Name\nK\xFC"
                                      "che\n"),
                  "line 2: the text is not valid UTF-8");
    expectRefused(write("cut.csv", "a,b\n\xE2\x82"), "line 2: the text is not valid UTF-8");
    expectRefused(write("open.csv", "a,b\n\"open,\n\n"), "line 2: a quoted field starts here and has no closing quote");
    expectRefused(write("inner.csv", "a,b\r\nc,d\r\n5\" pipe,e\r\n"), "line 3: a quote appears inside an unquoted field");
    expectRefused(write("after.csv", "\"a\nb\"c,d\n"), "line 2: a quoted field goes on after its closing quote");
}

} // namespace
} // namespace aec::model
