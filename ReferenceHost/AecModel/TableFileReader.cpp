#include "AecModel/TableFileReader.h"

#include "AecModel/CsvReader.h"
#include "AecModel/DelimiterSniffer.h"
#include "AecModel/HeaderRowDetector.h"
#include "AecModel/InputFile.h"
#ifndef _WIN32
#include "AecModel/SpreadsheetReaders.h"
#endif
#include "AecModel/TextDecoder.h"
#include "AecModel/TextEncodingDetector.h"
#ifndef _WIN32
#include "AecModel/ZipArchive.h"
#endif
#include "Common/Exception.h"

#include <fstream>
#include <vector>

namespace aec::model
{

namespace
{

// The rows that detection of a header row looks at.
constexpr std::size_t sampledRows = 50;
// Progress is told every so many records: often enough for a progress bar, rarely enough to cost
// nothing.
constexpr std::size_t recordsPerProgress = 4096;

// The progress hears first that the read begins, once the file is open: a host shows its progress
// from then on, and what happens to the file from then on is caught here.
std::string readFile(const std::filesystem::path& file, const TableReadProgress& progress)
{
    std::ifstream stream = openInputFile(file);
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(file, error);
    std::string bytes;
    // Read in one go into a buffer of the file's size: no growth, no second copy.
    if (!error)
        bytes.resize(static_cast<std::size_t>(size));
    if (progress)
        progress(0.0);
    stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (stream.gcount() != static_cast<std::streamsize>(bytes.size()) || stream.bad())
        throw common::EException("the file cannot be read to its end; it may have been moved or changed");
    if (stream.peek() != std::ifstream::traits_type::eof())
        throw common::EException("the file grew while it was read; import it once it is written");
    return bytes;
}

// Room for the cells, bounded by one quick count over the text: every delimiter and line break may
// end a cell, and every line break a row. The cells' offsets then never grow by copies, whose
// abandoned buffers would weigh as much again as the table's text.
void reserveCells(std::string_view text, char delimiter, CTableCells& cells)
{
    std::size_t delimiters = 0;
    std::size_t lineBreaks = 0;
    for (std::size_t at = 0; at < text.size(); ++at)
    {
        const char character = text[at];
        delimiters += character == delimiter ? 1 : 0;
        lineBreaks += character == '\n' || (character == '\r' && text.substr(at + 1, 1) != "\n") ? 1 : 0;
    }
    cells.reserveText(text.size());
    cells.reserveCells(delimiters + lineBreaks + 1, lineBreaks + 1);
}

void readDelimited(std::string_view text, char delimiter, CTableCells& cells, std::size_t rowLimit,
                   const TableReadProgress& progress)
{
    CCsvReader reader(text, delimiter);
    reserveCells(text, delimiter, cells);
    std::vector<std::string> fields;
    for (std::size_t records = 0; records < rowLimit && reader.next(fields); ++records)
    {
        for (const std::string& field : fields)
            cells.addCell(field);
        cells.endRow();
        if (progress && records % recordsPerProgress == 0)
            progress(static_cast<double>(reader.position()) / static_cast<double>(text.size()));
    }
}

CTableFileReader::Result readText(std::string bytes, const TableReadChoices& choices, std::size_t rowLimit,
                                  const TableReadProgress& progress)
{
    CTableFileReader::Result result;
    TableReadSettings& settings = result.report.settings;
    result.report.format = "CSV";
    settings.encoding = choices.encoding.value_or(CTextEncodingDetector::detect(bytes));
    const std::string text = CTextDecoder::toUtf8(std::move(bytes), settings.encoding);
    if (text.find('\0') != std::string::npos)
        throw common::EException("it holds binary data, not a table");
    settings.delimiter = choices.delimiter.value_or(CDelimiterSniffer::sniff(text));
    readDelimited(text, settings.delimiter, result.cells, rowLimit, progress);
    return result;
}

#ifdef _WIN32
// The Windows build goes without the zip and XML libraries the spreadsheet readers need.
CTableFileReader::Result readSpreadsheet(const std::string&, std::size_t, const TableReadProgress&)
{
    throw common::EException("this build cannot read spreadsheets; save the sheet as CSV and import that");
}
#else
CTableFileReader::Result readSpreadsheet(const std::string& bytes, std::size_t rowLimit,
                                         const TableReadProgress& progress)
{
    const CZipArchive archive(bytes);
    CTableFileReader::Result result;
    SpreadsheetSheet sheet;
    if (archive.contains("xl/workbook.xml"))
    {
        result.report.format = "XLSX";
        sheet = readFirstXlsxWorksheet(archive, result.cells, rowLimit, progress);
    }
    else if (archive.contains("content.xml"))
    {
        result.report.format = "ODS";
        sheet = readFirstOdsSheet(archive, result.cells, rowLimit, progress);
    }
    else
        throw common::EException("it is a zip archive, not a spreadsheet");
    result.report.sheetName = std::move(sheet.name);
    result.report.sheetCount = sheet.sheetCount;
    return result;
}
#endif

} // namespace

CTableFileReader::Result CTableFileReader::read(const std::filesystem::path& file,
                                                const TableReadChoices& choices, std::size_t rowLimit,
                                                const TableReadProgress& progress)
{
    return readBytes(readFile(file, progress), choices, rowLimit, progress);
}

CTableFileReader::Result CTableFileReader::readBytes(std::string bytes, const TableReadChoices& choices,
                                                     std::size_t rowLimit, const TableReadProgress& progress)
{
    // Spreadsheets saved with a password are compound documents, as are those of the old binary
    // format; neither can be read here.
    if (std::string_view(bytes).starts_with("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1"))
        throw common::EException(
            "it is an encrypted spreadsheet or one in an old binary format; save it as .xlsx, .ods or CSV "
            "without a password");
    Result result = std::string_view(bytes).starts_with("PK\x03\x04")
                        ? readSpreadsheet(bytes, rowLimit, progress)
                        : readText(std::move(bytes), choices, rowLimit, progress);
    result.report.settings.headerRow =
        choices.headerRow.value_or(CHeaderRowDetector::detect(result.cells.firstRows(sampledRows)));
    const bool headerRow = result.report.settings.headerRow && result.cells.rowCount() > 0;
    result.report.settings.headerRow = headerRow;
    result.report.rows = result.cells.rowCount() - (headerRow ? 1 : 0);
    result.report.columns = result.cells.columnCount();
    result.report.paddedRows = result.cells.shortRowCount(headerRow ? 1 : 0);
    return result;
}

} // namespace aec::model
