#include "Common/FractionalIndex.h"

#include "Common/Check.h"
#include "Common/Exception.h"

#include <algorithm>
#include <array>
#include <bit>
#include <boost/algorithm/hex.hpp>
#include <cstring>
#include <fmt/format.h>
#include <iterator>
#include <limits>
#include <utility>

namespace common
{

namespace
{

using Bytes = CFractionalIndex::Bytes;

// How many random bytes a bisection writes once its result is already above the lower key: enough
// that two keys made between the same neighbours practically never collide.
constexpr std::size_t saltLength = 6;

// after() increments within the first six bytes and salts two more.
constexpr std::size_t afterPrefixLength = 6;
constexpr std::size_t afterLength = 8;

std::uint8_t randomByte(IRandomDevice& random)
{
    return static_cast<std::uint8_t>(random.next() & 0xFFu);
}

std::uint64_t bitLengthOf(const Bytes& bytes) noexcept
{
    if (bytes.empty())
        return 0;
    return 8 * static_cast<std::uint64_t>(bytes.size()) -
           static_cast<std::uint64_t>(std::countr_zero(bytes.back()));
}

// A key reads as zero beyond its last byte.
std::uint8_t byteAt(const Bytes& bytes, std::size_t position) noexcept
{
    return position < bytes.size() ? bytes[position] : std::uint8_t{0};
}

// Keys made by repeated insertion next to one neighbour share prefixes of many kilobytes, and the
// bisection scans them on every insertion. std::mismatch and std::find_if step byte by byte, while
// memcmp compares whole blocks with vector instructions, so the scans below skip whole blocks first
// and search only the last one byte by byte.
constexpr std::size_t scanBlock = 256;

// How many leading bytes two ranges of `length` bytes share.
std::size_t sharedRunLength(const std::uint8_t* left, const std::uint8_t* right, std::size_t length)
{
    std::size_t offset = 0;
    while (offset + scanBlock <= length && std::memcmp(left + offset, right + offset, scanBlock) == 0)
        offset += scanBlock;
    while (offset < length && left[offset] == right[offset])
        ++offset;
    return offset;
}

// How many leading zero bytes a range of `length` bytes holds.
std::size_t zeroRunLength(const std::uint8_t* bytes, std::size_t length)
{
    static constexpr std::array<std::uint8_t, scanBlock> zeros{};
    std::size_t offset = 0;
    while (offset + scanBlock <= length && std::memcmp(bytes + offset, zeros.data(), scanBlock) == 0)
        offset += scanBlock;
    while (offset < length && bytes[offset] == 0)
        ++offset;
    return offset;
}

// The first position at or after `from` where a and b differ, reading both as zero-padded to the
// longer length; that length when there is none.
std::size_t nextDifference(const Bytes& a, const Bytes& b, std::size_t from)
{
    const std::size_t sharedLength = std::min(a.size(), b.size());
    if (from < sharedLength)
    {
        from += sharedRunLength(a.data() + from, b.data() + from, sharedLength - from);
        if (from < sharedLength)
            return from;
    }
    const Bytes& longer = a.size() < b.size() ? b : a;
    if (from >= longer.size())
        return longer.size();
    return from + zeroRunLength(longer.data() + from, longer.size() - from);
}

// The raw bisection: a key above a and below b, made from a's bytes. At the first differing byte
// only the bits below the lowest differing bit are randomised, which keeps the result below b
// whatever the random bits; after that, a's bytes are raised until the result exceeds a, and then
// salted. Positions where a and b agree keep a's byte. The stretch behind the last salt byte keeps
// a's bytes (zeros past a's end) and is not trimmed: keys must come out byte for byte like those
// already stored in projects.
Bytes bisect(const Bytes& a, const Bytes& b, IRandomDevice& random)
{
    const std::size_t span = std::max(a.size(), b.size());
    Bytes result;
    result.reserve(span + saltLength + 1);
    result.assign(a.begin(), a.end());
    result.resize(span, 0);

    std::size_t saltWritten = 0;
    std::size_t position = nextDifference(a, b, 0);
    if (position < span)
    {
        const std::uint8_t aByte = byteAt(a, position);
        const std::uint8_t bByte = byteAt(b, position);
        COMMON_CHECK(aByte < bByte);
        const auto lowestDifferingBit = std::countr_zero(static_cast<std::uint8_t>(aByte ^ bByte));
        const auto bitsBelow = static_cast<std::uint8_t>((1u << lowestDifferingBit) - 1u);
        result[position] = static_cast<std::uint8_t>(aByte | (randomByte(random) & bitsBelow));
        bool aboveA = result[position] != aByte;

        while ((position = nextDifference(a, b, position + 1)) < span)
        {
            if (aboveA)
            {
                result[position] = randomByte(random);
                if (++saltWritten == saltLength)
                    break;
            }
            else
            {
                const std::uint8_t lower = byteAt(a, position);
                result[position] = static_cast<std::uint8_t>(lower | randomByte(random));
                aboveA = result[position] != lower;
            }
        }
    }
    for (; saltWritten < saltLength; ++saltWritten)
        result.push_back(randomByte(random));
    while (result.back() == 0)
        result.push_back(randomByte(random));
    return result;
}

} // namespace

CFractionalIndex::CFractionalIndex() : CFractionalIndex(Unchecked{}, Bytes{0x80}) {}

CFractionalIndex::CFractionalIndex(Bytes bytes) : CFractionalIndex(Unchecked{}, std::move(bytes))
{
    COMMON_PRECONDITION(!bytes_.empty() && bytes_.back() != 0);
}

CFractionalIndex::CFractionalIndex(Unchecked, Bytes bytes) noexcept
    : bitLength_(bitLengthOf(bytes)), bytes_(std::move(bytes))
{
}

CFractionalIndex::~CFractionalIndex() = default;

const CFractionalIndex& CFractionalIndex::defaultKey()
{
    static const CFractionalIndex key;
    return key;
}

CFractionalIndex CFractionalIndex::between(const CFractionalIndex& a, const CFractionalIndex& b)
{
    return between(a, b, defaultRandomDevice());
}

CFractionalIndex CFractionalIndex::between(const CFractionalIndex& a, const CFractionalIndex& b,
                                           IRandomDevice& random)
{
    COMMON_PRECONDITION(a < b);
    // One half marks an absent upper bound, so it never bounds from above.
    if (b == defaultKey())
        return after(a, random);
    return CFractionalIndex(Unchecked{}, bisect(a.bytes_, b.bytes_, random));
}

CFractionalIndex CFractionalIndex::after(const CFractionalIndex& a)
{
    return after(a, defaultRandomDevice());
}

CFractionalIndex CFractionalIndex::after(const CFractionalIndex& a, IRandomDevice& random)
{
    Bytes bytes(afterLength, 0);
    std::copy_n(a.bytes_.begin(), std::min(a.bytes_.size(), afterPrefixLength), bytes.begin());
    // The carry deliberately stops short of byte 0, so this never changes a key's first byte; a
    // carry through bytes 1 to 5 falls back to bisection towards one half instead.
    for (std::size_t position = afterPrefixLength - 1; position >= 1; --position)
    {
        if (bytes[position] < 0xFF)
        {
            ++bytes[position];
            bytes[afterLength - 2] = randomByte(random);
            do
                bytes[afterLength - 1] = randomByte(random);
            while (bytes[afterLength - 1] == 0);
            return CFractionalIndex(Unchecked{}, std::move(bytes));
        }
        bytes[position] = 0;
    }
    return CFractionalIndex(Unchecked{}, bisect(a.bytes_, defaultKey().bytes_, random));
}

std::vector<CFractionalIndex> CFractionalIndex::generate(const CFractionalIndex& a, const CFractionalIndex& b,
                                                         std::size_t count)
{
    return generate(a, b, count, defaultRandomDevice());
}

std::vector<CFractionalIndex> CFractionalIndex::generate(const CFractionalIndex& a, const CFractionalIndex& b,
                                                         std::size_t count, IRandomDevice& random)
{
    if (b == defaultKey())
    {
        std::vector<CFractionalIndex> keys;
        keys.reserve(count);
        const CFractionalIndex* previous = &a;
        for (std::size_t made = 0; made < count; ++made)
            previous = &keys.emplace_back(after(*previous, random));
        return keys;
    }

    // Empty placeholders cost no allocation; every one is overwritten below. The vector's own size
    // check throws std::length_error for an impossible count before any key is made.
    std::vector<CFractionalIndex> keys(count, CFractionalIndex(Unchecked{}, Bytes{}));

    // Positions run from 0 (a) through count + 1 (b); key i sits at position i + 1. Each interval
    // of positions gets its middle key from its two bounds, then both halves are queued. An explicit
    // stack keeps the depth off the call stack; it holds at most one pending sibling per level.
    const std::size_t upper = count + 1;
    const auto keyAt = [&](std::size_t position) -> const CFractionalIndex&
    {
        if (position == 0)
            return a;
        if (position == upper)
            return b;
        return keys[position - 1];
    };
    std::vector<std::pair<std::size_t, std::size_t>> pending;
    pending.reserve(std::numeric_limits<std::size_t>::digits + 1);
    pending.emplace_back(0, upper);
    while (!pending.empty())
    {
        const auto [low, high] = pending.back();
        pending.pop_back();
        if (low + 1 >= high)
            continue;
        const std::size_t middle = low + (high - low) / 2;
        keys[middle - 1] = between(keyAt(low), keyAt(high), random);
        pending.emplace_back(middle, high);
        pending.emplace_back(low, middle);
    }
    return keys;
}

std::string CFractionalIndex::toHex() const
{
    std::string text;
    text.reserve(2 * bytes_.size());
    boost::algorithm::hex_lower(bytes_.begin(), bytes_.end(), std::back_inserter(text));
    return text;
}

CFractionalIndex CFractionalIndex::fromHex(std::string_view text)
{
    Bytes bytes;
    bytes.reserve(text.size() / 2);
    try
    {
        boost::algorithm::unhex(text.begin(), text.end(), std::back_inserter(bytes));
    }
    catch (const boost::algorithm::hex_decode_error&)
    {
        bytes.clear();
    }
    // The text is quoted escaped: it may hold anything, also a zero byte that would end the message.
    if (bytes.empty() || bytes.back() == 0)
        throw EException(fmt::format("{:?} is not an order key: expected pairs of hexadecimal digits, "
                                     "at least one, the last pair not \"00\"",
                                     text));
    return CFractionalIndex(Unchecked{}, std::move(bytes));
}

} // namespace common
