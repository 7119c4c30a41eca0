#pragma once

#include "AecModel/SpreadsheetSheet.h"
#include "AecModel/TableReadProgress.h"

#include <cstddef>

namespace aec::model
{

class CTableCells;
class CZipArchive;

// The readers of the two open spreadsheet formats. Each reads the first sheet into the cells, at
// most rowLimit rows, and throws common::EException for a file that is damaged, encrypted or has
// no sheet.

// Office Open XML workbooks (.xlsx): shared and inline strings as written, numbers as their cell's
// number format shows them (CNumberFormat; General by default), booleans as TRUE and FALSE,
// formula results as cached in the file.
SpreadsheetSheet readFirstXlsxWorksheet(const CZipArchive& archive, CTableCells& cells, std::size_t rowLimit,
                                        const TableReadProgress& progress);

// OpenDocument spreadsheets (.ods): cells read as the text the file gives for them, which is how
// the spreadsheet shows them (numbers, dates and currencies formatted); repeated rows and cells are
// repeated, but the empty ones that pad every sheet to its full size are left out.
SpreadsheetSheet readFirstOdsSheet(const CZipArchive& archive, CTableCells& cells, std::size_t rowLimit,
                                   const TableReadProgress& progress);

} // namespace aec::model
