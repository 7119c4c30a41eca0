#include "Common/LogicalCompare.h"

#include <algorithm>
#include <cstdint>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace
{

using common::compareLogicalPortable;
using Names = std::vector<std::wstring>;

const std::wstring asciiPunctuationOrder = L"'- !\"#$%&()*,./:;?@[\\]^_`{|}~+<=>";

// Every pair of `names` in ascending order, checked both ways round.
void expectAscending(const Names& names)
{
    for (std::size_t first = 0; first < names.size(); ++first)
        for (std::size_t second = first + 1; second < names.size(); ++second)
        {
            EXPECT_EQ(compareLogicalPortable(names[first], names[second]), -1)
                << names[first] << " < " << names[second];
            EXPECT_EQ(compareLogicalPortable(names[second], names[first]), 1)
                << names[second] << " > " << names[first];
        }
}

void expectEquivalent(const Names& names)
{
    for (const auto& first : names)
        for (const auto& second : names)
            EXPECT_EQ(compareLogicalPortable(first, second), 0) << first << " == " << second;
}

TEST(LogicalCompareTest, NumbersByValueLettersWithoutCase)
{
    expectAscending({L"Item 2", L"item 3", L"Item 10"});
    expectEquivalent({L"Wall", L"wall", L"WALL"});
    expectEquivalent({L"ΣΟΦΟΣ", L"σοφος", L"σοφοσ", L"Σοφος"});
    expectEquivalent({L"Straße", L"STRAẞE"});
    expectEquivalent({L"Этаж 3", L"ЭТАЖ 03"});
    expectAscending({L"1.9", L"1.10", L"2.1", L"10.0", L"Level 2 Room 10", L"Level 10 Room 2"});
}

TEST(LogicalCompareTest, DigitRunsOfAnyLengthWithoutLeadingZeros)
{
    // 2^64 - 1, 2^64 and 2^64 + 5, which a 64-bit accumulator would wrap below 7.
    expectAscending({L"Sheet 7", L"Sheet 18446744073709551615", L"Sheet 18446744073709551616",
                     L"Sheet 18446744073709551621", L"Sheet 100000000000000000000000000000",
                     L"Sheet 100000000000000000000000000001"});
    // A difference in the middle of a run is decided by the whole runs.
    expectAscending({L"A1", L"A1a", L"A2", L"A12", L"A12a", L"A19", L"A123"});

    const std::wstring manyZeros(40, L'0');
    expectEquivalent({L"Item 2", L"Item 02", L"Item 0002", L"item 2"});
    expectEquivalent({L"0", L"00", L"000"});
    expectEquivalent({L"Item 3", L"Item " + manyZeros + L"3"});
    expectAscending(
        {L"Item", L"Item 0", L"Item 000001", L"Item 2", L"Item " + manyZeros + L"3", L"Item 0010"});
    // Leading zeros shift the positions, not what follows.
    expectAscending({L"Item 07a", L"Item 7b", L"Item 007c"});
}

TEST(LogicalCompareTest, EndThenDigitsThenPunctuationThenLetters)
{
    Names names{L"Door", L"Door0", L"Door9z"};
    for (const wchar_t mark : asciiPunctuationOrder)
        names.push_back(L"Door" + std::wstring(1, mark));
    // Other symbols, then digits other than ASCII, which are characters and never numbers.
    names.insert(names.end(), {L"Door€", L"Door٣", L"DoorA", L"Doorz", L"Doorα"});
    expectAscending(names);

    expectAscending({L"", L"0", L" ", L"A", L"Wall", L"Wall 1", L"Wall A"});
    // Arabic-Indic ten is the characters one and zero, so it sorts before three.
    expectAscending({L"Door 10", L"Door ١٠", L"Door ٣"});
}

TEST(LogicalCompareTest, AccentsBesideTheirBaseLetter)
{
    expectAscending({L"a", L"ä", L"ab", L"b"});
    expectAscending({L"e", L"é", L"f"});
    expectAscending({L"s", L"ss", L"sz", L"ß", L"t"});
    expectAscending({L"resume", L"résumé", L"resumes"});
    // The first accent difference decides among names equal in their letters.
    expectAscending({L"aa", L"aá", L"áa", L"áá", L"ab"});
    expectEquivalent({L"Äpfel", L"äpfel", L"ÄPFEL"});
}

// The shared start of two names is skipped in blocks of code units; a difference must be found
// wherever it lies, behind any number of differences of case, at both edges of every block.
TEST(LogicalCompareTest, DifferenceFoundAtEveryPositionBehindCaseDifferences)
{
    const std::wstring letters = L"abcdefghijklmnopqrstuvwxy";
    for (std::size_t length = 1; length <= letters.size(); ++length)
        for (std::size_t at = 0; at < length; ++at)
        {
            const std::wstring name = letters.substr(0, length);
            std::wstring shouted = name;
            std::transform(shouted.begin(), shouted.begin() + static_cast<std::ptrdiff_t>(at + 1),
                           shouted.begin(),
                           [](wchar_t letter) { return static_cast<wchar_t>(letter - 0x20); });
            std::wstring nextLetter = name;
            ++nextLetter[at];
            std::wstring accented = name;
            accented[at] = L'é';
            std::wstring digit = name;
            digit[at] = L'7';
            SCOPED_TRACE(testing::Message() << "length " << length << ", difference at " << at);
            expectEquivalent({name, shouted});
            expectAscending({digit, name, nextLetter});
            expectAscending({shouted.substr(0, at) + L'e', accented, shouted.substr(0, at) + L'f'});
            expectAscending({shouted.substr(0, at), shouted.substr(0, at + 1) + name.substr(at + 1)});
        }
}

// Only a 32-bit wchar_t (Linux) holds code units beyond Unicode.
#if __SIZEOF_WCHAR_T__ == 4
TEST(LogicalCompareTest, CodeUnitsBeyondUnicodeLastByValue)
{
    Names names;
    for (const std::uint32_t unit : {0x7Au, 0x10FFFFu, 0x110000u, 0x110001u, 0xFFFFFFFFu})
        names.push_back(L"Door " + std::wstring(1, static_cast<wchar_t>(unit)));
    expectAscending(names);
}
#endif

template <class Value>
int orderOf(const Value& left, const Value& right);

// A name as UTF-16: characters beyond the Basic Multilingual Plane as surrogate pairs.
std::wstring asUtf16(const std::u32string& name)
{
    std::wstring units;
    for (const char32_t character : name)
        if (character >= 0x10000)
        {
            units += static_cast<wchar_t>(0xD800 + ((character - 0x10000) >> 10));
            units += static_cast<wchar_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
        }
        else
            units += static_cast<wchar_t>(character);
    return units;
}

// The name as this platform's wchar_t holds it: UTF-32 on Linux, UTF-16 on Windows.
std::wstring asNative(const std::u32string& name)
{
    if constexpr (sizeof(wchar_t) == 4)
        return std::wstring(name.begin(), name.end());
    else
        return asUtf16(name);
}

// The shared start of two names is skipped in blocks of code units, 16-bit ones on Windows, 32-bit
// ones on Linux: a pair must read as its one character there too, wherever the difference falls.
TEST(LogicalCompareTest, CharactersBeyondTheBasicPlaneReadAlikeAsPairsAndAsOneUnit)
{
    // A symbol before the letters, Latin before Deseret (whose letters share their high surrogate and
    // differ in the low one, 𐐀 and 𐐠 by the bit that folds ASCII case), ideographs in code point
    // order across the planes.
    const std::vector<std::u32string> ascending{U"x😀", U"xa", U"x𐐀 1", U"x𐐀 2", U"x𐐁", U"x𐐠", U"x一", U"x𠀀"};
    // Shared starts of every length up to past two blocks of sixteen units, in capitals in one name
    // and small letters in the other.
    const std::u32string lower = U"abcdefghijklmnopqrstuvwxyzabcdefghijkl";
    for (std::size_t length = 0; length <= lower.size(); ++length)
    {
        const std::u32string start = lower.substr(0, length);
        std::u32string shouted = start;
        std::transform(start.begin(), start.end(), shouted.begin(),
                       [](char32_t letter) { return static_cast<char32_t>(letter - 0x20); });
        SCOPED_TRACE(testing::Message() << "shared start of " << length);
        Names native;
        Names utf16;
        for (std::size_t at = 0; at < ascending.size(); ++at)
        {
            native.push_back(asNative((at % 2 == 0 ? start : shouted) + ascending[at]));
            utf16.push_back(asUtf16((at % 2 == 0 ? shouted : start) + ascending[at]));
        }
        expectAscending(native);
        expectAscending(utf16);
        for (std::size_t first = 0; first < ascending.size(); ++first)
            for (std::size_t second = 0; second < ascending.size(); ++second)
                EXPECT_EQ(compareLogicalPortable(native[first], utf16[second]), orderOf(first, second))
                    << first << " against " << second;

        // Deseret has case too.
        expectEquivalent({asNative(start + U"Door 𐐀"), asUtf16(shouted + U"door 𐐨")});
        // A surrogate without its partner is no character and sorts after every letter, also where
        // the name with the whole pair shares its first half.
        const std::wstring loneHigh =
            asNative(start) + std::wstring{L'x', static_cast<wchar_t>(0xD801), L'A'};
        expectAscending({asUtf16(shouted + U"x𐐀"), loneHigh});
        expectAscending({asNative(shouted + U"x𐐀"), loneHigh});
    }
}

TEST(LogicalCompareTest, ComparatorsOrderAndMergeMapKeys)
{
    std::map<std::wstring, int, common::LogicalLess> ascending;
    std::map<std::wstring, int, common::LogicalGreater> descending;
    for (const wchar_t* name : {L"Item 10", L"item 2", L"Item 2", L"ITEM 3", L"Item 02"})
    {
        ++ascending.try_emplace(name, 0).first->second;
        ++descending.try_emplace(name, 0).first->second;
    }
    const std::vector<std::pair<const std::wstring, int>> expected{
        {L"item 2", 3}, {L"ITEM 3", 1}, {L"Item 10", 1}};
    EXPECT_TRUE(std::equal(ascending.begin(), ascending.end(), expected.begin(), expected.end()));
    EXPECT_TRUE(std::equal(descending.begin(), descending.end(), expected.rbegin(), expected.rend()));
    EXPECT_EQ(ascending.find(std::wstring_view(L"item 0010")), std::prev(ascending.end()));
}

// A plain, allocating model of the order for the letters that the corpus uses: the primary key
// lists numbers (as their significant digits behind their count, so that keys compare as values)
// and base letters; the accent key lists which letters carry an accent.
using ReferenceKey = std::pair<std::vector<std::pair<int, std::wstring>>, std::vector<int>>;

std::optional<ReferenceKey> referenceKeyOf(const std::wstring& name)
{
    // Every base letter in order: ß comes right after s, Greek after Latin.
    static const std::wstring bases = asciiPunctuationOrder + L"abcdefghijklmnopqrsßtuvwxyzακλσ";
    static const std::map<wchar_t, std::pair<wchar_t, int>> foreign = {
        {L'ä', {L'a', 1}}, {L'Ä', {L'a', 1}}, {L'ö', {L'o', 1}}, {L'Ö', {L'o', 1}},
        {L'ü', {L'u', 1}}, {L'Ü', {L'u', 1}}, {L'é', {L'e', 1}}, {L'É', {L'e', 1}},
        {L'ẞ', {L'ß', 0}}, {L'ά', {L'α', 1}}, {L'Ά', {L'α', 1}}, {L'Α', {L'α', 0}},
        {L'Κ', {L'κ', 0}}, {L'Λ', {L'λ', 0}}, {L'Σ', {L'σ', 0}}, {L'ς', {L'σ', 0}}};
    ReferenceKey key;
    for (std::size_t at = 0; at < name.size();)
    {
        const std::size_t runEnd = std::min(name.find_first_not_of(L"0123456789", at), name.size());
        if (runEnd > at)
        {
            const std::wstring run = name.substr(at, runEnd - at);
            const std::wstring digits = run.substr(std::min(run.find_first_not_of(L'0'), run.size()));
            key.first.emplace_back(0, static_cast<wchar_t>(digits.size()) + digits);
            at = runEnd;
            continue;
        }
        wchar_t base =
            name[at] >= L'A' && name[at] <= L'Z' ? static_cast<wchar_t>(name[at] - L'A' + L'a') : name[at];
        int accent = 0;
        if (const auto mapped = foreign.find(base); mapped != foreign.end())
            std::tie(base, accent) = mapped->second;
        const std::size_t rank = bases.find(base);
        if (rank == std::wstring::npos)
            return std::nullopt;
        key.first.emplace_back(1 + static_cast<int>(rank), L"");
        key.second.push_back(accent);
        ++at;
    }
    return key;
}

// A few thousand names such as a project holds, plus short strings over a tiny alphabet that
// produce many near ties. Seeded, and picks with plain modulo so that it is the same everywhere.
Names makeCorpus(std::size_t count, std::uint32_t seed)
{
    std::mt19937 generator(seed);
    const auto pick = [&generator](const auto& choices)
    {
        return std::wstring(choices[generator() % std::size(choices)]);
    };
    const wchar_t* const stems[] = {L"Sheet", L"sheet",  L"SHEET",   L"Level", L"level", L"Door",
                                    L"DOOR",  L"Wall",   L"wall",    L"Tür",   L"TÜR",   L"Étage",
                                    L"étage", L"Straße", L"STRASSE", L"Σκάλα", L"ΣΚΆΛΑ", L"Grønn",
                                    L"Этаж",  L"楼层",   L"Plan",    L"A",     L"a"};
    const wchar_t* const separators[] = {L" ", L"-", L"_", L".", L" - ", L"", L"/", L" ("};
    const wchar_t* const suffixes[] = {L"", L"", L" A", L"a", L")", L" (copy)", L"-B2", L".1", L" Süd", L"é"};
    const wchar_t tinyAlphabet[] = L"0129aAbäÄßsSé- .σςΣ";

    Names corpus;
    while (corpus.size() < count)
    {
        std::wstring name;
        if (generator() % 3 == 0)
        {
            for (auto length = generator() % 6; length > 0; --length)
                name += tinyAlphabet[generator() % (std::size(tinyAlphabet) - 1)];
        }
        else
        {
            for (auto parts = 1 + generator() % 2; parts > 0; --parts)
            {
                name += pick(stems);
                name += pick(separators);
                name += std::wstring(generator() % 4 == 0 ? generator() % 3 : 0, L'0');
                for (auto digits = generator() % 5 == 0 ? 18 + generator() % 8 : 1 + generator() % 3;
                     digits > 0; --digits)
                    name += static_cast<wchar_t>(L'0' + generator() % 10);
            }
            name += pick(suffixes);
        }
        corpus.push_back(name);
    }
    return corpus;
}

template <class Value>
int orderOf(const Value& left, const Value& right)
{
    return left < right ? -1 : (right < left ? 1 : 0);
}

TEST(LogicalCompareTest, StrictWeakOrderingAgreeingWithReferenceOnCorpus)
{
    const Names corpus = makeCorpus(2500, 20240611);

    // Binary insertion: unlike std::sort it stays in bounds whatever the comparison does.
    std::vector<std::size_t> sorted;
    for (std::size_t index = 0; index < corpus.size(); ++index)
        sorted.insert(std::upper_bound(sorted.begin(), sorted.end(), index,
                                       [&corpus](std::size_t left, std::size_t right)
                                       { return compareLogicalPortable(corpus[left], corpus[right]) < 0; }),
                      index);
    // Ranks along the sorted list: it is a strict weak ordering on the corpus exactly when every
    // pair compares as its ranks do, which covers irreflexivity, antisymmetry and the
    // transitivity of both "less" and "equivalent".
    std::vector<std::ptrdiff_t> rank(sorted.size());
    for (std::size_t at = 1; at < sorted.size(); ++at)
        rank[at] =
            rank[at - 1] + (compareLogicalPortable(corpus[sorted[at - 1]], corpus[sorted[at]]) < 0 ? 1 : 0);

    std::vector<std::optional<ReferenceKey>> reference;
    for (const std::size_t index : sorted)
        reference.push_back(referenceKeyOf(corpus[index]));

    std::size_t referencePairs = 0;
    std::size_t failures = 0;
    for (std::size_t first = 0; first < sorted.size() && failures < 10; ++first)
        for (std::size_t second = first; second < sorted.size() && failures < 10; ++second)
        {
            const std::wstring& left = corpus[sorted[first]];
            const std::wstring& right = corpus[sorted[second]];
            const int expected = orderOf(rank[first], rank[second]);
            const int forward = compareLogicalPortable(left, right);
            const int backward = compareLogicalPortable(right, left);
            if (forward != expected || backward != -expected)
                ADD_FAILURE() << ++failures << ": " << left << " against " << right << " gives " << forward
                              << " and " << backward << ", ranks give " << expected;
            if (reference[first] && reference[second])
            {
                ++referencePairs;
                const int referenceOrder = orderOf(*reference[first], *reference[second]);
                if (referenceOrder != forward)
                    ADD_FAILURE() << ++failures << ": " << left << " against " << right << " gives "
                                  << forward << ", the reference " << referenceOrder;
            }
        }
    EXPECT_GT(referencePairs, corpus.size() * corpus.size() / 4)
        << "the reference covers too little of the corpus";
    EXPECT_LT(rank.back() + 1, static_cast<std::ptrdiff_t>(corpus.size()))
        << "the corpus holds no equivalent names";
}

} // namespace
