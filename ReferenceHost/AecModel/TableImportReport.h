#pragma once

#include "AecModel/AecModelApi.h"
#include "AecModel/TableReadSettings.h"

#include <cstddef>
#include <string>

namespace aec::model
{

// What an import found in a table file and made of it, for the user to check at a glance.
struct AECMODEL_API TableImportReport
{
    // "CSV", "XLSX" or "ODS".
    std::string format;
    TableReadSettings settings;
    // The sheet that was read and how many the file has; spreadsheets only.
    std::string sheetName;
    std::size_t sheetCount = 0;
    // Data rows (without the header row) and columns after padding.
    std::size_t rows = 0;
    std::size_t columns = 0;
    // Rows that were shorter than the widest and were padded with empty cells.
    std::size_t paddedRows = 0;

    // One line, e.g. "CSV, windows-1252, semicolon-separated, header row, 2 rows, 3 columns, 1 short
    // row padded".
    std::string describe() const;
};

// The delimiter's name as the user knows it: "comma", "semicolon", "tab", "vertical bar".
AECMODEL_API std::string delimiterName(char delimiter);

} // namespace aec::model
