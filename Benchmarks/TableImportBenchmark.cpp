// Importing a table of 100,000 rows from each kind of file, beside a plain read of the same file:
// the time, and the peak resident memory the import adds, as a multiple of the file's size. The
// import into a project ("import/...") keeps the table as the model stores it (the reader's cell
// store, which the entity and the undo journal share); reading the table alone ("table/...") is
// what the reader itself needs.
//
// Peak memory is the kernel's high-water mark of resident memory (VmHWM), reset before each run
// through /proc/self/clear_refs: it counts what ICU, libzip and expat allocate with malloc as well,
// which counting operator new would miss.

#include "AecModel/Project.h"
#include "AecModel/TableFileReader.h"
#include "AecModel/TableImporter.h"
#include "SpreadsheetFiles/SpreadsheetWriter.h"
#include "aec/Transaction.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <fmt/format.h>
#include <fstream>
#include <malloc.h>
#include <map>
#include <sstream>
#include <string>

namespace benchmarks
{
namespace
{

namespace fs = std::filesystem;
using aec::spreadsheet::CSpreadsheetWriter;
using aec::spreadsheet::Sheet;

constexpr std::size_t tableRows = 100'000;

// A room list as architects keep them: names, numbers with decimal points, a level, a free note.
Sheet roomList()
{
    Sheet sheet{"Rooms", {{"Room", "Name", "Area", "Level", "Note"}}};
    for (std::size_t row = 1; row <= tableRows; ++row)
        sheet.rows.push_back({fmt::format("R{:06}", row), fmt::format("Office {}", row % 977),
                              fmt::format("{}.{}", 8 + row % 40, row % 10), std::to_string(row % 12),
                              row % 7 == 0 ? "window, north side" : ""});
    return sheet;
}

std::string asCsv(const Sheet& sheet)
{
    std::string text;
    for (const std::vector<std::string>& row : sheet.rows)
        text += fmt::format("{},{},{},{},\"{}\"\r\n", row[0], row[1], row[2], row[3], row[4]);
    return text;
}

// The three files, written once for all runs.
const fs::path& fileOf(const std::string& format)
{
    static const std::map<std::string, fs::path> files = []
    {
        const fs::path directory = fs::temp_directory_path() / "aec-table-import-benchmark";
        fs::create_directories(directory);
        const Sheet sheet = roomList();
        const std::map<std::string, std::string> contents{{"csv", asCsv(sheet)},
                                                          {"xlsx", CSpreadsheetWriter::xlsx({sheet})},
                                                          {"ods", CSpreadsheetWriter::ods({sheet})}};
        std::map<std::string, fs::path> paths;
        for (const auto& [extension, bytes] : contents)
        {
            paths[extension] = directory / ("rooms." + extension);
            std::ofstream(paths[extension], std::ios::binary) << bytes;
        }
        return paths;
    }();
    return files.at(format);
}

// The resident set's size, or its high-water mark, in bytes, from /proc/self/status.
double statusBytes(const std::string& field)
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with(field + ":"))
            return std::stod(line.substr(field.size() + 1)) * 1024.0;
    return 0.0;
}

// What earlier runs freed goes back to the system first, so that it is not reused unseen.
void resetPeak()
{
    malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << "5";
}

template <typename Run>
void measure(benchmark::State& state, const std::string& format, const Run& run)
{
    const fs::path& file = fileOf(format);
    const auto size = static_cast<double>(fs::file_size(file));
    double peak = 0.0;
    for (auto _ : state)
    {
        resetPeak();
        const double before = statusBytes("VmRSS");
        run(file);
        peak = std::max(peak, statusBytes("VmHWM") - before);
    }
    state.counters["fileMB"] = size / 1e6;
    state.counters["peakMB"] = peak / 1e6;
    state.counters["peakPerFileSize"] = peak / size;
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * static_cast<std::int64_t>(size));
}

void BM_PlainRead(benchmark::State& state, const std::string& format)
{
    measure(state, format,
            [](const fs::path& file)
            {
                std::ifstream stream(file, std::ios::binary);
                std::ostringstream bytes;
                bytes << stream.rdbuf();
                benchmark::DoNotOptimize(bytes.str().size());
            });
}

void BM_ReadTable(benchmark::State& state, const std::string& format)
{
    measure(state, format,
            [](const fs::path& file)
            {
                const auto table = aec::model::CTableFileReader::read(file, {});
                if (table.report.rows != tableRows)
                    throw std::runtime_error("the table lost rows");
            });
}

void BM_Import(benchmark::State& state, const std::string& format)
{
    const aec::model::CTableImporter importer;
    measure(state, format,
            [&](const fs::path& file)
            {
                aec::model::CProject project;
                const auto transaction =
                    project.getTransactionHost().openTransaction("Import table from file");
                benchmark::DoNotOptimize(importer.importTable(project, file));
                transaction->commit();
            });
}

} // namespace

BENCHMARK_CAPTURE(BM_PlainRead, csv, "csv")->Name("read/csv")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_ReadTable, csv, "csv")->Name("table/csv")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_Import, csv, "csv")->Name("import/csv")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_PlainRead, xlsx, "xlsx")->Name("read/xlsx")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_ReadTable, xlsx, "xlsx")->Name("table/xlsx")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_Import, xlsx, "xlsx")->Name("import/xlsx")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_PlainRead, ods, "ods")->Name("read/ods")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_ReadTable, ods, "ods")->Name("table/ods")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_Import, ods, "ods")->Name("import/ods")->Unit(benchmark::kMillisecond);

} // namespace benchmarks
