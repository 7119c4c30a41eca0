// Writes the C++ source of the weight table behind the natural string comparison
// (Common/LogicalWeights.h), derived from the Unicode data of the ICU that it is built against.
//
//   LogicalWeightTableGenerator <output.cpp>
//
// For every code point:
//   - the base letter is the first code point of its canonical decomposition, case-folded (simple
//     folding, so that every character stays one letter: Σ, σ and ς fold to σ, ẞ to ß); the rest of
//     the decomposition is its accents. Hangul syllables decompose into jamo algorithmically, but
//     they are letters of their own, not jamo with accents, so they keep themselves as base.
//   - the primary rank orders the base letters: first the ASCII punctuation marks in the order
//     that a Windows user sees in the shell's file lists; then the other bases in the order of
//     ICU's root collation (controls, symbols, digits other than ASCII, then the letters of each
//     script), where ß sorts like "ss" and so lands between s and t; then Hangul syllables,
//     ideographs and code points without a character, in code point order.
//   - the accent rank orders the distinct accent sequences by the same collation.
// ASCII digits get the digit weight: the comparison reads them as numbers.

#include "Common/LogicalWeights.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <fmt/format.h>
#include <fmt/os.h>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <unicode/uchar.h>
#include <unicode/uclean.h>
#include <unicode/ucol.h>
#include <unicode/unorm2.h>
#include <unicode/utf16.h>
#include <vector>

