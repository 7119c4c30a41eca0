#include "AecModel/TableCells.h"

#include "Common/Check.h"
#include "Common/Exception.h"

#include <algorithm>
#include <limits>
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

std::optional<CTableCells> CTableCells::fromJson(std::string_view json)
{
    const nlohmann::json rows = nlohmann::json::parse(json, nullptr, false);
    if (!rows.is_array() || !std::ranges::all_of(rows, &nlohmann::json::is_array))
        return std::nullopt;
    CTableCells cells;
    for (const nlohmann::json& row : rows)
    {
        for (const nlohmann::json& cell : row)
            cells.addCell(cell.is_string() ? cell.get_ref<const std::string&>() : cell.dump());
        cells.endRow();
    }
    return cells;
}

void CTableCells::reserveCells(std::size_t cells, std::size_t rows)
{
    cellEnds_.reserve(cells);
    rowEnds_.reserve(rows);
}

void CTableCells::removeFirstRow()
{
    COMMON_PRECONDITION(rowCount() > 0);
    const Offset cells = rowEnds_.front();
    const Offset bytes = cells == 0 ? 0 : cellEnds_[cells - 1];
    text_.erase(0, bytes);
    cellEnds_.erase(cellEnds_.begin(), cellEnds_.begin() + cells);
    for (Offset& end : cellEnds_)
        end -= bytes;
    rowEnds_.erase(rowEnds_.begin());
    for (Offset& end : rowEnds_)
        end -= cells;
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
        // nlohmann's serializer does the escaping; the cell is copied once, briefly. The readers give
        // valid UTF-8, but a value that is saved must never fail to be: a stray byte would become
        // U+FFFD rather than an error.
        json +=
            nlohmann::json(cell(row, column)).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
    }
    json += ']';
}

} // namespace aec::model
