#include "Support/TableImportCheck.h"

#include "AecModel/WideText.h"
#include "Common/Exception.h"
#include "Support/FuzzCheck.h"
#include "aec/Transaction.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>

namespace fuzz
{

using namespace aec;
using namespace aec::model;

namespace
{

std::optional<std::wstring> property(const CProject& project, const EntityId& table, std::string_view name)
{
    return project.findEntity(table)->getProperty(std::string(name));
}

} // namespace

std::optional<EntityId> CTableImportCheck::importInTransaction(CProject& project,
                                                               const CTableImporter& importer,
                                                               const std::filesystem::path& file)
{
    const std::string dumpBefore = project.canonicalDump();
    const auto transaction = project.getTransactionHost().openTransaction("Import table from file");
    try
    {
        const EntityId table = importer.importTable(project, file);
        transaction->commit();
        return table;
    }
    catch (const common::EException& error)
    {
        const std::string_view message = error.what();
        FUZZ_CHECK(
            message.starts_with(fmt::format("The table file \"{}\" cannot be imported: ", file.string())));
        FUZZ_CHECK(message.ends_with('.'));
    }
    FUZZ_CHECK(project.canonicalDump() == dumpBefore);
    return std::nullopt;
}

CTableImportCheck::Rows CTableImportCheck::tableOf(const CProject& project, const EntityId& table)
{
    const std::optional<std::wstring> cellsText = property(project, table, CTableImporter::cellsProperty);
    FUZZ_CHECK(cellsText.has_value());
    const nlohmann::json cells = nlohmann::json::parse(toUtf8(*cellsText));
    FUZZ_CHECK(cells.is_array());
    const std::size_t columns =
        std::stoul(toUtf8(*property(project, table, CTableImporter::columnsProperty)));
    FUZZ_CHECK(property(project, table, CTableImporter::rowsProperty) == std::to_wstring(cells.size()));
    Rows rows;
    if (const std::optional<std::wstring> names =
            property(project, table, CTableImporter::columnNamesProperty))
        rows.push_back(nlohmann::json::parse(toUtf8(*names)).get<std::vector<std::string>>());
    for (const nlohmann::json& row : cells)
        rows.push_back(row.get<std::vector<std::string>>());
    for (const std::vector<std::string>& row : rows)
        FUZZ_CHECK(row.size() == columns && columns > 0);
    return rows;
}

void CTableImportCheck::checkFile(const std::filesystem::path& file)
{
    CProject project;
    const std::string dumpBefore = project.canonicalDump();
    if (const std::optional<EntityId> table = importInTransaction(project, CTableImporter(), file))
        (void)tableOf(project, *table);
    checkUndoneTo(project, dumpBefore);
}

void CTableImportCheck::checkUndoneTo(CProject& project, const std::string& dumpBefore)
{
    CUndoHistory& history = project.getUndoHistory();
    while (history.canUndo())
        history.undo();
    FUZZ_CHECK(project.canonicalDump() == dumpBefore);
}

} // namespace fuzz
