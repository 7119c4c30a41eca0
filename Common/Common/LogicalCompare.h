#pragma once

#include "Common/CommonApi.h"

#include <string_view>

namespace common
{

// Natural ("logical") order of names, the way a Windows user sees names ordered in the shell's
// file lists: "Item 2" < "item 3" < "Item 10", and "Wall" equals "wall". Returns -1 when `left`
// comes first, 1 when `right` comes first and 0 when the two are the same name to the user.
//
// This is the portable comparison, the same on every platform; compareLogical below is the one the
// explorer orders by.
//
// A name is read as a sequence of tokens: maximal runs of the ASCII digits 0-9, and single
// characters. A wchar_t is one code point (UTF-32), or half of a UTF-16 surrogate pair, which
// reads as the one character it encodes: a name compares the same with a 16-bit wchar_t (Windows)
// and a 32-bit one.
//
// Primary order: tokens compare one by one, the first difference decides.
//  - Two digit runs compare by numeric value, of any length and without overflow. Leading zeros
//    do not count: "Item 02", "Item 002" and "Item 2" are equal.
//  - A digit run sorts before any character: "Item1" < "Item-1" < "Item A".
//  - The end of a name sorts before anything: "Wall" < "Wall 1" < "Wall A".
//  - Characters compare by their base letter, without regard to case. The base letter is the
//    first code point of the canonical decomposition, case-folded with simple Unicode case
//    folding, so Σ, σ and ς are one letter, ẞ is ß, and the Kelvin sign is k. Base letters are
//    ordered as
//      1. the ASCII punctuation and the space:  ' - space ! " # $ % & ( ) * , . / : ; ? @ [ \ ] ^ _
//         ` { | } ~ + < = >
//      2. every other character in the order of Unicode's root collation (ICU's data): control
//         characters, other punctuation and symbols, digits other than ASCII (ordinary
//         characters, never part of a number), then the letters script by script (Latin a-z,
//         Greek, Cyrillic, ..., kana). A letter without a decomposition that the collation treats
//         as a variant or an expansion of another gets a place of its own right after it, so it
//         sorts after every word that starts with that letter: o < "oz" < ø < p, s < "sz" < ß < t;
//      3. Hangul syllables, then ideographs, then code points that are no character (unassigned,
//         private use, surrogates), each group in code point order.
//    Combining marks written as code points of their own (decomposed text) are characters of
//    their own too, in the collation's order of step 2; names are expected in composed form.
// Secondary order, only between names that are equal in primary order: the accents of the
// characters compare one by one from the start, no accent first, then in the collation's order
// of accents (á before à before â ...). Thus an accented letter sorts right after its base letter
// (a < ä < b, e < é < f), and "resume" < "résumé" < "resumes": accents never outweigh a
// difference in letters, numbers or length.
// Names that differ only in case, in leading zeros or in canonically equivalent forms of a single
// character (the ohm sign and omega) are equal; no other difference is ignored.
//
// Code units that are no Unicode code point (negative, or above U+10FFFF) sort after every
// character, by value among themselves.
//
// It is a strict weak ordering, fit to order a std::map: it compares the sequences of primary
// weights and then of accent weights lexicographically, and each character weighs the same
// wherever it stands. It allocates nothing, needs no locale, and runs in time linear in the
// length of the names, touching each code unit a bounded number of times.
COMMON_API int compareLogicalPortable(std::wstring_view left, std::wstring_view right) noexcept;

// The platform's natural order of names, -1, 0 or 1 as above. On Windows it is the shell's own
// (StrCmpLogicalW), so that the explorer orders names exactly as the host's other lists do; it
// reads each name up to its first NUL. Elsewhere it is the portable comparison.
#if defined(_WIN32)
COMMON_API int compareLogical(std::wstring_view left, std::wstring_view right) noexcept;
#else
inline int compareLogical(std::wstring_view left, std::wstring_view right) noexcept
{
    return compareLogicalPortable(left, right);
}
#endif

// Ascending natural order, for ordered containers; transparent, so string views find keys.
struct LogicalLess
{
    using is_transparent = void;

    bool operator()(std::wstring_view left, std::wstring_view right) const noexcept
    {
        return compareLogical(left, right) < 0;
    }
};

// Descending natural order.
struct LogicalGreater
{
    using is_transparent = void;

    bool operator()(std::wstring_view left, std::wstring_view right) const noexcept
    {
        return compareLogical(left, right) > 0;
    }
};

} // namespace common
