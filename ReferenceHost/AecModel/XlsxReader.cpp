#include "AecModel/NumberFormat.h"
#include "AecModel/SpreadsheetReaders.h"
#include "AecModel/TableCells.h"
#include "AecModel/XmlStreamParser.h"
#include "AecModel/ZipArchive.h"
#include "AecModel/ZipXmlEntry.h"
#include "Common/Exception.h"

#include <charconv>
#include <fmt/format.h>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace aec::model
{

namespace
{

// The largest sheet a spreadsheet program writes.
constexpr std::size_t maximumRows = 1'048'576;
constexpr std::size_t maximumColumns = 16'384;

[[noreturn]] void damaged(std::string_view what)
{
    throw common::EException(fmt::format("the spreadsheet is damaged ({})", what));
}

// A count or an index in an attribute, or nothing when it is missing or not a number.
std::optional<unsigned> numberIn(const char* text)
{
    if (text == nullptr)
        return std::nullopt;
    const std::string_view digits = text;
    unsigned number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc() || end != digits.data() + digits.size())
        return std::nullopt;
    return number;
}

// The sheets in workbook order, each with its relation's identifier, and the workbook's date system.
class CWorkbookParser final : public CXmlStreamParser
{
public:
    std::vector<std::pair<std::string, std::string>> sheets;
    CNumberFormat::DateSystem dates = CNumberFormat::DateSystem::From1900;

private:
    void onStart(std::string_view name, const char** attributes) override
    {
        if (name == "workbookPr")
        {
            const char* const date1904 = attribute(attributes, "date1904");
            if (date1904 != nullptr &&
                (std::string_view(date1904) == "1" || std::string_view(date1904) == "true"))
                dates = CNumberFormat::DateSystem::From1904;
        }
        if (name != "sheet")
            return;
        const char* const sheetName = attribute(attributes, "name");
        const char* const relation = attribute(attributes, "id");
        sheets.emplace_back(sheetName == nullptr ? "" : sheetName, relation == nullptr ? "" : relation);
    }
    void onEnd(std::string_view) override {}
    void onText(std::string_view) override {}
};

// Where each relation of the workbook points, by identifier; and where its styles are.
class CRelationsParser final : public CXmlStreamParser
{
public:
    std::map<std::string, std::string, std::less<>> targets;
    std::optional<std::string> stylesTarget;

private:
    void onStart(std::string_view name, const char** attributes) override
    {
        const char* const id = attribute(attributes, "Id");
        const char* const target = attribute(attributes, "Target");
        const char* const type = attribute(attributes, "Type");
        if (name == "Relationship" && id != nullptr && target != nullptr)
            targets.emplace(id, target);
        if (name == "Relationship" && type != nullptr && target != nullptr &&
            std::string_view(type).ends_with("/styles"))
            stylesTarget = target;
    }
    void onEnd(std::string_view) override {}
    void onText(std::string_view) override {}
};

// The shared strings: each <si> is one, the text of its <t> elements run together, without the
// phonetic guides (<rPh>) that East Asian spreadsheets add.
class CSharedStringsParser final : public CXmlStreamParser
{
public:
    std::vector<std::string> strings;

private:
    void onStart(std::string_view name, const char**) override
    {
        if (name == "si")
            strings.emplace_back();
        else if (name == "rPh")
            inPhonetic_ = true;
        else if (name == "t" && !inPhonetic_ && !strings.empty())
            inText_ = true;
    }
    void onEnd(std::string_view name) override
    {
        if (name == "rPh")
            inPhonetic_ = false;
        else if (name == "t")
            inText_ = false;
    }
    void onText(std::string_view text) override
    {
        if (inText_)
            strings.back() += text;
    }

    bool inText_ = false;
    bool inPhonetic_ = false;
};

// The number format of each cell style (the <xf> of <cellXfs>, by index): a format code of the
// workbook's own (<numFmt>) or a built-in one.
class CStylesParser final : public CXmlStreamParser
{
public:
    std::vector<unsigned> styleFormats;
    std::map<unsigned, std::string> codes;

private:
    void onStart(std::string_view name, const char** attributes) override
    {
        const std::optional<unsigned> format = numberIn(attribute(attributes, "numFmtId"));
        const char* const code = attribute(attributes, "formatCode");
        if (name == "numFmt" && format && code != nullptr)
            codes[*format] = code;
        else if (name == "cellXfs")
            inCellStyles_ = true;
        else if (name == "xf" && inCellStyles_)
            styleFormats.push_back(format.value_or(0));
    }
    void onEnd(std::string_view name) override
    {
        if (name == "cellXfs")
            inCellStyles_ = false;
    }
    void onText(std::string_view) override {}

    bool inCellStyles_ = false;
};

// 1-based column of a cell reference such as "AB12", or 0 when it has none.
std::size_t columnOf(std::string_view reference)
{
    std::size_t column = 0;
    for (const char letter : reference)
    {
        if (letter < 'A' || letter > 'Z')
            break;
        column = column * 26 + static_cast<std::size_t>(letter - 'A' + 1);
        if (column > maximumColumns)
            damaged(fmt::format("the cell reference {} is beyond the last column", reference));
    }
    return column;
}

// A number as its cell's format shows it; a value that is no number, as it is.
std::string formattedNumber(const std::string& value, const CNumberFormat& format)
{
    double number = 0;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
    if (error != std::errc() || end != value.data() + value.size())
        return value;
    return format.format(number);
}

// Empty cells and rows count only when a cell with text follows them: spreadsheet programs write
// formatted empty cells and rows past the end of the data, which are no part of the table.
class CWorksheetParser final : public CXmlStreamParser
{
public:
    // The formats are those of the cell styles, by index.
    CWorksheetParser(CTableCells& cells, const std::vector<std::string>& sharedStrings,
                     const std::vector<CNumberFormat>& formats, std::size_t rowLimit)
        : cells_(cells), sharedStrings_(sharedStrings), formats_(formats), rowLimit_(rowLimit)
    {
    }

    // Ends the row still open when the sheet ended early, at the row limit.
    void finish()
    {
        if (inRow_ && rowHasText_)
            cells_.endRow();
        inRow_ = false;
    }

private:
    void onStart(std::string_view name, const char** attributes) override
    {
        if (name == "row")
            startRow(attribute(attributes, "r"));
        else if (name == "c" && inRow_)
            startCell(attribute(attributes, "r"), attribute(attributes, "t"), attribute(attributes, "s"));
        else if ((name == "v" || (name == "t" && inInlineString_)) && inCell_)
            inValue_ = true;
        else if (name == "is")
            inInlineString_ = true;
        else if (name == "rPh")
            inPhonetic_ = true;
    }

    void onEnd(std::string_view name) override
    {
        if (name == "v" || name == "t")
            inValue_ = false;
        else if (name == "is")
            inInlineString_ = false;
        else if (name == "rPh")
            inPhonetic_ = false;
        else if (name == "c" && inCell_)
            endCell();
        else if (name == "row" && inRow_)
            endRow();
    }

    void onText(std::string_view text) override
    {
        if (inValue_ && !inPhonetic_)
            value_ += text;
    }

    void startRow(const char* reference)
    {
        // Rows that have no cell are left out of the file; they are there in the sheet.
        const std::size_t rowsSoFar = cells_.rowCount() + emptyRows_;
        if (reference != nullptr)
        {
            const std::string_view text = reference;
            std::size_t given = 0;
            const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), given);
            if (error != std::errc() || end != text.data() + text.size() || given == 0 || given > maximumRows)
                damaged(fmt::format("the row number \"{}\" is not valid", text));
            if (given > rowsSoFar + 1)
                emptyRows_ += given - rowsSoFar - 1;
        }
        inRow_ = true;
        rowHasText_ = false;
        column_ = 0;
        emptyCells_ = 0;
    }

    void endRow()
    {
        inRow_ = false;
        if (!rowHasText_)
        {
            ++emptyRows_;
            return;
        }
        cells_.endRow();
        if (cells_.rowCount() >= rowLimit_)
            stop();
    }

    void startCell(const char* reference, const char* type, const char* style)
    {
        style_ = numberIn(style).value_or(0);
        // A column given twice or backwards takes the next one.
        const std::size_t column = reference == nullptr ? column_ + 1 : columnOf(reference);
        if (column > column_ + 1)
        {
            emptyCells_ += column - column_ - 1;
            column_ = column - 1;
        }
        type_ = type == nullptr ? "n" : type;
        value_.clear();
        inCell_ = true;
    }

    void endCell()
    {
        inCell_ = false;
        ++column_;
        const std::string text = cellText();
        if (text.empty())
        {
            ++emptyCells_;
            return;
        }
        if (!rowHasText_)
        {
            for (; emptyRows_ > 0 && cells_.rowCount() < rowLimit_; --emptyRows_)
                cells_.endRow();
            rowHasText_ = true;
        }
        for (; emptyCells_ > 0; --emptyCells_)
            cells_.addCell({});
        cells_.addCell(text);
    }

    std::string cellText() const
    {
        if (type_ == "s")
        {
            std::size_t index = 0;
            const auto [end, error] = std::from_chars(value_.data(), value_.data() + value_.size(), index);
            if (error != std::errc() || end != value_.data() + value_.size() ||
                index >= sharedStrings_.size())
                damaged(fmt::format("a cell refers to the shared string \"{}\", which is not there", value_));
            return sharedStrings_[index];
        }
        if (type_ == "b")
            return value_ == "1" ? "TRUE" : value_ == "0" ? "FALSE" : value_;
        if (type_ == "n" && !value_.empty())
            return formattedNumber(value_, style_ < formats_.size() ? formats_[style_] : generalFormat_);
        return value_;
    }

    CTableCells& cells_;
    const std::vector<std::string>& sharedStrings_;
    const std::vector<CNumberFormat>& formats_;
    const CNumberFormat generalFormat_;
    std::size_t rowLimit_;
    std::size_t style_ = 0;
    std::size_t column_ = 0;
    std::size_t emptyCells_ = 0;
    std::size_t emptyRows_ = 0;
    std::string type_;
    std::string value_;
    bool inRow_ = false;
    bool rowHasText_ = false;
    bool inCell_ = false;
    bool inValue_ = false;
    bool inInlineString_ = false;
    bool inPhonetic_ = false;
};

