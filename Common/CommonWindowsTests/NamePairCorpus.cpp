#include "NamePairCorpus.h"

#include <algorithm>
#include <random>
#include <stdexcept>
#include <string_view>

namespace common::test
{
namespace
{

using Pool = std::vector<std::u32string>;

// The detail classes: each a pool of variants, two of which make the differing part of a pair.
struct DetailClass
{
    std::string name;
    Pool variants;
};

const std::vector<DetailClass>& detailClasses()
{
    static const std::vector<DetailClass> classes{
        {"case", {U"wall", U"Wall", U"WALL", U"wAll", U"door", U"Door", U"DOOR", U"dOor", U"sheet"}},
        {"numbers", {U"2", U"10", U"3", U"100", U"99", U"1000", U"7", U"21", U"12", U"1", U"0"}},
        {"leading zeros", {U"02", U"002", U"2", U"010", U"10", U"0010", U"007", U"0", U"00", U"0003"}},
        {"long digit runs",
         {U"18446744073709551615", U"18446744073709551616", U"100000000000000000000000000000",
          U"99999999999999999999", U"4294967295", U"4294967296", U"000000000000000000000012",
          U"12345678901234567890123", U"12345678901234567890124"}},
        {"accents", {U"resume", U"résumé", U"résume", U"Résumé", U"cote", U"côte", U"coté", U"côté", U"Ærø"}},
        {"combining marks",
         {U"e\u0301", U"e\u0300", U"e\u0302", U"e", U"a\u0308", U"o\u0308\u0301", U"n\u0303", U"u\u031B"}},
        {"precomposed and decomposed",
         {U"\u00E9cole", U"e\u0301cole", U"\u00C5ngstr\u00F6m", U"A\u030Angstro\u0308m",
          U"\u212Bngstr\u00F6m", U"\u00F1u", U"n\u0303u", U"nu", U"ecole"}},
        {"punctuation and blanks",
         {U"Level-2", U"Level 2", U"Level_2", U"Level.2", U"Level  2", U"Level\u00A02", U"Level(2)",
          U"Level/2", U"Level'2", U"Level2", U"Level\t2", U"Level+2", U"Level~2"}},
        {"ignorable characters",
         {U"Stock\u00ADwerk", U"Stockwerk", U"Stock\u200Bwerk", U"Stock\u200Dwerk", U"Stock\u200Cwerk",
          U"Stock\uFEFFwerk", U"Stock\u2060werk", U"Stocke\uFE0Fwerk", U"Stock-werk"}},
        {"Greek",
         {U"Σκάλα", U"ΣΚΆΛΑ", U"σκαλα", U"Σκαλα", U"όροφος", U"Όροφος", U"οροφος", U"Αίθουσα", U"αιθουσα"}},
        {"Cyrillic",
         {U"Этаж", U"этаж", U"ЭТАЖ", U"Ёлка", U"Елка", U"ёлка", U"Стена", U"стена", U"Окно", U"Їжак"}},
        {"kana",
         {U"カタカナ", U"かたかな", U"ｶﾀｶﾅ", U"ガラス", U"がらす", U"ｶﾞﾗｽ", U"カラス", U"ヴ", U"ゔ", U"ー"}},
        {"ligatures",
         {U"\uFB01le", U"file", U"FILE", U"\u00E6ther", U"aether", U"\u0153uvre", U"oeuvre", U"\u0133s",
          U"ijs"}},
        {"Roman numerals",
         {U"\u2160", U"\u2161", U"\u2162", U"\u216B", U"\u2170", U"\u217B", U"I", U"II", U"XII", U"xii"}},
        {"beyond the Basic Plane",
         {U"\U0001F600", U"\U0001F601", U"\U00010400", U"\U00010428", U"\U0001D400", U"A", U"\U00020000",
          U"\u4E00", U"\U0001F3E0", U"\U00010401"}},
    };
    return classes;
}

// Stems and frames that a name of a building project has around the detail.
constexpr std::u32string_view stems[] = {U"Sheet ", U"Level ", U"Room ", U"Door D-", U"Wall ", U"Plan_",
                                         U"",       U"Étage ", U"Zone ", U"Area (",  U"Raum "};
constexpr std::u32string_view tails[] = {U"",        U"",    U" A", U"a",    U")",
                                         U" (copy)", U"-B2", U".1", U" Süd", U" 3"};

std::wstring toWide(const std::u32string& name)
{
    std::wstring units;
    for (const char32_t character : name)
        if (sizeof(wchar_t) == 2 && character >= 0x10000)
        {
            units += static_cast<wchar_t>(0xD800 + ((character - 0x10000) >> 10));
            units += static_cast<wchar_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
        }
        else
            units += static_cast<wchar_t>(character);
    return units;
}

} // namespace

NamePairCorpus::NamePairCorpus(std::size_t count, std::uint32_t seed)
{
    const std::vector<DetailClass>& classes = detailClasses();
    std::mt19937 generator(seed);
    // Plain modulo rather than a distribution, so that the corpus is the same with every library.
    const auto pick = [&generator](const auto& choices)
    {
        return choices[generator() % std::size(choices)];
    };
    pairs_.reserve(count);
    while (pairs_.size() < count)
    {
        const std::size_t pairClass = pairs_.size() % classes.size();
        const Pool& variants = classes[pairClass].variants;
        const std::u32string stem(pick(stems));
        const std::u32string tail(pick(tails));
        // Most pairs share the frame; some also differ after the detail, where the detail must
        // still decide or give way.
        const std::u32string rightTail = generator() % 4 == 0 ? std::u32string(pick(tails)) : tail;
        pairs_.push_back(
            {toWide(stem + pick(variants) + tail), toWide(stem + pick(variants) + rightTail), pairClass});
    }
}

const std::vector<std::string>& NamePairCorpus::classNames()
{
    static const std::vector<std::string> names = []
    {
        std::vector<std::string> result;
        for (const DetailClass& detailClass : detailClasses())
            result.push_back(detailClass.name);
        return result;
    }();
    return names;
}

std::size_t NamePairCorpus::classIndex(const std::string& name)
{
    const std::vector<std::string>& names = classNames();
    const auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end())
        throw std::out_of_range("no class of name pairs is called " + name);
    return static_cast<std::size_t>(found - names.begin());
}

} // namespace common::test
