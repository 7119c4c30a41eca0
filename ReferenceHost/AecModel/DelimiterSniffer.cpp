#include "AecModel/DelimiterSniffer.h"

#include "AecModel/CsvReader.h"
#include "Common/Exception.h"

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <vector>

namespace aec::model
{

namespace
{

// Enough records to tell a pattern from chance, few enough to cost nothing on large files.
constexpr std::size_t sampledRecords = 20;

// In order of preference between delimiters that fit equally well.
constexpr std::array<char, 4> candidates{'\t', '|', ';', ','};

struct Fit
{
    // Records with the most common field count, out of those sampled.
    double share = 0;
    std::size_t fields = 0;

    bool splits() const noexcept { return fields > 1; }
};

Fit fitOf(std::string_view text, char delimiter)
{
    CCsvReader reader(text, delimiter);
    std::vector<std::string> fields;
    std::map<std::size_t, std::size_t> recordsByFieldCount;
    std::size_t records = 0;
    try
    {
        for (; records < sampledRecords && reader.next(fields); ++records)
            ++recordsByFieldCount[fields.size()];
    }
    catch (const common::EException&)
    {
        // A quote that this delimiter leaves open to the end: judged by the records before it.
    }
    if (records == 0)
        return {};
    const auto mostCommon =
        std::ranges::max_element(recordsByFieldCount, {}, [](const auto& entry) { return entry.second; });
    return {static_cast<double>(mostCommon->second) / static_cast<double>(records), mostCommon->first};
}

} // namespace

char CDelimiterSniffer::sniff(std::string_view text)
{
    char best = ',';
    Fit bestFit;
    for (const char delimiter : candidates)
    {
        const Fit fit = fitOf(text, delimiter);
        if (fit.splits() && fit.share > bestFit.share)
        {
            best = delimiter;
            bestFit = fit;
        }
    }
    return best;
}

} // namespace aec::model
