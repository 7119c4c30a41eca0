#include "SpreadsheetFiles/SpreadsheetWriter.h"

#include "SpreadsheetFiles/ZipWriter.h"

#include <charconv>
#include <fmt/format.h>
#include <map>

namespace aec::spreadsheet
{

namespace
{

std::string escaped(std::string_view text)
{
    std::string xml;
    for (const char character : text)
        switch (character)
        {
        case '&':
            xml += "&amp;";
            break;
        case '<':
            xml += "&lt;";
            break;
        case '>':
            xml += "&gt;";
            break;
        case '"':
            xml += "&quot;";
            break;
        default:
            xml += character;
        }
    return xml;
}

bool isNumber(const std::string& text)
{
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return !text.empty() && error == std::errc() && end == text.data() + text.size();
}

std::string columnName(std::size_t column)
{
    std::string name;
    for (++column; column > 0; column = (column - 1) / 26)
        name.insert(name.begin(), static_cast<char>('A' + (column - 1) % 26));
    return name;
}

constexpr std::string_view xmlDeclaration = R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>)";
constexpr std::string_view mainNamespace = "http://schemas.openxmlformats.org/spreadsheetml/2006/main";
constexpr std::string_view relationNamespace =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships";

class CSharedStrings
{
public:
    std::size_t indexOf(const std::string& text)
    {
        const auto [entry, added] = indices_.try_emplace(text, indices_.size());
        if (added)
            xml_ += fmt::format("<si><t>{}</t></si>", escaped(text));
        return entry->second;
    }
    std::string xml() const
    {
        return fmt::format(R"({}<sst xmlns="{}" uniqueCount="{}">{}</sst>)", xmlDeclaration, mainNamespace,
                           indices_.size(), xml_);
    }

private:
    std::map<std::string, std::size_t> indices_;
    std::string xml_;
};

std::string worksheetXml(const Sheet& sheet, CSpreadsheetWriter::Strings strings, CSharedStrings& shared)
{
    std::string xml = fmt::format(R"({}<worksheet xmlns="{}"><sheetData>)", xmlDeclaration, mainNamespace);
    for (std::size_t row = 0; row < sheet.rows.size(); ++row)
    {
        if (sheet.rows[row].empty())
            continue; // rows without cells are left out and numbered around
        xml += fmt::format(R"(<row r="{}">)", row + 1);
        for (std::size_t column = 0; column < sheet.rows[row].size(); ++column)
        {
            const std::string& text = sheet.rows[row][column];
            const std::string reference = columnName(column) + std::to_string(row + 1);
            if (text.empty())
                continue;
            if (isNumber(text))
                xml += fmt::format(R"(<c r="{}"><v>{}</v></c>)", reference, text);
            else if (strings == CSpreadsheetWriter::Strings::Inline)
                xml += fmt::format(R"(<c r="{}" t="inlineStr"><is><t>{}</t></is></c>)", reference,
                                   escaped(text));
            else
                xml += fmt::format(R"(<c r="{}" t="s"><v>{}</v></c>)", reference, shared.indexOf(text));
        }
        xml += "</row>";
    }
    return xml + "</sheetData></worksheet>";
}

std::string workbookXml(const std::vector<Sheet>& sheets, bool datesFrom1904 = false)
{
    std::string xml =
        fmt::format(R"({}<workbook xmlns="{}" xmlns:r="{}">{}<sheets>)", xmlDeclaration, mainNamespace,
                    relationNamespace, datesFrom1904 ? R"(<workbookPr date1904="1"/>)" : "");
    for (std::size_t index = 0; index < sheets.size(); ++index)
        xml += fmt::format(R"(<sheet name="{}" sheetId="{}" r:id="rId{}"/>)", escaped(sheets[index].name),
                           index + 1, index + 1);
    return xml + "</sheets></workbook>";
}

// The relations number the sheets backwards, so that a reader that took sheet1.xml for the first
// worksheet without following the relation would read the wrong sheet.
std::string relationsXml(std::size_t sheetCount)
{
    std::string xml = fmt::format(
        R"({}<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">)",
        xmlDeclaration);
    for (std::size_t index = 0; index < sheetCount; ++index)
        xml +=
            fmt::format(R"(<Relationship Id="rId{}" Type="{}/worksheet" Target="worksheets/sheet{}.xml"/>)",
                        index + 1, relationNamespace, sheetCount - index);
    return xml + "</Relationships>";
}

