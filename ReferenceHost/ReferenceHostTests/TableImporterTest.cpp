#include "AecModel/TableImporter.h"

#include "AecModel/Project.h"
#include "AecModel/ProjectFile.h"
#include "AecModel/WideText.h"
#include "Common/Exception.h"
#ifndef _WIN32
#include "SpreadsheetFiles/SpreadsheetWriter.h"
#include "SpreadsheetFiles/ZipWriter.h"
#endif
#include "TemporaryDirectory.h"
#include "aec/Transaction.h"

#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace aec::model
{
namespace
{

namespace fs = std::filesystem;
using Row = std::vector<std::string>;
using Cells = std::vector<Row>;
#ifndef _WIN32
using spreadsheet::CSpreadsheetWriter;
using spreadsheet::CZipWriter;
using spreadsheet::Sheet;
#endif

// A file and what importing it must give: the cells, the header row's texts (none when the file
// has no header row) and the import's report; or, when `refusal` is set, the refusal's reason.
struct ImportCase
{
    std::string what;
    std::string fileName;
    std::string bytes;
    Cells cells;
    Row columnNames;
    std::string report;
    std::string refusal;
};

// UTF-16, with its byte order mark unless told otherwise; the texts are of the Basic Multilingual
// Plane, one code unit per character.
std::string utf16(std::u16string_view text, bool bigEndian, bool marked = true)
{
    std::string bytes;
    for (const char16_t unit : std::u16string(marked ? u"\uFEFF" : u"") + std::u16string(text))
    {
        const char high = static_cast<char>(unit >> 8);
        const char low = static_cast<char>(unit & 0xFF);
        bytes += bigEndian ? std::string{high, low} : std::string{low, high};
    }
    return bytes;
}

const std::string compoundDocument = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1" + std::string(504, '\0');

class TableImporterTest : public ::testing::Test
{
protected:
    TableImporterTest() { project.addEntity(EntityCollection::Tables, L"Existing"); }

    fs::path write(const std::string& name, const std::string& bytes) const
    {
        return temporary.write(name, bytes);
    }

    EntityId import(const fs::path& path)
    {
        const auto transaction = project.getTransactionHost().openTransaction("Import table from file");
        const EntityId id = importer.importTable(project, path);
        transaction->commit();
        return id;
    }

    std::optional<std::wstring> property(const EntityId& table, std::string_view name) const
    {
        return project.findEntity(table)->getProperty(std::string(name));
    }

    Cells cellsOf(const EntityId& table) const
    {
        const Cells cells = nlohmann::json::parse(toUtf8(*property(table, CTableImporter::cellsProperty)));
        EXPECT_EQ(property(table, CTableImporter::rowsProperty), std::to_wstring(cells.size()));
        if (!cells.empty())
        {
            EXPECT_EQ(property(table, CTableImporter::columnsProperty),
                      std::to_wstring(cells.front().size()));
        }
        return cells;
    }

    Row columnNamesOf(const EntityId& table) const
    {
        const std::optional<std::wstring> names = property(table, CTableImporter::columnNamesProperty);
        return names ? nlohmann::json::parse(toUtf8(*names)).get<Row>() : Row{};
    }

    // The import must fail with a message naming the file and the fault, and leave the project as
    // it was.
    void expectRefused(const fs::path& path, const std::string& fault)
    {
        const std::string before = project.canonicalDump();
        const bool couldUndo = project.getUndoHistory().canUndo();
        try
        {
            (void)import(path);
            ADD_FAILURE() << "imported although " << fault;
        }
        catch (const common::EException& error)
        {
            const std::string message = error.what();
            EXPECT_NE(message.find("The table file \"" + path.string() + "\" cannot be imported: "),
                      std::string::npos)
                << message;
            EXPECT_NE(message.find(fault), std::string::npos) << message;
        }
        EXPECT_EQ(project.canonicalDump(), before);
        EXPECT_EQ(project.getUndoHistory().canUndo(), couldUndo);
    }

    void check(const std::vector<ImportCase>& cases)
    {
        for (const ImportCase& file : cases)
        {
            SCOPED_TRACE(file.what);
            const fs::path path = write(file.fileName, file.bytes);
            if (!file.refusal.empty())
            {
                expectRefused(path, file.refusal);
                continue;
            }
            const EntityId table = import(path);
            EXPECT_EQ(cellsOf(table), file.cells);
            EXPECT_EQ(columnNamesOf(table), file.columnNames);
            ASSERT_TRUE(importer.getLastReport());
            EXPECT_EQ(importer.getLastReport()->describe(), file.report);
        }
    }

    test::CTemporaryDirectory temporary{"aec-table-import-"};
    const fs::path& directory = temporary.path();
    CProject project;
    CTableImporter importer;
};

TEST_F(TableImporterTest, DelimitedTextIsReadAsSpreadsheetProgramsReadIt)
{
    check({
        {"German settings: Windows-1252, semicolons, decimal commas",
         "Räume.csv",
         "Raum;Fl\xE4"
         "che;Ebene\r\nB\xFCro 1;24,5;1\r\nFlur;8;1\r\n",
         {{"Büro 1", "24,5", "1"}, {"Flur", "8", "1"}},
         {"Raum", "Fläche", "Ebene"},
         "CSV, windows-1252, semicolon-separated, header row, 2 rows, 3 columns",
         ""},
        {"UTF-16 LE with tabs", "rooms.tsv", utf16(u"Room\tArea\nK\u00FCche\t12.5\n", false),
         Cells{{"Küche", "12.5"}}, Row{"Room", "Area"},
         "CSV, UTF-16LE, tab-separated, header row, 1 row, 2 columns", ""},
        {"UTF-16 BE with vertical bars", "rooms.txt", utf16(u"Room|Area\r\nHall|7\r\n", true),
         Cells{{"Hall", "7"}}, Row{"Room", "Area"},
         "CSV, UTF-16BE, vertical bar-separated, header row, 1 row, 2 columns", ""},
        {"UTF-16 LE without a byte order mark, a few characters with a zero low byte", "unmarked.csv",
         utf16(u"Raum;Fl\u00E4che\r\n\u0100\u4E00;12\r\nFlur;7\r\n", false, false),
         Cells{{"Ā一", "12"}, {"Flur", "7"}}, Row{"Raum", "Fläche"},
         "CSV, UTF-16LE, semicolon-separated, header row, 2 rows, 2 columns", ""},
        {"UTF-16 BE without a byte order mark", "unmarked.tsv", utf16(u"Room\tArea\nHall\t7\n", true, false),
         Cells{{"Hall", "7"}}, Row{"Room", "Area"},
         "CSV, UTF-16BE, tab-separated, header row, 1 row, 2 columns", ""},
        {"quoting: delimiters, doubled quotes, CR LF and LF kept in quotes, a quote inside a field",
         "Door schedule.csv",
         "\xEF\xBB\xBF"
         "Mark,Note,Place\r\n"
         "\"D1, left\",\"say \"\"hi\"\"\",37°36'37.8\"N\r\n"
         "\"two\r\nlines\",\"a\nb\",\"quoted\"then text\r\n",
         {{"Mark", "Note", "Place"},
          {"D1, left", "say \"hi\"", "37°36'37.8\"N"},
          {"two\r\nlines", "a\nb", "quotedthen text"}},
         {},
         "CSV, UTF-8, comma-separated, no header row, 3 rows, 3 columns",
         ""},
        {"ragged rows are padded and counted",
         "ragged.csv",
         "No,Name,Area\n1,K\xC3\xBC"
         "che\n\n2, Bad ,4.5,extra\r3,x,1",
         {{"1", "Küche", "", ""}, {"", "", "", ""}, {"2", " Bad ", "4.5", "extra"}, {"3", "x", "1", ""}},
         {"No", "Name", "Area", ""},
         "CSV, UTF-8, comma-separated, header row, 4 rows, 4 columns, 3 short rows padded",
         ""},
        {"numbers only: no header row",
         "numbers.csv",
         "1;2,5\n2;3,5\n",
         {{"1", "2,5"}, {"2", "3,5"}},
         {},
         "CSV, UTF-8, semicolon-separated, no header row, 2 rows, 2 columns",
         ""},
        {"only a header row",
         "header.csv",
         "Room,Area\r\n",
         {},
         {"Room", "Area"},
         "CSV, UTF-8, comma-separated, header row, 0 rows, 2 columns",
         ""},
        {"an empty file",
         "empty.csv",
         "",
         {},
         {},
         "CSV, UTF-8, comma-separated, no header row, 0 rows, 0 columns",
         ""},
        {"a quote never closed",
         "open.csv",
         "a,b\n\"open,\n\n",
         {},
         {},
         "",
         "line 2: a quoted field starts here and has no closing quote"},
        {"a binary file",
         "picture.csv",
         std::string("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16),
         {},
         {},
         "",
         "it holds binary data, not a table"},
        {"an encrypted spreadsheet", "secret.csv", compoundDocument, {}, {}, "", "an encrypted spreadsheet"},
    });
    expectRefused(directory / "missing.csv", "the file does not exist");
    expectRefused(directory, "it is not a regular file");
}

#ifdef _WIN32
// The Windows build has no spreadsheet readers (nor the writer these tests make their files with):
// the .xlsx and .ods cases are left to the Linux build, and a zip container is refused plainly.
TEST_F(TableImporterTest, SpreadsheetsAreRefusedByABuildWithoutTheirReaders)
{
    const std::string refusal = "this build cannot read spreadsheets";
    expectRefused(write("rooms.xlsx", std::string("PK\x03\x04", 4) + "xl/workbook.xml"), refusal);
    expectRefused(write("rooms.ods", std::string("PK\x03\x04", 4) + "content.xml"), refusal);
}
#else
TEST_F(TableImporterTest, XlsxWorkbooksGiveTheirFirstWorksheetAsShown)
{
    const std::vector<Sheet> workbook{{"Rooms",
                                       {{"Room", "Area", "Level"},
                                        {"Kitchen", "0.30000000000000004", "1"},
                                        {},
                                        {"", "1e20", "Hall & <stairs>"},
                                        {"Bath\nroom", "12"}}},
                                      {"Other", {{"not", "this"}}}};
    const Cells cells{
        {"Kitchen", "0.3", "1"}, {"", "", ""}, {"", "1E+20", "Hall & <stairs>"}, {"Bath\nroom", "12", ""}};
    const std::string report =
        "XLSX, sheet \"Rooms\" (first of 2), header row, 4 rows, 3 columns, 2 short rows padded";
    CZipWriter encrypted;
    encrypted.add("xl/workbook.xml", R"(<workbook><sheets><sheet name="S" id="x"/></sheets></workbook>)");
    encrypted.add("xl/worksheets/sheet1.xml", "<worksheet/>", "password");
    const std::string whole = CSpreadsheetWriter::xlsx(workbook);
    // Cell styles 1 to 4 are a date, a format of the workbook's own, a percentage and thousands;
    // the cell style formats before them are not cell styles.
    const std::string styles =
        R"(<styleSheet><numFmts><numFmt numFmtId="164" formatCode="0.0&quot; m²&quot;"/></numFmts>)"
        R"(<cellStyleXfs><xf numFmtId="10"/></cellStyleXfs><cellXfs><xf numFmtId="0"/><xf numFmtId="14"/>)"
        R"(<xf numFmtId="164"/><xf numFmtId="10"/><xf numFmtId="3"/></cellXfs></styleSheet>)";
    const std::string formattedRow =
        R"(<worksheet><sheetData><row><c s="1"><v>45000</v></c><c s="2"><v>12.345</v></c>)"
        R"(<c s="3"><v>0.125</v></c><c s="4"><v>1234567</v></c><c s="9"><v>0.30000000000000004</v></c>)"
        R"(<c s="1" t="s"><v>0</v></c></row></sheetData></worksheet>)";
    const std::string sharedStrings = "<sst><si><t>45000</t></si></sst>";
    check({
        {"numbers as their cell styles show them",
         "styled.xlsx",
         CSpreadsheetWriter::xlsxAround(formattedRow, sharedStrings, styles),
         Cells{{"2023-03-15", "12.3 m²", "12.50%", "1,234,567", "0.3", "45000"}},
         {},
         "XLSX, sheet \"Sheet1\", no header row, 1 row, 6 columns",
         ""},
        {"dates counted from 1904",
         "1904.xlsx",
         CSpreadsheetWriter::xlsxAround(formattedRow, sharedStrings, styles, true),
         Cells{{"2027-03-16", "12.3 m²", "12.50%", "1,234,567", "0.3", "45000"}},
         {},
         "XLSX, sheet \"Sheet1\", no header row, 1 row, 6 columns",
         ""},
        {"shared strings", "rooms.xlsx", whole, cells, {"Room", "Area", "Level"}, report, ""},
        {"inline strings",
         "inline.xlsx",
         CSpreadsheetWriter::xlsx(workbook, CSpreadsheetWriter::Strings::Inline),
         cells,
         {"Room", "Area", "Level"},
         report,
         ""},
        {"an empty worksheet",
         "empty.xlsx",
         CSpreadsheetWriter::xlsx({{"Blank", {}}}),
         {},
         {},
         "XLSX, sheet \"Blank\", no header row, 0 rows, 0 columns",
         ""},
        {"formatted empty cells and rows past the data", "formatted.xlsx",
         CSpreadsheetWriter::xlsxAround(
             R"(<worksheet><sheetData><row r="1"><c t="inlineStr"><is><t>Mark</t></is></c>)"
             R"(<c r="C1" s="1"/></row><row r="2"><c r="A2"><v>7</v></c><c r="B2" s="1"/>)"
             R"(</row><row r="3" s="1"/><row r="9"><c r="A9" s="2"/></row></sheetData></worksheet>)",
             "<sst/>"),
         Cells{{"7"}}, Row{"Mark"}, "XLSX, sheet \"Sheet1\", header row, 1 row, 1 column", ""},
        {"gaps between cells, a formula and a phonetic guide", "gaps.xlsx",
         CSpreadsheetWriter::xlsxAround(
             R"(<worksheet><sheetData><row r="1"><c r="A1" t="inlineStr"><is><t>Mark</t><rPh><t>ma-ku</t>)"
             R"(</rPh></is></c><c r="C1" t="inlineStr"><is><t>Sum</t></is></c></row><row r="2"><c r="A2">)"
             R"(<v>1</v></c><c r="C2"><f>A2+1</f><v>2</v></c><c r="D2"><v>3</v></c><c r="F2"><v>5</v></c>)"
             R"(</row></sheetData></worksheet>)",
             "<sst/>"),
         Cells{{"1", "", "2", "3", "", "5"}}, Row{"Mark", "", "Sum", "", "", ""},
         "XLSX, sheet \"Sheet1\", header row, 1 row, 6 columns", ""},
        {"cut short",
         "cut.xlsx",
         whole.substr(0, whole.size() / 2),
         {},
         {},
         "",
         "the spreadsheet is damaged"},
        {"XML not well formed",
         "bad.xlsx",
         CSpreadsheetWriter::xlsxAround("<worksheet><sheetData><row>", "<sst/>"),
         {},
         {},
         "",
         "the spreadsheet is damaged (no element found at line 1)"},
        {"a shared string that is not there",
         "strings.xlsx",
         CSpreadsheetWriter::xlsxAround(
             R"(<worksheet><sheetData><row><c t="s"><v>7</v></c></row></sheetData></worksheet>)", "<sst/>"),
         {},
         {},
         "",
         "refers to the shared string \"7\""},
        {"an encrypted entry", "locked.xlsx", encrypted.bytes(), {}, {}, "", "the spreadsheet is encrypted"},
        {"encrypted with a password",
         "secret.xlsx",
         compoundDocument,
         {},
         {},
         "",
         "an encrypted spreadsheet"},
    });
}

TEST_F(TableImporterTest, OdsSpreadsheetsGiveTheirFirstSheetAsShown)
{
    const std::vector<Sheet> spreadsheet{
        {"Räume", {{"Raum", "Fläche", "Fläche"}, {"Büro", "24,5", "24,5"}, {}, {"", "", "two\nlines"}}},
        {"Other", {{"not", "this"}}}};
    CZipWriter encrypted;
    encrypted.add("mimetype", "application/vnd.oasis.opendocument.spreadsheet");
    encrypted.add("content.xml", "\x8F\x13 encrypted bytes");
    encrypted.add("META-INF/manifest.xml",
                  R"(<manifest:manifest><manifest:file-entry manifest:full-path="content.xml">)"
                  R"(<manifest:encryption-data/></manifest:file-entry></manifest:manifest>)");
    CZipWriter archive;
    archive.add("notes.txt", "not a spreadsheet");
    check({
        {"several sheets, repeated and trailing empty cells",
         "Räume.ods",
         CSpreadsheetWriter::ods(spreadsheet),
         {{"Büro", "24,5", "24,5"}, {"", "", ""}, {"", "", "two\nlines"}},
         {"Raum", "Fläche", "Fläche"},
         "ODS, sheet \"Räume\" (first of 2), header row, 3 rows, 3 columns, 1 short row padded",
         ""},
        {"XML not well formed",
         "bad.ods",
         CSpreadsheetWriter::odsAround("<office:document-content>"),
         {},
         {},
         "",
         "the spreadsheet is damaged"},
        {"no sheet",
         "nosheet.ods",
         CSpreadsheetWriter::odsAround("<document-content/>"),
         {},
         {},
         "",
         "the spreadsheet has no sheet"},
        {"encrypted", "locked.ods", encrypted.bytes(), {}, {}, "", "the spreadsheet is encrypted"},
        {"a zip archive of something else",
         "notes.ods",
         archive.bytes(),
         {},
         {},
         "",
         "it is a zip archive, not a spreadsheet"},
    });
}

#endif

TEST_F(TableImporterTest, ChoicesOverDetectionAndCancellingLeavesTheProjectAsItWas)
{
    const fs::path file = write("plan.csv", "Room;Area\nHall;7,5\n");
    importer.setChoices({.encoding = std::nullopt, .delimiter = ',', .headerRow = false});
    EXPECT_EQ(cellsOf(import(file)), (Cells{{"Room;Area", ""}, {"Hall;7", "5"}}));

    // The choices hold for one import; the next one detects again.
    EXPECT_EQ(cellsOf(import(file)), (Cells{{"Hall", "7,5"}}));

    importer.setProgress([](double) { throw common::EException("the import was cancelled"); });
    expectRefused(file, "the import was cancelled");
}

// The progress hears first that the read begins, with the file open: what becomes of the file from
// then on must not pass unnoticed.
TEST_F(TableImporterTest, AFileThatChangesWhileItIsReadIsRefused)
{
    struct Change
    {
        std::string what;
        std::function<void(const fs::path&)> change;
        std::string fault;
    };
    const std::vector<Change> changes{
        {"cut short", [](const fs::path& file) { fs::resize_file(file, fs::file_size(file) / 2); },
         "the file cannot be read to its end; it may have been moved or changed"},
        {"emptied", [](const fs::path& file) { std::ofstream(file, std::ios::binary | std::ios::trunc); },
         "the file cannot be read to its end"},
        {"grown",
         [](const fs::path& file) { std::ofstream(file, std::ios::binary | std::ios::app) << "Bath,4\n"; },
         "the file grew while it was read"},
    };
    for (const Change& change : changes)
    {
        SCOPED_TRACE(change.what);
        const fs::path file = write("plan.csv", "Room,Area\nHall,7\nKitchen,12\n");
        int calls = 0;
        importer.setProgress(
            [&](double)
            {
                if (++calls == 1)
                    change.change(file);
            });
        expectRefused(file, change.fault);
        EXPECT_GE(calls, 2); // the start, then the end
    }
}

TEST_F(TableImporterTest, TablesAreNamedUniquelyAndKeepTheirContentThroughSaveAndUndo)
{
    const fs::path file = write("Existing.csv", "Mark,Width\nD1,900\n");
    const EntityId first = import(file);
    const EntityId second = import(file);
    EXPECT_EQ(project.findEntity(first)->getName(), L"Existing (2)");
    EXPECT_EQ(project.findEntity(second)->getName(), L"Existing (3)");

    // The imported cells save as the JSON text that a loaded file keeps them as: saving the loaded
    // project again writes the same bytes.
    const fs::path saved = directory / "project.json";
    CProjectFile::save(project, saved);
    const std::unique_ptr<CProject> loaded = CProjectFile::load(saved);
    EXPECT_EQ(loaded->canonicalDump(), project.canonicalDump());
    EXPECT_EQ(loaded->findEntity(first)->getProperty(std::string(CTableImporter::cellsProperty)),
              L"[[\"D1\",\"900\"]]");
    const fs::path savedAgain = directory / "again.json";
    CProjectFile::save(*loaded, savedAgain);
    EXPECT_EQ(temporary.read(savedAgain), temporary.read(saved));

    project.getUndoHistory().undo();
    EXPECT_EQ(project.findEntity(second), nullptr);
    EXPECT_EQ(cellsOf(first), (Cells{{"D1", "900"}}));
    EXPECT_EQ(columnNamesOf(first), (Row{"Mark", "Width"}));
    project.getUndoHistory().redo();
    EXPECT_EQ(cellsOf(second), (Cells{{"D1", "900"}}));
    EXPECT_EQ(project.canonicalDump(), loaded->canonicalDump());
}

} // namespace
} // namespace aec::model
