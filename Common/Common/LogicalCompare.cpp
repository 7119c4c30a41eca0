#include "Common/LogicalCompare.h"

#include "Common/LogicalWeights.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

// No library orders names this way without allocating or per-call setup (ICU's numeric collator
// needs UTF-16 and is several times slower), so the walk is written out here; the Unicode knowledge
// it needs is the generated weight table.

namespace common
{
namespace
{

namespace weights = logical_weights;

std::uint32_t codeUnit(wchar_t character) noexcept
{
    return static_cast<std::uint32_t>(character);
}

// One character of a name: a code unit, or the two code units of a UTF-16 surrogate pair.
struct Character
{
    std::uint32_t codePoint;
    std::size_t units;
};

bool isHighSurrogate(std::uint32_t unit) noexcept
{
    return unit - 0xD800u < 0x400u;
}

bool isLowSurrogate(std::uint32_t unit) noexcept
{
    return unit - 0xDC00u < 0x400u;
}

// Windows hands names over as UTF-16 (a 16-bit wchar_t), Linux as UTF-32, so a character outside
// the Basic Multilingual Plane arrives as a surrogate pair or as one code unit. Both read as the
// one code point, on either platform, so that a name sorts the same wherever it is compared. A
// surrogate without its partner is a code point of its own (one that is no character).
Character characterAt(const wchar_t* at, const wchar_t* end) noexcept
{
    const std::uint32_t unit = codeUnit(*at);
    if (isHighSurrogate(unit) && end - at >= 2 && isLowSurrogate(codeUnit(at[1])))
        return {0x10000u + ((unit - 0xD800u) << 10) + (codeUnit(at[1]) - 0xDC00u), 2};
    return {unit, 1};
}

bool isAsciiDigit(wchar_t character) noexcept
{
    return codeUnit(character) - U'0' < 10u;
}

int orderOf(std::uint32_t left, std::uint32_t right) noexcept
{
    return left < right ? -1 : 1;
}

// An ASCII capital as its small letter; every other code unit as it is. Two ASCII characters that
// fold alike weigh alike, so the prefix scan below may skip differences of case.
wchar_t foldAsciiCase(wchar_t character) noexcept
{
    return codeUnit(character) - U'A' < 26u ? static_cast<wchar_t>(character | 0x20) : character;
}

#if defined(__SSE2__)
#define COMMON_LOGICAL_COMPARE_SSE2 1
#endif

#if defined(COMMON_LOGICAL_COMPARE_SSE2)
static_assert(sizeof(wchar_t) == 4 || sizeof(wchar_t) == 2, "the scan compares UTF-32 or UTF-16 code units");

// Code units in one 16-byte register: four of UTF-32 (Linux), eight of UTF-16 (Windows).
constexpr std::size_t unitsPerLoad = 16 / sizeof(wchar_t);

// The block helpers below are forced inline: GCC keeps them out of line otherwise, and the calls
// cost a sixth of a comparison of neighbouring names.

// One register of code units from `at`, ASCII capitals folded to small letters. The comparisons
// are signed: UTF-32 code units beyond Unicode and UTF-16 code units from U+8000 on (the
// surrogates among them) are negative and fold to themselves.
[[gnu::always_inline]] inline __m128i loadFolded(const wchar_t* at) noexcept
{
    const __m128i units = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
    if constexpr (sizeof(wchar_t) == 4)
    {
        const __m128i capital = _mm_and_si128(_mm_cmpgt_epi32(units, _mm_set1_epi32(U'A' - 1)),
                                              _mm_cmpgt_epi32(_mm_set1_epi32(U'Z' + 1), units));
        return _mm_or_si128(units, _mm_and_si128(capital, _mm_set1_epi32(0x20)));
    }
    else
    {
        const __m128i capital = _mm_and_si128(_mm_cmpgt_epi16(units, _mm_set1_epi16(u'A' - 1)),
                                              _mm_cmpgt_epi16(_mm_set1_epi16(u'Z' + 1), units));
        return _mm_or_si128(units, _mm_and_si128(capital, _mm_set1_epi16(0x20)));
    }
}

// One bit per byte of one register of code units, set where left and right match.
[[gnu::always_inline]] inline std::uint32_t matchingBytes(const wchar_t* left, const wchar_t* right) noexcept
{
    const __m128i leftUnits = loadFolded(left);
    const __m128i rightUnits = loadFolded(right);
    if constexpr (sizeof(wchar_t) == 4)
        return static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_cmpeq_epi32(leftUnits, rightUnits)));
    else
        return static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_cmpeq_epi16(leftUnits, rightUnits)));
}

