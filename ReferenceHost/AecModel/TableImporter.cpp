#include "AecModel/TableImporter.h"

#include "AecModel/EntityNameRule.h"
#include "AecModel/Project.h"
#include "AecModel/TableFileReader.h"
#include "AecModel/UniqueNameGenerator.h"
#include "AecModel/WideText.h"
#include "Common/Exception.h"
#include "aec/Cast.h"

#include <boost/locale/encoding_utf.hpp>
#include <fmt/format.h>
#include <limits>
#include <memory>
#include <utility>

namespace aec::model
{

namespace
{

// File names are bytes on this platform, UTF-8 by convention; bytes that are not UTF-8 are left out
// of the table's name rather than refusing a file that reads well.
std::wstring tableName(const std::filesystem::path& file)
{
    const std::string stem = file.stem().string();
    std::wstring name = boost::locale::conv::utf_to_utf<wchar_t>(stem.data(), stem.data() + stem.size());
    return name.empty() ? std::wstring(L"Table") : name;
}

} // namespace

CTableImporter::~CTableImporter() = default;

EntityId CTableImporter::importTable(IProject& project, const std::filesystem::path& file) const
{
    CProject& target = aec::cast<CProject>(project);
    std::optional<CTableFileReader::Result> table;
    // The progress hears of the end whether the read succeeded or not, so that a host can take its
    // progress indication down either way.
    const std::unique_ptr<const TableReadProgress, void (*)(const TableReadProgress*)> announceEnd(
        &progress_,
        [](const TableReadProgress* progress)
        {
            try
            {
                if (*progress)
                    (*progress)(1.0);
            }
            catch (...)
            {
                // Too late to cancel: the import has ended, and this runs while an error unwinds.
            }
        });
    try
    {
        table = CTableFileReader::read(file, std::exchange(choices_, {}),
                                       std::numeric_limits<std::size_t>::max(), progress_);
    }
    catch (const common::EException& error)
    {
        throw common::EException(
            fmt::format("The table file \"{}\" cannot be imported: {}.", file.string(), error.what()));
    }

    const TableImportReport report = table->report;
    const bool headerRow = report.settings.headerRow;
    const EntityId id = target.addEntity(
        EntityCollection::Tables, CUniqueNameGenerator(target, EntityCollection::Tables)
                                      .takeUnique(repairedName(EntityCollection::Tables, tableName(file))));
    target.setEntityProperty(id, std::string(rowsProperty), std::to_wstring(report.rows));
    target.setEntityProperty(id, std::string(columnsProperty), std::to_wstring(report.columns));
    if (headerRow)
    {
        target.setEntityProperty(id, std::string(columnNamesProperty), fromUtf8(table->cells.rowAsJson(0)));
        table->cells.removeFirstRow();
    }
    // The cells the reader made become the property's value as they are: the entity and the undo
    // journal share them, and they become JSON text only when saved.
    target.setEntityProperty(id, std::string(cellsProperty),
                             CPropertyValue(std::make_shared<const CTableCells>(std::move(table->cells))));
    lastReport_ = report;
    return id;
}

} // namespace aec::model