CZipWriter xlsxPackage()
{
    CZipWriter zip;
    zip.add("[Content_Types].xml",
            fmt::format(R"({}<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types">)"
                        R"(<Default Extension="xml" ContentType="application/xml"/></Types>)",
                        xmlDeclaration));
    return zip;
}

constexpr std::string_view odsNamespaces =
    R"(xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0" )"
    R"(xmlns:table="urn:oasis:names:tc:opendocument:xmlns:table:1.0" )"
    R"(xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0")";

std::string odsCell(const std::string& text)
{
    std::string paragraphs;
    for (std::size_t start = 0;;)
    {
        const std::size_t end = text.find('\n', start);
        paragraphs += fmt::format("<text:p>{}</text:p>", escaped(text.substr(start, end - start)));
        if (end == std::string::npos)
            break;
        start = end + 1;
    }
    if (isNumber(text))
        return fmt::format(
            R"(<table:table-cell office:value-type="float" office:value="{}">{}</table:table-cell>)", text,
            paragraphs);
    return fmt::format(R"(<table:table-cell office:value-type="string">{}</table:table-cell>)", paragraphs);
}

std::string odsTable(const Sheet& sheet)
{
    std::string xml = fmt::format(R"(<table:table table:name="{}">)", escaped(sheet.name));
    for (const std::vector<std::string>& row : sheet.rows)
    {
        xml += "<table:table-row>";
        for (std::size_t column = 0; column < row.size();)
        {
            // Equal neighbours are written once with a repeat count, as spreadsheet programs do.
            std::size_t repeat = 1;
            while (column + repeat < row.size() && row[column + repeat] == row[column])
                ++repeat;
            std::string cell = row[column].empty() ? "<table:table-cell/>" : odsCell(row[column]);
            if (repeat > 1)
                cell.insert(cell.find_first_of("/>"),
                            fmt::format(R"( table:number-columns-repeated="{}")", repeat));
            xml += cell;
            column += repeat;
        }
        xml += R"(<table:table-cell table:number-columns-repeated="1000"/></table:table-row>)";
    }
    return xml + R"(<table:table-row table:number-rows-repeated="1048000"><table:table-cell )"
                 R"(table:number-columns-repeated="1024"/></table:table-row></table:table>)";
}

} // namespace

std::string CSpreadsheetWriter::xlsx(const std::vector<Sheet>& sheets, Strings strings)
{
    CZipWriter zip = xlsxPackage();
    zip.add("xl/workbook.xml", workbookXml(sheets));
    zip.add("xl/_rels/workbook.xml.rels", relationsXml(sheets.size()));
    CSharedStrings shared;
    for (std::size_t index = 0; index < sheets.size(); ++index)
        zip.add(fmt::format("xl/worksheets/sheet{}.xml", sheets.size() - index),
                worksheetXml(sheets[index], strings, shared));
    if (strings == Strings::Shared)
        zip.add("xl/sharedStrings.xml", shared.xml());
    return zip.bytes();
}

std::string CSpreadsheetWriter::ods(const std::vector<Sheet>& sheets)
{
    std::string content = fmt::format(R"({}<office:document-content {}><office:body><office:spreadsheet>)",
                                      xmlDeclaration, odsNamespaces);
    for (const Sheet& sheet : sheets)
        content += odsTable(sheet);
    return odsAround(content + "</office:spreadsheet></office:body></office:document-content>");
}

std::string CSpreadsheetWriter::xlsxAround(std::string worksheetXml, std::string sharedStringsXml,
                                           std::string stylesXml, bool datesFrom1904)
{
    CZipWriter zip = xlsxPackage();
    zip.add("xl/workbook.xml", workbookXml({Sheet{"Sheet1", {}}}, datesFrom1904));
    zip.add("xl/_rels/workbook.xml.rels", relationsXml(1));
    zip.add("xl/worksheets/sheet1.xml", std::move(worksheetXml));
    zip.add("xl/sharedStrings.xml", std::move(sharedStringsXml));
    if (!stylesXml.empty())
        zip.add("xl/styles.xml", std::move(stylesXml));
    return zip.bytes();
}

std::string CSpreadsheetWriter::odsAround(std::string contentXml)
{
    CZipWriter zip;
    zip.add("mimetype", "application/vnd.oasis.opendocument.spreadsheet");
    zip.add("content.xml", std::move(contentXml));
    return zip.bytes();
}

} // namespace aec::spreadsheet