// The same for two registers.
[[gnu::always_inline]] inline std::uint32_t matchingBytes2(const wchar_t* left, const wchar_t* right) noexcept
{
    return matchingBytes(left, right) | (matchingBytes(left + unitsPerLoad, right + unitsPerLoad) << 16);
}

// The first code unit that does not match, from the mask of the bytes that do.
std::size_t firstMismatch(std::uint32_t matchingBytes) noexcept
{
    return static_cast<std::size_t>(std::countr_zero(~matchingBytes)) / sizeof(wchar_t);
}
#endif

// Length of the common prefix of two texts of at least `length` code units, where ASCII letters
// match without regard to case. Neighbouring names in a sorted list share long prefixes ("Level 03
// - Sheet 0012 ..."), often in different case ("DOOR D-12", "Door D-14"), and this scan is most of
// the work of comparing them. The standard algorithms (std::mismatch) go one element at a time and
// wmemcmp neither folds case nor tells where the texts differ, so the scan compares two registers
// of code units per step with SSE2, which every x86-64 processor has: eight UTF-32 units or sixteen
// UTF-16 units. Elsewhere it goes one at a time. It may stop between the two halves of a surrogate
// pair; the caller steps back to the whole character.
std::size_t commonPrefixLength(const wchar_t* left, const wchar_t* right, std::size_t length) noexcept
{
    // Names from unrelated places of a list mostly differ at once; they need no block compare.
    if (length == 0 || foldAsciiCase(left[0]) != foldAsciiCase(right[0]))
        return 0;
#if defined(COMMON_LOGICAL_COMPARE_SSE2)
    constexpr std::size_t unitsPerBlock = 2 * unitsPerLoad;
    if (length >= unitsPerBlock)
    {
        std::size_t same = 0;
        for (; same + unitsPerBlock <= length; same += unitsPerBlock)
            if (const std::uint32_t matching = matchingBytes2(left + same, right + same);
                matching != 0xFFFFFFFFu)
                return same + firstMismatch(matching);
        // The last block ends at the end and overlaps units known to match, so its first mismatch
        // lies beyond them.
        if (same == length)
            return length;
        const std::uint32_t matching =
            matchingBytes2(left + length - unitsPerBlock, right + length - unitsPerBlock);
        return matching == 0xFFFFFFFFu ? length : length - unitsPerBlock + firstMismatch(matching);
    }
    if (length >= unitsPerLoad)
    {
        if (const std::uint32_t matching = matchingBytes(left, right); matching != 0xFFFFu)
            return firstMismatch(matching);
        const std::uint32_t matching =
            matchingBytes(left + length - unitsPerLoad, right + length - unitsPerLoad);
        return matching == 0xFFFFu ? length : length - unitsPerLoad + firstMismatch(matching | 0xFFFF0000u);
    }
#endif
    std::size_t same = 1;
    while (same < length && foldAsciiCase(left[same]) == foldAsciiCase(right[same]))
        ++same;
    return same;
}

std::size_t digitRunLength(const wchar_t* position, const wchar_t* end) noexcept
{
    const wchar_t* const start = position;
    while (position < end && isAsciiDigit(*position))
        ++position;
    return static_cast<std::size_t>(position - start);
}