// The path inside the archive of a relation's target, which is relative to the workbook's folder
// unless it starts with a slash.
std::string entryOf(std::string_view target)
{
    return target.starts_with('/') ? std::string(target.substr(1)) : "xl/" + std::string(target);
}

} // namespace

SpreadsheetSheet readFirstXlsxWorksheet(const CZipArchive& archive, CTableCells& cells, std::size_t rowLimit,
                                        const TableReadProgress& progress)
{
    CWorkbookParser workbook;
    parseZipEntry(archive, "xl/workbook.xml", workbook);
    if (workbook.sheets.empty())
        damaged("the workbook has no worksheet");
    const auto& [sheetName, relation] = workbook.sheets.front();

    std::string sheetEntry = "xl/worksheets/sheet1.xml";
    std::optional<std::string> stylesTarget;
    if (archive.contains("xl/_rels/workbook.xml.rels"))
    {
        CRelationsParser relations;
        parseZipEntry(archive, "xl/_rels/workbook.xml.rels", relations);
        if (const auto target = relations.targets.find(relation); target != relations.targets.end())
            sheetEntry = entryOf(target->second);
        stylesTarget = std::move(relations.stylesTarget);
    }

    CSharedStringsParser sharedStrings;
    if (archive.contains("xl/sharedStrings.xml"))
        parseZipEntry(archive, "xl/sharedStrings.xml", sharedStrings);

    CStylesParser styles;
    if (const std::string stylesEntry = entryOf(stylesTarget.value_or("styles.xml"));
        archive.contains(stylesEntry))
        parseZipEntry(archive, stylesEntry, styles);
    std::vector<CNumberFormat> formats;
    for (const unsigned format : styles.styleFormats)
    {
        const auto own = styles.codes.find(format);
        formats.emplace_back(own != styles.codes.end() ? own->second : CNumberFormat::builtInCode(format),
                             workbook.dates);
    }

    CWorksheetParser worksheet(cells, sharedStrings.strings, formats, rowLimit);
    parseZipEntry(archive, sheetEntry, worksheet, progress);
    worksheet.finish();
    return {sheetName, workbook.sheets.size()};
}

} // namespace aec::model
