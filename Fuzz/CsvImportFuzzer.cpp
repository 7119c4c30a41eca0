// Imports the input as a delimited text file into a project, inside a transaction as the explorer's
// import command does. Whatever the encoding and delimiter detection make of it, a file that does
// not import must be refused in a sentence naming it and leave the project as it was; an imported
// table must be rectangular and, written back as strict comma-separated UTF-8, import again to the
// same rows; undo must take both imports away.

#include "AecModel/Project.h"
#include "AecModel/TableImporter.h"
#include "Support/FuzzCheck.h"
#include "Support/ScratchDirectory.h"
#include "Support/TableImportCheck.h"

#include <cstddef>
#include <cstdint>
#include <fmt/format.h>
#include <optional>
#include <string>
#include <string_view>

namespace
{

using namespace aec;
using namespace aec::model;
using fuzz::CTableImportCheck;

const fuzz::CScratchDirectory& scratch()
{
    static const fuzz::CScratchDirectory directory("csv-import");
    return directory;
}

// The rows written back as CSV, every field quoted, so that nothing in them needs to be guessed.
std::string asQuotedCsv(const CTableImportCheck::Rows& rows)
{
    std::string text;
    for (const std::vector<std::string>& row : rows)
    {
        for (std::size_t column = 0; column < row.size(); ++column)
        {
            std::string field = row[column];
            for (std::size_t quote = field.find('"'); quote != std::string::npos;
                 quote = field.find('"', quote + 2))
                field.insert(quote, 1, '"');
            text += fmt::format("{}\"{}\"", column == 0 ? "" : ",", field);
        }
        text += "\r\n";
    }
    return text;
}

void checkImport(std::string_view content)
{
    CProject project;
    const std::string dumpBefore = project.canonicalDump();
    CTableImporter importer;
    const std::optional<EntityId> table =
        CTableImportCheck::importInTransaction(project, importer, scratch().write("Doors.csv", content));
    if (!table)
        return;
    const CTableImportCheck::Rows rows = CTableImportCheck::tableOf(project, *table);

    // Line breaks inside quoted fields are kept as written, so the strict form reads back exactly.
    importer.setChoices({.encoding = "UTF-8", .delimiter = ',', .headerRow = false});
    const std::optional<EntityId> copy = CTableImportCheck::importInTransaction(
        project, importer, scratch().write("Doors.csv", asQuotedCsv(rows)));
    FUZZ_CHECK(copy.has_value());
    FUZZ_CHECK(rows.empty() || CTableImportCheck::tableOf(project, *copy) == rows);
    FUZZ_CHECK(project.findEntity(*copy)->getName() == L"Doors (2)");
    CTableImportCheck::checkUndoneTo(project, dumpBefore);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    return fuzz::runOneInput([&]
                             { checkImport(std::string_view(reinterpret_cast<const char*>(data), size)); });
}
