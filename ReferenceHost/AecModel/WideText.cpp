#include "AecModel/WideText.h"

#include "Common/Exception.h"

#include <boost/locale/encoding_utf.hpp>

namespace aec::model
{

std::string toUtf8(std::wstring_view text)
{
    return boost::locale::conv::utf_to_utf<char>(text.data(), text.data() + text.size());
}

std::wstring fromUtf8(std::string_view text)
{
    try
    {
        return boost::locale::conv::utf_to_utf<wchar_t>(text.data(), text.data() + text.size(),
                                                        boost::locale::conv::stop);
    }
    catch (const boost::locale::conv::conversion_error&)
    {
        throw common::EException("The text is not valid UTF-8.");
    }
}

std::string toValidUtf8(std::string_view text)
{
    return boost::locale::conv::utf_to_utf<char>(text.data(), text.data() + text.size());
}

std::filesystem::path pathFromUtf8(std::string_view text)
{
    return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

} // namespace aec::model
