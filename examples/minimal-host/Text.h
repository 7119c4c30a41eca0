#pragma once

#include <boost/locale/encoding_utf.hpp>

#include <string>
#include <string_view>

namespace minimal_host
{

// The host interfaces speak wide strings; the console and exception messages take UTF-8.
inline std::string toUtf8(std::wstring_view text)
{
    return boost::locale::conv::utf_to_utf<char>(text.data(), text.data() + text.size());
}

} // namespace minimal_host
