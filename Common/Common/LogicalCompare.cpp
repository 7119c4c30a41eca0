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

bool isAsciiDigit(wchar_t character) noexcept
{
    return codeUnit(character) - U'0' < 10u;
}

int orderOf(std::uint32_t left, std::uint32_t right) noexcept
{
    return left < right ? -1 : 1;
}

// Length of the common prefix of two texts of at least `length` code units. Neighbouring names in
// a sorted list share long prefixes ("Level 03 - Sheet 0012 ..."), and this scan is most of the
// work of comparing them. The standard algorithms (std::mismatch) go one element at a time and
// wmemcmp does not tell where the texts differ, so the scan compares eight code units per step
// with SSE2, which every x86-64 processor has; elsewhere it goes one code unit at a time.
std::size_t commonPrefixLength(const wchar_t* left, const wchar_t* right, std::size_t length) noexcept
{
    std::size_t same = 0;
#if defined(__SSE2__)
    static_assert(sizeof(wchar_t) == 4, "the scan compares 32-bit code units");
    const auto load = [](const wchar_t* at)
    {
        return _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
    };
    for (; same + 8 <= length; same += 8)
    {
        const int lowEqual = _mm_movemask_epi8(_mm_cmpeq_epi32(load(left + same), load(right + same)));
        const int highEqual =
            _mm_movemask_epi8(_mm_cmpeq_epi32(load(left + same + 4), load(right + same + 4)));
        // One mask bit per byte: the first clear bit, divided by four, is the first differing code unit.
        const auto equalBytes =
            static_cast<std::uint32_t>(lowEqual) | (static_cast<std::uint32_t>(highEqual) << 16);
        if (equalBytes != 0xFFFFFFFFu)
            return same + static_cast<std::size_t>(std::countr_zero(~equalBytes)) / 4;
    }
#endif
    while (same < length && left[same] == right[same])
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

int compareLogical(std::wstring_view leftText, std::wstring_view rightText) noexcept
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
        const std::size_t same = commonPrefixLength(
            left, right, static_cast<std::size_t>(std::min(leftEnd - left, rightEnd - right)));
        left += same;
        right += same;

        const wchar_t before = same != 0 ? left[-1] : L' ';
        if (isAsciiDigit(before))
        {
            if (before != L'0')
            {
                // The shared part holds the same significant digits in both names: the name whose
                // run goes on longer has the larger number, else the differing digits decide.
                const std::size_t leftRest = digitRunLength(left, leftEnd);
                const std::size_t rightRest = digitRunLength(right, rightEnd);
                if (leftRest != rightRest)
                    return leftRest < rightRest ? -1 : 1;
                if (leftRest != 0)
                    return orderOf(codeUnit(*left), codeUnit(*right));
            }
            else
            {
                // Zeros so far: they may be leading zeros, so compare the whole runs.
                std::size_t shared = 1;
                while (left - shared > roundStart &&
                       isAsciiDigit(left[-1 - static_cast<std::ptrdiff_t>(shared)]))
                    ++shared;
                left -= shared;
                right -= shared;
                const int numberOrder = compareDigitRuns(left, leftEnd, right, rightEnd);
                if (numberOrder != 0)
                    return numberOrder;
                continue;
            }
        }

        const std::uint32_t leftWeight =
            left < leftEnd ? weights::weightOf(codeUnit(*left)) : weights::endOfText;
        const std::uint32_t rightWeight =
            right < rightEnd ? weights::weightOf(codeUnit(*right)) : weights::endOfText;
        if (leftWeight != rightWeight)
        {
            if ((leftWeight ^ rightWeight) > weights::maxAccentRank)
                return orderOf(leftWeight, rightWeight);
            if (accentOrder == 0)
                accentOrder = orderOf(leftWeight, rightWeight);
        }
        else if (leftWeight == weights::asciiDigit)
        {
            const int numberOrder = compareDigitRuns(left, leftEnd, right, rightEnd);
            if (numberOrder != 0)
                return numberOrder;
            continue;
        }
        else if (leftWeight == weights::endOfText)
        {
            return accentOrder;
        }
        else if (leftWeight == weights::beyondUnicode && *left != *right)
        {
            return orderOf(codeUnit(*left), codeUnit(*right));
        }
        ++left;
        ++right;
    }
}

} // namespace common
