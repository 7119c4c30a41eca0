#pragma once

#include "Common/CommonApi.h"
#include "Common/RandomDevice.h"

#include <compare>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace common
{

// An order key that lets an item be placed between two neighbours without renumbering anyone else.
// A key is a binary fraction in (0, 1): byte 0 holds the eight most significant bits after the
// binary point. Keys compare by their bytes only, lexicographically as unsigned values, a proper
// prefix being the smaller. New keys are salted with random bytes, so that two keys made between the
// same neighbours differ; the last byte of a key is never zero.
//
// The default key (0x80, one half) doubles as the marker of an absent upper bound: asking for a key
// between a and the default key yields a key after a, which may lie above one half.
class COMMON_API CFractionalIndex
{
public:
    using Bytes = std::vector<std::uint8_t>;

    // The default key.
    CFractionalIndex();
    // A key from its bytes, as stored or as built by hand; they must be non-empty and end in a
    // non-zero byte.
    explicit CFractionalIndex(Bytes bytes);
    virtual ~CFractionalIndex();

    CFractionalIndex(const CFractionalIndex&) = default;
    CFractionalIndex(CFractionalIndex&&) noexcept = default;
    CFractionalIndex& operator=(const CFractionalIndex&) = default;
    CFractionalIndex& operator=(CFractionalIndex&&) noexcept = default;

    // The one-half key, bytes {0x80} and bit length 1.
    static const CFractionalIndex& defaultKey();

    const Bytes& bytes() const noexcept { return bytes_; }
    // Significant bits of the fraction: 8 per byte, less the trailing zero bits of the last byte.
    std::uint64_t bitLength() const noexcept { return bitLength_; }

    friend bool operator==(const CFractionalIndex& left, const CFractionalIndex& right) noexcept
    {
        return left.bytes_ == right.bytes_;
    }
    friend std::strong_ordering operator<=>(const CFractionalIndex& left,
                                            const CFractionalIndex& right) noexcept
    {
        return left.bytes_ <=> right.bytes_;
    }

    // A key strictly between a and b; a must be below b. When b is the default key, this is after(a).
    // The overloads without a device draw from the process-wide default device.
    static CFractionalIndex between(const CFractionalIndex& a, const CFractionalIndex& b);
    static CFractionalIndex between(const CFractionalIndex& a, const CFractionalIndex& b,
                                    IRandomDevice& random);

    // A key above a. Throws ECheckViolation when a has bytes 1 to 5 all 0xFF and lies at or above
    // one half, since the carry never reaches byte 0.
    static CFractionalIndex after(const CFractionalIndex& a);
    static CFractionalIndex after(const CFractionalIndex& a, IRandomDevice& random);

    // count increasing keys strictly between a and b; when b is the default key, count keys each
    // after the one before, starting after a. Throws std::length_error before making any key when
    // count exceeds what a vector can hold.
    static std::vector<CFractionalIndex> generate(const CFractionalIndex& a, const CFractionalIndex& b,
                                                  std::size_t count);
    static std::vector<CFractionalIndex> generate(const CFractionalIndex& a, const CFractionalIndex& b,
                                                  std::size_t count, IRandomDevice& random);

    // Two lower-case hexadecimal digits per byte, most significant byte first.
    std::string toHex() const;
    // Reads the form that toHex writes, in either letter case. Throws EException when the text is
    // not such a key (empty, odd length, not hexadecimal, last byte zero).
    static CFractionalIndex fromHex(std::string_view text);

private:
    // For keys this class builds itself, whose bytes are correct by construction.
    struct Unchecked
    {
    };
    CFractionalIndex(Unchecked, Bytes bytes) noexcept;

    // The host's own layout of a key: its bit length, then its bytes.
    std::uint64_t bitLength_;
    Bytes bytes_;
};

} // namespace common
