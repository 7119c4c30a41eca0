#pragma once

#include "AecModel/AecModelApi.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace aec::model
{

// The cells of a table as a reader finds them, row by row, rows of any length. All cell texts share
// one buffer, so a table of a million rows costs its text and one offset per cell rather than a
// string (and often an allocation) per cell. Once read, a table is kept immutable and shared as a
// property's value (CPropertyValue).
class AECMODEL_API CTableCells
{
public:
    // The cells of a JSON list of rows, each a list of cells: texts as they are, other values as
    // their JSON; nothing when the text is no such list.
    static std::optional<CTableCells> fromJson(std::string_view json);

    // Throws common::EException when the table's text outgrows 4 GiB.
    void addCell(std::string_view text);
    void endRow();
    // Room for this much cell text, when the reader knows it ahead (delimited text holds no more
    // than its own size), so that the buffer does not grow by copies.
    void reserveText(std::size_t bytes) { text_.reserve(bytes); }
    // Room for this many cells and rows, when the reader can bound them ahead.
    void reserveCells(std::size_t cells, std::size_t rows);
    // Takes the first row (a header row, kept elsewhere) out, in place. The width stays that of the
    // table as read, the first row included, so that the rows keep their padding.
    void removeFirstRow();

    std::size_t rowCount() const noexcept { return rowEnds_.size(); }
    // The length of the longest row (of the table as read).
    std::size_t columnCount() const noexcept { return columns_; }
    std::size_t cellCount(std::size_t row) const noexcept;
    // Empty beyond the row's end.
    std::string_view cell(std::size_t row, std::size_t column) const noexcept;
    // The first rows as lists of texts, for detection and previews.
    std::vector<std::vector<std::string>> firstRows(std::size_t count) const;

    // Rows, from `firstRow` on, shorter than the longest.
    std::size_t shortRowCount(std::size_t firstRow) const noexcept;

    // The rows from `firstRow` on as JSON: a list of lists of texts, each as long as the longest
    // row. One row, for instance the header row, as a list of texts.
    std::string rowsAsJson(std::size_t firstRow) const;
    std::string rowAsJson(std::size_t row) const;

private:
    std::size_t firstCell(std::size_t row) const noexcept { return row == 0 ? 0 : rowEnds_[row - 1]; }
    void appendRowJson(std::string& json, std::size_t row) const;

    // 32-bit offsets: most cells are a few bytes long, so 64-bit ones would weigh more than the
    // text itself.
    using Offset = std::uint32_t;

    std::string text_;
    // Where each cell's text ends in text_, and where each row's cells end in cellEnds_.
    std::vector<Offset> cellEnds_;
    std::vector<Offset> rowEnds_;
    std::size_t columns_ = 0;
};

} // namespace aec::model
