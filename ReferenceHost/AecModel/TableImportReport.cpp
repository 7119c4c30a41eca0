#include "AecModel/TableImportReport.h"

#include <fmt/format.h>

namespace aec::model
{

namespace
{

std::string counted(std::size_t count, std::string_view one, std::string_view many)
{
    return fmt::format("{} {}", count, count == 1 ? one : many);
}

} // namespace

std::string TableImportReport::describe() const
{
    std::string line = format;
    if (format == "CSV")
        line += fmt::format(", {}, {}-separated", settings.encoding, delimiterName(settings.delimiter));
    else if (sheetCount > 1)
        line += fmt::format(", sheet \"{}\" (first of {})", sheetName, sheetCount);
    else
        line += fmt::format(", sheet \"{}\"", sheetName);
    line += settings.headerRow ? ", header row" : ", no header row";
    line += fmt::format(", {}, {}", counted(rows, "row", "rows"), counted(columns, "column", "columns"));
    if (paddedRows > 0)
        line += fmt::format(", {} padded", counted(paddedRows, "short row", "short rows"));
    return line;
}

std::string delimiterName(char delimiter)
{
    switch (delimiter)
    {
    case ',':
        return "comma";
    case ';':
        return "semicolon";
    case '\t':
        return "tab";
    case '|':
        return "vertical bar";
    default:
        return fmt::format("'{}'", delimiter);
    }
}

} // namespace aec::model
