#pragma once

#include <cstdint>

// The per-character weights of the natural string comparison. The table behind them is generated
// at build time from ICU's Unicode data (Common/CommonTools), so comparing needs no ICU at run time.
//
// A weight packs two ranks: the primary rank of the character's case-folded base letter in the
// high bits, and the rank of its accents (0 for none) in the low `accentBits` bits. Two characters
// with equal weights are the same letter for the comparison.
namespace common::logical_weights
{

inline constexpr unsigned accentBits = 11;
inline constexpr std::uint32_t maxAccentRank = (1u << accentBits) - 1;

// Primary ranks 0 and 1 are the end of the text and an ASCII digit, so both sort before every
// character; then come the ASCII punctuation marks and then everything else.
inline constexpr std::uint32_t endOfText = 0;
inline constexpr std::uint32_t asciiDigit = 1u << accentBits;
inline constexpr std::uint32_t firstCharacterPrimary = 2;

// Code units that are no Unicode code point (wchar_t is a signed 32-bit type on Linux) weigh more
// than every character; the comparison orders them among themselves by value.
inline constexpr std::uint32_t beyondUnicode = 0xFFFFFFFFu;

inline constexpr std::uint32_t codePointLimit = 0x110000;
inline constexpr unsigned blockBits = 8;
inline constexpr std::uint32_t blockSize = 1u << blockBits;
inline constexpr std::uint32_t blockCount = codePointLimit >> blockBits;

// Weights of the ASCII range, looked up directly: names are mostly ASCII.
extern const std::uint32_t asciiWeights[128];

// Two-stage table over all code points: `blockIndex` picks one of the distinct blocks of
// `blockDeltas`. A block stores weight minus (code point << accentBits), so that the long runs in
// which the weight grows with the code point (ideographs, syllables, unassigned planes) collapse
// into a few shared blocks.
extern const std::uint16_t blockIndex[blockCount];
extern const std::uint32_t blockDeltas[];

inline std::uint32_t weightOf(std::uint32_t codePoint) noexcept
{
    if (codePoint < 128)
        return asciiWeights[codePoint];
    if (codePoint >= codePointLimit)
        return beyondUnicode;
    const std::uint32_t block = blockIndex[codePoint >> blockBits];
    return blockDeltas[(block << blockBits) | (codePoint & (blockSize - 1))] + (codePoint << accentBits);
}

} // namespace common::logical_weights
