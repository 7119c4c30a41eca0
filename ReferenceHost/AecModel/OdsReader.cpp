#include "AecModel/SpreadsheetReaders.h"
#include "AecModel/TableCells.h"
#include "AecModel/XmlStreamParser.h"
#include "AecModel/ZipArchive.h"
#include "AecModel/ZipXmlEntry.h"
#include "Common/Exception.h"

#include <charconv>
#include <fmt/format.h>
#include <string>
#include <vector>

namespace aec::model
{

namespace
{

// Repeats beyond what a spreadsheet program holds are damage, not content.
constexpr std::size_t maximumRepeat = 1'048'576;
constexpr std::size_t maximumColumns = 16'384;
// Spreadsheet programs repeat cells with text only where a user filled a range with one value; a
// file of a few cells repeated a million times each is a bomb that must not take all memory.
constexpr std::size_t maximumRepeatedCells = 1'000'000;

std::size_t repeatOf(const char* text)
{
    if (text == nullptr)
        return 1;
    const std::string_view digits = text;
    std::size_t repeat = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), repeat);
    if (error != std::errc() || end != digits.data() + digits.size() || repeat == 0 || repeat > maximumRepeat)
        throw common::EException(fmt::format("the spreadsheet is damaged (a repeat of \"{}\")", digits));
    return repeat;
}

// The first <table:table> of the document body. The text of a cell is that of its paragraphs, one
// line each, with <text:s/>, <text:tab/> and <text:line-break/> as the characters they stand for;
// comments (<office:annotation>) are left out.
class CContentParser final : public CXmlStreamParser
{
public:
    CContentParser(CTableCells& cells, std::size_t rowLimit) : cells_(cells), rowLimit_(rowLimit) {}

    SpreadsheetSheet sheet;

private:
    void onStart(std::string_view name, const char** attributes) override
    {
        if (name == "table")
        {
            ++tableDepth_;
            if (tableDepth_ == 1)
            {
                ++sheet.sheetCount;
                if (sheet.sheetCount == 1)
                {
                    const char* const tableName = attribute(attributes, "name");
                    sheet.name = tableName == nullptr ? "" : tableName;
                }
            }
            return;
        }
        if (!inFirstTable())
            return;
        if (name == "table-row")
        {
            rowRepeat_ = repeatOf(attribute(attributes, "number-rows-repeated"));
            row_.clear();
            emptyCells_ = 0;
        }
        else if (name == "table-cell" || name == "covered-table-cell")
        {
            cellRepeat_ = repeatOf(attribute(attributes, "number-columns-repeated"));
            cell_.clear();
            paragraphs_ = 0;
        }
        else if (name == "annotation")
            ++annotationDepth_;
        else if (annotationDepth_ > 0)
            return;
        else if (name == "p" || name == "h")
        {
            if (paragraphs_++ > 0)
                cell_ += '\n';
        }
        else if (name == "s")
            cell_.append(std::min<std::size_t>(repeatOf(attribute(attributes, "c")), 1024), ' ');
        else if (name == "tab")
            cell_ += '\t';
        else if (name == "line-break")
            cell_ += '\n';
    }

    void onEnd(std::string_view name) override
    {
        if (name == "table")
        {
            --tableDepth_;
            if (tableDepth_ == 0 && sheet.sheetCount == 1 && cells_.rowCount() >= rowLimit_)
                stop();
            return;
        }
        if (!inFirstTable())
            return;
        if (name == "annotation")
            --annotationDepth_;
        else if (name == "table-cell" || name == "covered-table-cell")
            endCell();
        else if (name == "table-row")
            endRow();
    }

    void onText(std::string_view text) override
    {
        if (inFirstTable() && annotationDepth_ == 0 && paragraphs_ > 0)
            cell_ += text;
    }

    bool inFirstTable() const noexcept { return tableDepth_ == 1 && sheet.sheetCount == 1; }

    // Empty cells count only when a cell with text follows them: every row of a sheet ends in a
    // thousand of them.
    void endCell()
    {
        if (cell_.empty())
        {
            emptyCells_ += cellRepeat_;
            return;
        }
        if (row_.size() + emptyCells_ + cellRepeat_ > maximumColumns)
            throw common::EException("the sheet is too large to import");
        row_.resize(row_.size() + emptyCells_);
        emptyCells_ = 0;
        countRepeats(cellRepeat_ - 1);
        row_.insert(row_.end(), cellRepeat_, cell_);
    }

    void endRow()
    {
        if (row_.empty())
        {
            emptyRows_ += rowRepeat_;
            return;
        }
        if (cells_.rowCount() + emptyRows_ + rowRepeat_ > maximumRepeat)
            throw common::EException("the sheet has more rows than a spreadsheet holds");
        for (; emptyRows_ > 0 && cells_.rowCount() < rowLimit_; --emptyRows_)
            cells_.endRow();
        for (std::size_t repeat = 0; repeat < rowRepeat_ && cells_.rowCount() < rowLimit_; ++repeat)
        {
            if (repeat > 0)
                countRepeats(row_.size());
            for (const std::string& cell : row_)
                cells_.addCell(cell);
            cells_.endRow();
        }
        if (cells_.rowCount() >= rowLimit_)
            stop();
    }

    void countRepeats(std::size_t cells)
    {
        repeatedCells_ += cells;
        if (repeatedCells_ > maximumRepeatedCells)
            throw common::EException("the sheet repeats its cells more than a table can hold");
    }

    CTableCells& cells_;
    std::size_t rowLimit_;
    int tableDepth_ = 0;
    int annotationDepth_ = 0;
    std::vector<std::string> row_;
    std::size_t emptyCells_ = 0;
    std::size_t rowRepeat_ = 1;
    std::size_t emptyRows_ = 0;
    std::string cell_;
    std::size_t cellRepeat_ = 1;
    std::size_t paragraphs_ = 0;
    std::size_t repeatedCells_ = 0;
};

} // namespace

SpreadsheetSheet readFirstOdsSheet(const CZipArchive& archive, CTableCells& cells, std::size_t rowLimit,
                                   const TableReadProgress& progress)
{
    // An encrypted package lists how each part is encrypted in its manifest; its content cannot be
    // read without the password.
    if (archive.contains("META-INF/manifest.xml") &&
        archive.readWhole("META-INF/manifest.xml").find("encryption-data") != std::string::npos)
        throw common::EException("the spreadsheet is encrypted; save it without a password");
    CContentParser content(cells, rowLimit);
    parseZipEntry(archive, "content.xml", content, progress);
    if (content.sheet.sheetCount == 0)
        throw common::EException("the spreadsheet has no sheet");
    return content.sheet;
}

} // namespace aec::model