namespace
{

namespace weights = common::logical_weights;

using CodePoints = std::u32string;
// Sort keys compare as unsigned bytes, which std::string's comparison does.
using SortKey = std::string;

constexpr std::u32string_view asciiPunctuationOrder = U"'- !\"#$%&()*,./:;?@[\\]^_`{|}~+<=>";

void checkStatus(UErrorCode status, const char* what)
{
    if (U_FAILURE(status))
        throw std::runtime_error(fmt::format("{} failed: {}", what, u_errorName(status)));
}

bool isAsciiDigit(char32_t codePoint)
{
    return codePoint >= U'0' && codePoint <= U'9';
}

bool isHangulSyllable(char32_t codePoint)
{
    return codePoint >= 0xAC00 && codePoint <= 0xD7A3;
}

bool isIdeograph(char32_t codePoint)
{
    return u_hasBinaryProperty(static_cast<UChar32>(codePoint), UCHAR_UNIFIED_IDEOGRAPH);
}

// Hangul syllables, ideographs, and code points that are no character (unassigned, private use,
// surrogates) come after all other characters, in this order and each in code point order (the
// dictionary order of the syllables). The root collation would order ideographs by radical and
// stroke count and mix circled forms in between the syllables, which leaves nothing for the table
// to share between neighbouring code points and would grow it fivefold.
bool sortsByCodePoint(char32_t codePoint)
{
    const auto category = u_charType(static_cast<UChar32>(codePoint));
    return isHangulSyllable(codePoint) || isIdeograph(codePoint) || category == U_UNASSIGNED ||
           category == U_PRIVATE_USE_CHAR || category == U_SURROGATE;
}

// Orders the code-point-ordered bases by their group: syllables, ideographs, non-characters.
int codePointGroupOf(char32_t codePoint)
{
    return isHangulSyllable(codePoint) ? 0 : (isIdeograph(codePoint) ? 1 : 2);
}

std::u16string toUtf16(const CodePoints& codePoints)
{
    std::u16string utf16;
    for (const char32_t codePoint : codePoints)
    {
        std::array<UChar, 2> units{};
        int32_t length = 0;
        UBool failed = false;
        U16_APPEND(units.data(), length, 2, static_cast<UChar32>(codePoint), failed);
        if (failed)
            throw std::runtime_error(
                fmt::format("cannot encode U+{:04X}", static_cast<std::uint32_t>(codePoint)));
        utf16.append(units.data(), static_cast<std::size_t>(length));
    }
    return utf16;
}

struct CollatorCloser
{
    void operator()(UCollator* collator) const { ucol_close(collator); }
};
using Collator = std::unique_ptr<UCollator, CollatorCloser>;

// The root collation at its finest strength, so that only canonically equivalent texts tie.
Collator openRootCollator()
{
    UErrorCode status = U_ZERO_ERROR;
    Collator collator(ucol_open("", &status));
    checkStatus(status, "ucol_open");
    ucol_setStrength(collator.get(), UCOL_IDENTICAL);
    return collator;
}

// The full canonical decomposition, or the code point itself when it has none.
CodePoints decompose(char32_t codePoint)
{
    if (isHangulSyllable(codePoint))
        return CodePoints(1, codePoint);
    UErrorCode status = U_ZERO_ERROR;
    static const UNormalizer2* const nfd = unorm2_getNFDInstance(&status);
    checkStatus(status, "unorm2_getNFDInstance");
    std::array<UChar, 64> buffer{};
    const int32_t length = unorm2_getDecomposition(nfd, static_cast<UChar32>(codePoint), buffer.data(),
                                                   static_cast<int32_t>(buffer.size()), &status);
    checkStatus(status, "unorm2_getDecomposition");
    if (length < 0)
        return CodePoints(1, codePoint);
    CodePoints result;
    for (int32_t offset = 0; offset < length;)
    {
        UChar32 decoded = 0;
        U16_NEXT(buffer.data(), offset, length, decoded);
        result.push_back(static_cast<char32_t>(decoded));
    }
    return result;
}

SortKey sortKeyOf(const Collator& collator, const CodePoints& text)
{
    const std::u16string utf16 = toUtf16(text);
    SortKey key(32, '\0');
    for (;;)
    {
        const int32_t needed =
            ucol_getSortKey(collator.get(), utf16.data(), static_cast<int32_t>(utf16.size()),
                            reinterpret_cast<std::uint8_t*>(key.data()), static_cast<int32_t>(key.size()));
        if (needed <= 0)
            throw std::runtime_error("ucol_getSortKey failed");
        const bool fitted = static_cast<std::size_t>(needed) <= key.size();
        key.resize(static_cast<std::size_t>(needed));
        if (fitted)
            return key;
    }
}

struct Letter
{
    char32_t base = 0;
    CodePoints accents;
};

// Decomposes, folds the base, and decomposes again where folding made a decomposable letter.
Letter letterOf(char32_t codePoint)
{
    Letter letter{codePoint, {}};
    for (int round = 0; round < 4; ++round)
    {
        const CodePoints decomposed = decompose(letter.base);
        const auto folded =
            static_cast<char32_t>(u_foldCase(static_cast<UChar32>(decomposed.front()), U_FOLD_CASE_DEFAULT));
        letter.accents.insert(0, decomposed.substr(1));
        if (folded == letter.base && decomposed.size() == 1)
            return letter;
        letter.base = folded;
    }
    throw std::runtime_error(
        fmt::format("U+{:04X} does not settle on a base letter", static_cast<std::uint32_t>(codePoint)));
}

// Ranks the distinct items by their collation key, ties by the items themselves.
template <class Item>
std::map<Item, std::uint32_t> rankByCollation(const Collator& collator, const std::vector<Item>& items,
                                              std::uint32_t firstRank, auto textOf)
{
    std::vector<std::pair<SortKey, Item>> keyed;
    keyed.reserve(items.size());
    for (const Item& item : items)
        keyed.emplace_back(sortKeyOf(collator, textOf(item)), item);
    std::sort(keyed.begin(), keyed.end());
    std::map<Item, std::uint32_t> ranks;
    std::uint32_t rank = firstRank;
    for (const auto& entry : keyed)
        ranks.emplace(entry.second, rank++);
    return ranks;
}

std::vector<std::uint32_t> computeWeights(const Collator& collator)
{
    std::vector<Letter> letters;
    letters.reserve(weights::codePointLimit);
    std::map<char32_t, std::uint32_t> primaryRanks;
    std::map<CodePoints, std::uint32_t> accentRanks;
    for (char32_t codePoint = 0; codePoint < weights::codePointLimit; ++codePoint)
    {
        letters.push_back(letterOf(codePoint));
        if (!isAsciiDigit(codePoint))
        {
            primaryRanks.emplace(letters.back().base, 0);
            if (!letters.back().accents.empty())
                accentRanks.emplace(letters.back().accents, 0);
        }
    }

    std::vector<char32_t> collatedBases;
    std::vector<char32_t> codePointOrderedBases;
    for (const auto& entry : primaryRanks)
    {
        if (isAsciiDigit(entry.first))
            throw std::runtime_error(
                fmt::format("a character has the ASCII digit {} as base", char(entry.first)));
        if (asciiPunctuationOrder.find(entry.first) != std::u32string_view::npos)
            continue;
        (sortsByCodePoint(entry.first) ? codePointOrderedBases : collatedBases).push_back(entry.first);
    }
    for (std::size_t index = 0; index < asciiPunctuationOrder.size(); ++index)
        primaryRanks.at(asciiPunctuationOrder[index]) =
            weights::firstCharacterPrimary + static_cast<std::uint32_t>(index);
    const auto firstCollatedRank =
        weights::firstCharacterPrimary + static_cast<std::uint32_t>(asciiPunctuationOrder.size());
    for (const auto& [base, rank] : rankByCollation(collator, collatedBases, firstCollatedRank,
                                                    [](char32_t base) { return CodePoints(1, base); }))
        primaryRanks.at(base) = rank;
    std::stable_sort(codePointOrderedBases.begin(), codePointOrderedBases.end(),
                     [](char32_t left, char32_t right)
                     { return codePointGroupOf(left) < codePointGroupOf(right); });
    auto nextRank = firstCollatedRank + static_cast<std::uint32_t>(collatedBases.size());
    for (const char32_t base : codePointOrderedBases)
        primaryRanks.at(base) = nextRank++;

    std::vector<CodePoints> accentSequences;
    for (const auto& entry : accentRanks)
        accentSequences.push_back(entry.first);
    accentRanks =
        rankByCollation(collator, accentSequences, 1, [](const CodePoints& accents) { return accents; });
    if (accentRanks.size() > weights::maxAccentRank)
        throw std::runtime_error(
            fmt::format("{} accent sequences do not fit the weight", accentRanks.size()));
    if ((weights::beyondUnicode >> weights::accentBits) <= nextRank)
        throw std::runtime_error("the primary ranks do not fit the weight");

    std::vector<std::uint32_t> result(weights::codePointLimit);
    for (char32_t codePoint = 0; codePoint < weights::codePointLimit; ++codePoint)
    {
        const Letter& letter = letters[codePoint];
        if (isAsciiDigit(codePoint))
        {
            result[codePoint] = weights::asciiDigit;
            continue;
        }
        const std::uint32_t accentRank = letter.accents.empty() ? 0 : accentRanks.at(letter.accents);
        result[codePoint] = (primaryRanks.at(letter.base) << weights::accentBits) | accentRank;
    }
    return result;
}

void writeArray(fmt::ostream& out, const std::vector<std::uint32_t>& values, int digits)
{
    for (std::size_t index = 0; index < values.size(); ++index)
        out.print("{}0x{:0{}x},", index % 8 == 0 ? "\n   " : " ", values[index], digits);
    out.print("\n}};\n\n");
}

void writeTable(const std::string& path, const std::vector<std::uint32_t>& weightOfCodePoint)
{
    std::map<std::vector<std::uint32_t>, std::uint32_t> blockNumbers;
    std::vector<std::uint32_t> blockIndex;
    std::vector<std::uint32_t> blockDeltas;
    for (std::uint32_t block = 0; block < weights::blockCount; ++block)
    {
        std::vector<std::uint32_t> deltas(weights::blockSize);
        for (std::uint32_t offset = 0; offset < weights::blockSize; ++offset)
        {
            const std::uint32_t codePoint = (block << weights::blockBits) | offset;
            deltas[offset] = weightOfCodePoint[codePoint] - (codePoint << weights::accentBits);
        }
        const auto [found, added] =
            blockNumbers.emplace(deltas, static_cast<std::uint32_t>(blockNumbers.size()));
        if (added)
            blockDeltas.insert(blockDeltas.end(), deltas.begin(), deltas.end());
        blockIndex.push_back(found->second);
    }
    if (blockNumbers.size() > 0xFFFF)
        throw std::runtime_error("too many distinct blocks for a 16-bit block index");

    auto out = fmt::output_file(path);
    out.print("// Generated by LogicalWeightTableGenerator from ICU {}'s Unicode data. Do not edit.\n\n",
              U_ICU_VERSION);
    out.print("#include \"Common/LogicalWeights.h\"\n\nnamespace common::logical_weights\n{{\n\n");
    out.print("const std::uint32_t asciiWeights[128] = {{");
    writeArray(out, std::vector<std::uint32_t>(weightOfCodePoint.begin(), weightOfCodePoint.begin() + 128),
               8);
    out.print("const std::uint16_t blockIndex[blockCount] = {{");
    writeArray(out, blockIndex, 4);
    out.print("const std::uint32_t blockDeltas[{}] = {{", blockDeltas.size());
    writeArray(out, blockDeltas, 8);
    out.print("}} // namespace common::logical_weights\n");
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
    {
        std::fprintf(stderr, "usage: %s <output.cpp>\n", argc > 0 ? argv[0] : "LogicalWeightTableGenerator");
        return 2;
    }
    try
    {
        {
            const Collator collator = openRootCollator();
            writeTable(argv[1], computeWeights(collator));
        }
        u_cleanup();
        return 0;
    }
    catch (const std::exception& error)
    {
        std::fprintf(stderr, "LogicalWeightTableGenerator: %s\n", error.what());
        return 1;
    }
}
