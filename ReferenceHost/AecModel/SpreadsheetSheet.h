#pragma once

#include <cstddef>
#include <string>

namespace aec::model
{

// Which sheet of a spreadsheet was read: the first, named so, of sheetCount (0 when not counted).
struct SpreadsheetSheet
{
    std::string name;
    std::size_t sheetCount = 0;
};

} // namespace aec::model
