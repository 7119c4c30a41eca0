#include "AecModel/TableImporter.h"

#include "AecModel/CsvReader.h"
#include "AecModel/EntityNameRule.h"
#include "AecModel/InputFile.h"
#include "AecModel/Project.h"
#include "AecModel/UniqueNameGenerator.h"
#include "AecModel/WideText.h"
#include "Common/Exception.h"
#include "aec/Cast.h"

#include <algorithm>
#include <boost/locale/encoding_utf.hpp>
#include <fmt/format.h>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>

namespace aec::model
{

namespace
{

std::string readFile(const std::filesystem::path& file)
{
    std::ifstream stream = openInputFile(file);
    // Through the stream buffer rather than istreambuf_iterator, whose inlined reads GCC's optimiser
    // takes for null dereferences (-Wnull-dereference in release builds). An empty file leaves the
    // text empty and only `text` failed, which is no error.
    std::ostringstream text;
    text << stream.rdbuf();
    if (stream.bad())
        throw common::EException("the file cannot be read to its end");
    return std::move(text).str();
}

// File names are bytes on this platform, UTF-8 by convention; bytes that are not UTF-8 are left out
// of the table's name rather than refusing a file that reads well.
std::wstring tableName(const std::filesystem::path& file)
{
    const std::string stem = file.stem().string();
    std::wstring name = boost::locale::conv::utf_to_utf<wchar_t>(stem.data(), stem.data() + stem.size());
    return name.empty() ? std::wstring(L"Table") : name;
}

std::wstring cellsText(CCsvReader::Records& records, std::size_t columns)
{
    nlohmann::json cells = nlohmann::json::array();
    for (std::vector<std::string>& record : records)
    {
        record.resize(columns);
        cells.push_back(std::move(record));
    }
    return fromUtf8(cells.dump());
}

} // namespace

CTableImporter::~CTableImporter() = default;

EntityId CTableImporter::importTable(IProject& project, const std::filesystem::path& file) const
{
    CProject& target = aec::cast<CProject>(project);
    CCsvReader::Records records;
    try
    {
        records = CCsvReader(readFile(file)).read();
    }
    catch (const common::EException& error)
    {
        throw common::EException(
            fmt::format("The table file \"{}\" cannot be imported: {}.", file.string(), error.what()));
    }

    std::size_t columns = 0;
    for (const std::vector<std::string>& record : records)
        columns = std::max(columns, record.size());
    const std::size_t rows = records.size();

    const EntityId id = target.addEntity(
        EntityCollection::Tables, CUniqueNameGenerator(target, EntityCollection::Tables)
                                      .takeUnique(repairedName(EntityCollection::Tables, tableName(file))));
    target.setEntityProperty(id, std::string(rowsProperty), std::to_wstring(rows));
    target.setEntityProperty(id, std::string(columnsProperty), std::to_wstring(columns));
    target.setEntityProperty(id, std::string(cellsProperty), cellsText(records, columns));
    return id;
}

} // namespace aec::model
