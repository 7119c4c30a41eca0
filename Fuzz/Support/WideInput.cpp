#include "Support/WideInput.h"

#include <boost/locale/utf.hpp>
#include <cstdint>

namespace fuzz
{

namespace
{

constexpr unsigned char rawCodeUnitMarker = 0xFF;
constexpr std::size_t rawCodeUnitSize = 4;

} // namespace

std::wstring widenFuzzInput(std::string_view bytes)
{
    using Utf8 = boost::locale::utf::utf_traits<char>;
    std::wstring text;
    text.reserve(bytes.size());
    for (auto next = bytes.begin(); next != bytes.end();)
    {
        if (static_cast<unsigned char>(*next) == rawCodeUnitMarker &&
            static_cast<std::size_t>(bytes.end() - next) > rawCodeUnitSize)
        {
            std::uint32_t unit = 0;
            for (std::size_t index = 0; index < rawCodeUnitSize; ++index)
                unit |= std::uint32_t{static_cast<unsigned char>(next[1 + index])} << (8 * index);
            text.push_back(static_cast<wchar_t>(unit));
            next += 1 + rawCodeUnitSize;
            continue;
        }
        auto decoded = next;
        const boost::locale::utf::code_point character = Utf8::decode(decoded, bytes.end());
        if (character == boost::locale::utf::illegal || character == boost::locale::utf::incomplete)
        {
            text.push_back(static_cast<wchar_t>(static_cast<unsigned char>(*next)));
            ++next;
        }
        else
        {
            text.push_back(static_cast<wchar_t>(character));
            next = decoded;
        }
    }
    return text;
}

} // namespace fuzz
