// Imports the input as a CSV table file into a project, inside a transaction as the explorer's
// import command does. A file that does not import must be refused with the file's name, line and
// fault and leave the project as it was; an imported table must hold a rectangular copy of the
// records, which imports again to the same cells, and undo must take it away again.

#include "AecModel/Project.h"
#include "AecModel/TableImporter.h"
#include "AecModel/WideText.h"
#include "Common/Exception.h"
#include "Support/FuzzCheck.h"
#include "Support/ScratchDirectory.h"
#include "aec/Transaction.h"

#include <boost/algorithm/string/replace.hpp>
#include <cstddef>
#include <cstdint>
#include <fmt/format.h>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>

namespace
{

using namespace aec;
using namespace aec::model;

const fuzz::CScratchDirectory& scratch()
{
    static const fuzz::CScratchDirectory directory("csv-import");
    return directory;
}

std::wstring property(const CProject& project, const EntityId& table, std::string_view name)
{
    const std::optional<std::wstring> value = project.findEntity(table)->getProperty(std::string(name));
    FUZZ_CHECK(value.has_value());
    return *value;
}

// The cells written back as CSV, every field quoted, so that nothing in them needs to be guessed.
std::string asQuotedCsv(const nlohmann::json& cells)
{
    std::string text;
    for (const nlohmann::json& row : cells)
    {
        for (std::size_t column = 0; column < row.size(); ++column)
        {
            std::string field = row[column].get<std::string>();
            for (std::size_t quote = field.find('"'); quote != std::string::npos;
                 quote = field.find('"', quote + 2))
                field.insert(quote, 1, '"');
            text += fmt::format("{}\"{}\"", column == 0 ? "" : ",", field);
        }
        text += "\r\n";
    }
    return text;
}

std::optional<EntityId> importInTransaction(CProject& project, const std::filesystem::path& file)
{
    const std::string dumpBefore = project.canonicalDump();
    const auto transaction = project.getTransactionHost().openTransaction("Import table");
    try
    {
        const EntityId table = CTableImporter().importTable(project, file);
        transaction->commit();
        return table;
    }
    catch (const common::EException& error)
    {
        const std::string_view message = error.what();
        FUZZ_CHECK(message.starts_with(
            fmt::format("The table file \"{}\" cannot be imported: line ", file.string())));
        FUZZ_CHECK(message.ends_with('.'));
    }
    FUZZ_CHECK(project.canonicalDump() == dumpBefore);
    return std::nullopt;
}

void checkImport(std::string_view content)
{
    CProject project;
    const std::string dumpBefore = project.canonicalDump();
    const std::optional<EntityId> table = importInTransaction(project, scratch().write("Doors.csv", content));
    if (!table)
        return;

    const std::wstring cellsText = property(project, *table, CTableImporter::cellsProperty);
    const nlohmann::json cells = nlohmann::json::parse(toUtf8(cellsText));
    FUZZ_CHECK(cells.is_array());
    const std::size_t rows = cells.size();
    const std::size_t columns = rows == 0 ? 0 : cells.front().size();
    for (const nlohmann::json& row : cells)
        FUZZ_CHECK(row.is_array() && row.size() == columns && columns > 0);
    FUZZ_CHECK(property(project, *table, CTableImporter::rowsProperty) == std::to_wstring(rows));
    FUZZ_CHECK(property(project, *table, CTableImporter::columnsProperty) == std::to_wstring(columns));

    // The same cells, written out the strict way, are the same table; its name is made unique. A
    // line break inside a quoted field reads as LF, so a cell that holds a carriage return right
    // before one (a file with CR CR LF) has no CSV form: written back, its CR LF reads as LF.
    const std::optional<EntityId> copy =
        importInTransaction(project, scratch().write("Doors.csv", asQuotedCsv(cells)));
    FUZZ_CHECK(copy.has_value());
    nlohmann::json expected = cells;
    for (nlohmann::json& row : expected)
        for (nlohmann::json& cell : row)
            boost::algorithm::replace_all(cell.get_ref<std::string&>(), "\r\n", "\n");
    FUZZ_CHECK(nlohmann::json::parse(toUtf8(property(project, *copy, CTableImporter::cellsProperty))) ==
               expected);
    FUZZ_CHECK(project.findEntity(*copy)->getName() == L"Doors (2)");

    CUndoHistory& history = project.getUndoHistory();
    history.undo();
    history.undo();
    FUZZ_CHECK(!history.canUndo());
    FUZZ_CHECK(project.canonicalDump() == dumpBefore);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    return fuzz::runOneInput([&]
                             { checkImport(std::string_view(reinterpret_cast<const char*>(data), size)); });
}
