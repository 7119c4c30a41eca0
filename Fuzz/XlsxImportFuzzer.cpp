// Imports a workbook whose first worksheet is the input, with a few shared strings, as the
// explorer's import command does: the input reaches the worksheet reader as a spreadsheet program
// would hand it over, inside a well-formed package. A sheet that does not import must be refused in
// a sentence naming the file and leave the project as it was; an imported table must be
// rectangular, and undo must take it away.

#include "SpreadsheetFiles/SpreadsheetWriter.h"
#include "Support/FuzzCheck.h"
#include "Support/ScratchDirectory.h"
#include "Support/TableImportCheck.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace
{

const fuzz::CScratchDirectory& scratch()
{
    static const fuzz::CScratchDirectory directory("xlsx-import");
    return directory;
}

constexpr std::string_view sharedStrings =
    R"(<sst xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main"><si><t>Room</t></si>)"
    R"(<si><r><t>Ar</t></r><r><t>ea</t></r></si><si><t xml:space="preserve"> two
lines </t><rPh><t>x</t></rPh></si></sst>)";

void checkImport(std::string worksheet)
{
    fuzz::CTableImportCheck::checkFile(scratch().write(
        "Rooms.xlsx",
        aec::spreadsheet::CSpreadsheetWriter::xlsxAround(std::move(worksheet), std::string(sharedStrings))));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    return fuzz::runOneInput([&] { checkImport(std::string(reinterpret_cast<const char*>(data), size)); });
}
