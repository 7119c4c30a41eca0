#pragma once

#include "AecModel/AecModelApi.h"
#include "AecModel/TableCells.h"
#include "AecModel/TableImportReport.h"
#include "AecModel/TableReadProgress.h"
#include "AecModel/TableReadSettings.h"

#include <cstddef>
#include <filesystem>
#include <limits>
#include <string>

namespace aec::model
{

// Reads a table file of any kind the importer knows: delimited text (comma, semicolon, tab or
// vertical bar; UTF-8, UTF-16 or a legacy encoding), an .xlsx workbook or an .ods spreadsheet,
// told apart by their content rather than their names. What is not given in the choices is
// detected.
class AECMODEL_API CTableFileReader
{
public:
    struct Result
    {
        CTableCells cells;
        TableImportReport report;
    };

    // Throws common::EException saying what is wrong with the file, in words for its user; and
    // whatever the progress throws to cancel.
    static Result read(const std::filesystem::path& file, const TableReadChoices& choices,
                       std::size_t rowLimit = std::numeric_limits<std::size_t>::max(),
                       const TableReadProgress& progress = {});
    static Result readBytes(std::string bytes, const TableReadChoices& choices,
                            std::size_t rowLimit = std::numeric_limits<std::size_t>::max(),
                            const TableReadProgress& progress = {});
};

} // namespace aec::model
