#include "AecModel/EncodingConverter.h"
#include "Common/Exception.h"

#include <fmt/format.h>
#include <limits>
#include <memory>
#include <unicode/ucnv.h>

namespace aec::model
{

bool isUtf8EncodingName(const std::string& encoding)
{
    return ucnv_compareNames(encoding.c_str(), "UTF-8") == 0;
}

std::string convertToUtf8(std::string_view bytes, const std::string& encoding)
{
    {
        UErrorCode status = U_ZERO_ERROR;
        const std::unique_ptr<UConverter, decltype(&ucnv_close)> converter(
            ucnv_open(encoding.c_str(), &status), &ucnv_close);
        if (U_FAILURE(status))
            throw common::EException(fmt::format("the encoding \"{}\" is not known", encoding));
    }
    if (bytes.size() > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max() / 4))
        throw common::EException("the file is too large to read as " + encoding);
    // Straight from the source encoding, in one pass that sizes the result first.
    auto convert = [&](char* out, std::size_t capacity)
    {
        UErrorCode status = U_ZERO_ERROR;
        const std::int32_t length =
            ucnv_convert("UTF-8", encoding.c_str(), out, static_cast<std::int32_t>(capacity), bytes.data(),
                         static_cast<std::int32_t>(bytes.size()), &status);
        if (U_FAILURE(status) && status != U_BUFFER_OVERFLOW_ERROR)
            throw common::EException(fmt::format("the text cannot be read as {}", encoding));
        return static_cast<std::size_t>(length);
    };
    std::string text(convert(nullptr, 0), '\0');
    convert(text.data(), text.size());
    return text;
}

} // namespace aec::model
