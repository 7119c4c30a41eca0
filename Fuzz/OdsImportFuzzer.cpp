// Imports a spreadsheet whose content (content.xml) is the input, as the explorer's import
// command does: the input reaches the sheet reader as a spreadsheet program
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
    static const fuzz::CScratchDirectory directory("ods-import");
    return directory;
}

void checkImport(std::string content)
{
    fuzz::CTableImportCheck::checkFile(
        scratch().write("Rooms.ods", aec::spreadsheet::CSpreadsheetWriter::odsAround(std::move(content))));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    return fuzz::runOneInput([&] { checkImport(std::string(reinterpret_cast<const char*>(data), size)); });
}
