#include "AecModel/TableCells.h"

#include <algorithm>
#include <limits>
#include "Common/Exception.h"

#include <nlohmann/json.hpp>

namespace aec::model
{

void CTableCells::addCell(std::string_view text)
{
    if (text_.size() + text.size() > std::numeric_limits<Offset>::max() ||
        cellEnds_.size() == std::numeric_limits<Offset>::max())
        throw common::EException("the table is too large to import");
    text_ += text;
    cellEnds_.push_back(static_cast<Offset>(text_.size()));
}

void CTableCells::endRow()
{
    const std::size_t cells = cellEnds_.size() - (rowEnds_.empty() ? 0 : rowEnds_.back());
    columns_ = std::max(columns_, cells);
    rowEnds_.push_back(static_cast<Offset>(cellEnds_.size()));
}

std::size_t CTableCells::cellCount(std::size_t row) const noexcept
{
    return rowEnds_[row] - firstCell(row);
}

std::string_view CTableCells::cell(std::size_t row, std::size_t column) const noexcept
{
    if (column >= cellCount(row))
        return {};
    const std::size_t index = firstCell(row) + column;
    const std::size_t start = index == 0 ? 0 : cellEnds_[index - 1];
    return std::string_view(text_).substr(start, cellEnds_[index] - start);
}

std::vector<std::vector<std::string>> CTableCells::firstRows(std::size_t count) const
{
    std::vector<std::vector<std::string>> rows;
    for (std::size_t row = 0; row < std::min(count, rowCount()); ++row)
    {
        std::vector<std::string>& cells = rows.emplace_back();
        for (std::size_t column = 0; column < cellCount(row); ++column)
            cells.emplace_back(cell(row, column));
    }
    return rows;
}

std::size_t CTableCells::shortRowCount(std::size_t firstRow) const noexcept
{
    std::size_t shortRows = 0;
    for (std::size_t row = firstRow; row < rowCount(); ++row)
        shortRows += cellCount(row) < columns_ ? 1 : 0;
    return shortRows;
}

std::string CTableCells::rowsAsJson(std::size_t firstRow) const
{
    std::string json = "[";
    json.reserve(text_.size() + 4 * cellEnds_.size() + 2 * rowEnds_.size() + 2);
    for (std::size_t row = firstRow; row < rowCount(); ++row)
    {
        if (row > firstRow)
            json += ',';
        appendRowJson(json, row);
    }
    json += ']';
    return json;
}

std::string CTableCells::rowAsJson(std::size_t row) const
{
    std::string json;
    appendRowJson(json, row);
    return json;
}

void CTableCells::appendRowJson(std::string& json, std::size_t row) const
{
    json += '[';
    for (std::size_t column = 0; column < columns_; ++column)
    {
        if (column > 0)
            json += ',';
        // nlohmann's serializer does the escaping; the cell is copied once, briefly.
        json += nlohmann::json(cell(row, column)).dump();
    }
    json += ']';
}

} // namespace aec::model
