#pragma once

#include "Common/CommonApi.h"

#include <array>
#include <boost/endian/conversion.hpp>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

namespace common
{

// A 128-bit identifier in GUID storage layout: a 32-bit field and two 16-bit fields, each stored
// little-endian, then 8 single bytes. The text form "xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx" writes
// the three fields as numbers, so its byte order differs from the storage order.
//
// Ordering follows the storage bytes (what ordered containers of persisted identifiers rely on);
// the hash follows the text order. Both orders are kept deliberately.
class COMMON_API UUID
{
public:
    using Bytes = std::array<std::uint8_t, 16>;

    static constexpr std::size_t textLength = 36;

    // The nil UUID.
    constexpr UUID() noexcept = default;
    constexpr explicit UUID(const Bytes& bytes) noexcept : bytes_(bytes) {}

    // Writes a fixed UUID the way its text reads: fromFields(0xc5db39aa, 0x0973, 0x4262,
    // {0x88, 0x4a, 0x61, 0x49, 0x4f, 0x79, 0xc7, 0x1b}) is c5db39aa-0973-4262-884a-61494f79c71b.
    static constexpr UUID fromFields(std::uint32_t data1, std::uint16_t data2, std::uint16_t data3,
                                     const std::array<std::uint8_t, 8>& data4) noexcept;

    // Stamps the RFC 4122 version 4 and variant bits onto 16 random bytes.
    static constexpr UUID version4FromRandomBytes(Bytes randomBytes) noexcept;

    // A fresh random UUID from the platform's generator (the RPC runtime on Windows, the kernel's
    // random source elsewhere), bypassing any installed provider. Throws ECheckViolation when the
    // generator fails, also when Windows can only promise a UUID unique to this computer.
    static UUID create();

    // A fresh UUID from the installed provider (recorded in the installed journal, if any), or from
    // create() when no provider is installed. Code that makes new model entities calls this one, so
    // that a host can make every new identifier deterministic.
    static UUID generate();

    // Accept 36 characters of 8-4-4-4-12 hexadecimal digits in either case, optionally inside one
    // pair of braces ("{...}" only when the text both starts and ends with a brace). Anything else
    // is not a UUID: parse throws EPreconditionViolation, tryParse returns nothing.
    static UUID parse(std::string_view text);
    static UUID parse(std::wstring_view text);
    static std::optional<UUID> tryParse(std::string_view text) noexcept;
    static std::optional<UUID> tryParse(std::wstring_view text) noexcept;

    // The 36-character lower-case text form without braces.
    std::string toString() const;
    std::wstring toWString() const;

    static const UUID& nil() noexcept;
    constexpr bool isNull() const noexcept { return *this == UUID{}; }

    constexpr const Bytes& bytes() const noexcept { return bytes_; }

    // 64-bit hash over the bytes in text order (storage bytes 3, 2, 1, 0, 5, 4, 7, 6, 8 to 15).
    constexpr std::uint64_t hash() const noexcept;

    friend constexpr bool operator==(const UUID& left, const UUID& right) noexcept
    {
        if (std::is_constant_evaluated())
            return left.bytes_ == right.bytes_;
        // As two words, for the reason given at the ordering below.
        return boost::endian::load_little_u64(left.bytes_.data()) ==
                   boost::endian::load_little_u64(right.bytes_.data()) &&
               boost::endian::load_little_u64(left.bytes_.data() + 8) ==
                   boost::endian::load_little_u64(right.bytes_.data() + 8);
    }
    // Lexicographic over the storage bytes, each compared as unsigned.
    friend constexpr std::strong_ordering operator<=>(const UUID& left, const UUID& right) noexcept
    {
        if (std::is_constant_evaluated())
            return left.bytes_ <=> right.bytes_;
        // Two big-endian words order as their sixteen bytes do. The byte-wise comparison would be a
        // call to memcmp, and sets of identifiers compare at every step of every descent.
        const std::uint64_t leftHigh = boost::endian::load_big_u64(left.bytes_.data());
        const std::uint64_t rightHigh = boost::endian::load_big_u64(right.bytes_.data());
        if (leftHigh != rightHigh)
            return leftHigh <=> rightHigh;
        return boost::endian::load_big_u64(left.bytes_.data() + 8) <=>
               boost::endian::load_big_u64(right.bytes_.data() + 8);
    }

    // For each byte of the text form in turn, the index of the storage byte that it shows.
    static constexpr std::array<std::uint8_t, 16> textOrder{3, 2, 1,  0,  5,  4,  7,  6,
                                                            8, 9, 10, 11, 12, 13, 14, 15};

private:
    Bytes bytes_{};
};

COMMON_API std::ostream& operator<<(std::ostream& stream, const UUID& uuid);

// The 31-bit non-negative key derived from a UUID constant: 1 for the nil UUID, otherwise the low
// 31 bits of the hash, which are 0 for the rare UUID whose hash has them all clear.
constexpr std::int32_t keyFromUuid(const UUID& uuid) noexcept
{
    if (uuid.isNull())
        return 1;
    return static_cast<std::int32_t>(uuid.hash() & 0x7fffffffu);
}

constexpr UUID UUID::fromFields(std::uint32_t data1, std::uint16_t data2, std::uint16_t data3,
                                const std::array<std::uint8_t, 8>& data4) noexcept
{
    Bytes bytes{};
    for (std::size_t i = 0; i < 4; ++i)
        bytes[i] = static_cast<std::uint8_t>(data1 >> (8 * i));
    for (std::size_t i = 0; i < 2; ++i)
    {
        bytes[4 + i] = static_cast<std::uint8_t>(data2 >> (8 * i));
        bytes[6 + i] = static_cast<std::uint8_t>(data3 >> (8 * i));
    }
    for (std::size_t i = 0; i < data4.size(); ++i)
        bytes[8 + i] = data4[i];
    return UUID(bytes);
}

constexpr UUID UUID::version4FromRandomBytes(Bytes randomBytes) noexcept
{
    // The version sits in the high nibble of the third field, whose high byte is stored at 7.
    randomBytes[7] = static_cast<std::uint8_t>((randomBytes[7] & 0x0f) | 0x40);
    // The RFC 4122 variant is the bit pattern 10 at the top of byte 8.
    randomBytes[8] = static_cast<std::uint8_t>((randomBytes[8] & 0x3f) | 0x80);
    return UUID(randomBytes);
}

constexpr std::uint64_t UUID::hash() const noexcept
{
    std::uint64_t seed = 0;
    for (const std::uint8_t storageIndex : textOrder)
        seed ^= std::uint64_t{bytes_[storageIndex]} + 0x9e3779b9u + (seed << 6) + (seed >> 2);
    return seed;
}

} // namespace common

template <>
struct std::hash<common::UUID>
{
    std::size_t operator()(const common::UUID& uuid) const noexcept
    {
        return static_cast<std::size_t>(uuid.hash());
    }
};
