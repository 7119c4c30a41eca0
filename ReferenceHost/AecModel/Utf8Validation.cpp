#include "AecModel/Utf8Validation.h"

#include <algorithm>
#include <boost/locale/utf.hpp>

namespace aec::model
{

std::optional<std::size_t> firstInvalidUtf8Line(std::string_view text)
{
    using Utf8 = boost::locale::utf::utf_traits<char>;
    for (auto next = text.begin(); next != text.end();)
    {
        const auto start = next;
        // ASCII needs no decoding; most table text is ASCII, and this runs over every byte.
        if (static_cast<unsigned char>(*next) < 0x80)
        {
            ++next;
            continue;
        }
        const boost::locale::utf::code_point character = Utf8::decode(next, text.end());
        if (character == boost::locale::utf::illegal || character == boost::locale::utf::incomplete)
            return 1 + static_cast<std::size_t>(std::count(text.begin(), start, '\n'));
    }
    return std::nullopt;
}

} // namespace aec::model