// Compares the digit runs that start at `left` and `right` by value and moves both past their
// runs. Without leading zeros the longer run is the larger number and runs of one length compare
// digit by digit, so runs of any length compare without overflow.
int compareDigitRuns(const wchar_t*& left, const wchar_t* leftEnd, const wchar_t*& right,
                     const wchar_t* rightEnd) noexcept
{
    while (left < leftEnd && *left == L'0')
        ++left;
    while (right < rightEnd && *right == L'0')
        ++right;
    const std::size_t leftDigits = digitRunLength(left, leftEnd);
    const std::size_t rightDigits = digitRunLength(right, rightEnd);
    if (leftDigits != rightDigits)
        return leftDigits < rightDigits ? -1 : 1;
    for (std::size_t digit = 0; digit < leftDigits; ++digit)
        if (left[digit] != right[digit])
            return orderOf(codeUnit(left[digit]), codeUnit(right[digit]));
    left += leftDigits;
    right += rightDigits;
    return 0;
}

} // namespace

int compareLogicalPortable(std::wstring_view leftText, std::wstring_view rightText) noexcept
{
    const wchar_t* left = leftText.data();
    const wchar_t* const leftEnd = left + leftText.size();
    const wchar_t* right = rightText.data();
    const wchar_t* const rightEnd = right + rightText.size();
    // The first accent difference decides only when nothing else does.
    int accentOrder = 0;
    for (;;)
    {
        // Each round skips what both names share and then looks at the first difference. A round
        // starts after a non-digit, so a digit run that reaches into the shared part starts inside
        // it and is the same in both names up to the difference.
        const wchar_t* const roundStart = left;
        std::size_t same = commonPrefixLength(
            left, right, static_cast<std::size_t>(std::min(leftEnd - left, rightEnd - right)));
        // The difference may split a surrogate pair whose first half both names share; the round
        // then looks at the whole characters.
        if (same != 0 && isHighSurrogate(codeUnit(left[same - 1])) &&
            ((left + same < leftEnd && isLowSurrogate(codeUnit(left[same]))) ||
             (right + same < rightEnd && isLowSurrogate(codeUnit(right[same])))))
            --same;
        left += same;
        right += same;

        const Character leftCharacter = left < leftEnd ? characterAt(left, leftEnd) : Character{0, 0};
        const Character rightCharacter = right < rightEnd ? characterAt(right, rightEnd) : Character{0, 0};
        const std::uint32_t leftWeight =
            left < leftEnd ? weights::weightOf(leftCharacter.codePoint) : weights::endOfText;
        const std::uint32_t rightWeight =
            right < rightEnd ? weights::weightOf(rightCharacter.codePoint) : weights::endOfText;
        // Most differences are between two characters and settle the order at once; only a digit
        // at the difference may be part of a number that began in the shared part.
        if (leftWeight == weights::asciiDigit || rightWeight == weights::asciiDigit)
        {
            const wchar_t before = same != 0 ? left[-1] : L' ';
            if (before != L'0' && isAsciiDigit(before))
            {
                // The shared part holds the same significant digits in both names: the name whose
                // run goes on longer has the larger number, else the differing digits decide.
                const std::size_t leftRest = digitRunLength(left, leftEnd);
                const std::size_t rightRest = digitRunLength(right, rightEnd);
                if (leftRest != rightRest)
                    return leftRest < rightRest ? -1 : 1;
                return orderOf(codeUnit(*left), codeUnit(*right));
            }
            if (before == L'0')
            {
                // Zeros so far: they may be leading zeros, so compare the whole runs.
                std::size_t shared = 1;
                while (left - shared > roundStart &&
                       isAsciiDigit(left[-1 - static_cast<std::ptrdiff_t>(shared)]))
                    ++shared;
                left -= shared;
                right -= shared;
            }
            else if (leftWeight != rightWeight)
                return orderOf(leftWeight, rightWeight);
            const int numberOrder = compareDigitRuns(left, leftEnd, right, rightEnd);
            if (numberOrder != 0)
                return numberOrder;
            continue;
        }

        if (leftWeight != rightWeight)
        {
            if ((leftWeight ^ rightWeight) > weights::maxAccentRank)
                return orderOf(leftWeight, rightWeight);
            if (accentOrder == 0)
                accentOrder = orderOf(leftWeight, rightWeight);
        }
        else if (leftWeight == weights::endOfText)
        {
            return accentOrder;
        }
        else if (leftWeight == weights::beyondUnicode && *left != *right)
        {
            return orderOf(codeUnit(*left), codeUnit(*right));
        }
        left += leftCharacter.units;
        right += rightCharacter.units;
    }
}

} // namespace common
