#pragma once

#include <string>
#include <vector>

namespace aec::spreadsheet
{

// One sheet: its name and its rows of cell texts. A text that reads as a number is written as a
// number, an empty text as no cell at all, as spreadsheet programs write them.
struct Sheet
{
    std::string name;
    std::vector<std::vector<std::string>> rows;
};

// Writes workbooks in the two open spreadsheet formats, with the parts that spreadsheet programs
// write and the importer reads, and no more.
class CSpreadsheetWriter
{
public:
    enum class Strings
    {
        Shared, // in xl/sharedStrings.xml, as most programs write them
        Inline, // in the cells, as programs that stream large sheets write them
    };

    static std::string xlsx(const std::vector<Sheet>& sheets, Strings strings = Strings::Shared);
    // Each row ends in a run of empty cells and the sheet in a run of empty rows, as every sheet does
    // that a spreadsheet program saved.
    static std::string ods(const std::vector<Sheet>& sheets);

    // A workbook whose first worksheet, shared strings and styles (none when empty) are the given
    // XML, counting dates from 1904 when told, for fuzzing and for cells of given formats.
    static std::string xlsxAround(std::string worksheetXml, std::string sharedStringsXml,
                                  std::string stylesXml = {}, bool datesFrom1904 = false);
    // A spreadsheet whose content is the given XML, for fuzzing.
    static std::string odsAround(std::string contentXml);
};

} // namespace aec::spreadsheet
