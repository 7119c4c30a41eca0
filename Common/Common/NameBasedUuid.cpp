#include "Common/NameBasedUuid.h"

#include <boost/locale/encoding_utf.hpp>
#include <boost/uuid/name_generator_sha1.hpp>
#include <boost/uuid/uuid.hpp>

#include <algorithm>

namespace common
{

namespace
{

// common::UUID keeps the first three fields (4, 2 and 2 bytes) little-endian as a GUID does;
// Boost.Uuid keeps all 16 bytes in network (big-endian) order. Swapping those three fields
// converts either way.
UUID::Bytes swapLeadingFields(const std::uint8_t* bytes)
{
    UUID::Bytes swapped;
    std::copy(bytes, bytes + swapped.size(), swapped.begin());
    std::reverse(swapped.begin(), swapped.begin() + 4);
    std::reverse(swapped.begin() + 4, swapped.begin() + 6);
    std::reverse(swapped.begin() + 6, swapped.begin() + 8);
    return swapped;
}

boost::uuids::uuid toBoost(const UUID& uuid)
{
    const UUID::Bytes networkOrder = swapLeadingFields(uuid.bytes().data());
    boost::uuids::uuid result;
    std::copy(networkOrder.begin(), networkOrder.end(), result.begin());
    return result;
}

} // namespace

UUID makeNameBasedUuid(const UUID& nameSpace, std::wstring_view name)
{
    // Boost hashes a wide string by its code units in its own byte layout, which matches no
    // other implementation, so the name goes in as UTF-8.
    const std::string utf8 = boost::locale::conv::utf_to_utf<char>(name.data(), name.data() + name.size());
    const boost::uuids::name_generator_sha1 generator(toBoost(nameSpace));
    const boost::uuids::uuid result = generator(utf8.data(), utf8.size());
    return UUID(swapLeadingFields(result.data));
}

} // namespace common
