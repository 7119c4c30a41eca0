#include "AecModel/TextDecoder.h"

#include "AecModel/Utf8Validation.h"
#include "Common/Exception.h"

#include <fmt/format.h>
#include <limits>
#include <memory>
#include <unicode/ucnv.h>

namespace aec::model
{

namespace
{

constexpr std::string_view utf8ByteOrderMark = "\xEF\xBB\xBF";

using Converter = std::unique_ptr<UConverter, decltype(&ucnv_close)>;

Converter openConverter(const std::string& encoding)
{
    UErrorCode status = U_ZERO_ERROR;
    Converter converter(ucnv_open(encoding.c_str(), &status), &ucnv_close);
    if (U_FAILURE(status))
        throw common::EException(fmt::format("the encoding \"{}\" is not known", encoding));
    return converter;
}

} // namespace

std::string CTextDecoder::toUtf8(std::string bytes, const std::string& encoding)
{
    if (ucnv_compareNames(encoding.c_str(), "UTF-8") == 0)
    {
        if (std::string_view(bytes).starts_with(utf8ByteOrderMark))
            bytes.erase(0, utf8ByteOrderMark.size());
        if (const std::optional<std::size_t> line = firstInvalidUtf8Line(bytes))
            throw common::EException(fmt::format(
                "line {}: the text is not valid UTF-8; choose the file's encoding or save it as UTF-8",
                *line));
        return bytes;
    }

    // Into UTF-8 straight from the source encoding, in one pass that sizes the result first; the
    // bytes the encoding has no character for read as U+FFFD, as spreadsheet programs show them.
    (void)openConverter(encoding);
    if (bytes.size() > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max() / 4))
        throw common::EException("the file is too large to read as " + encoding);
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
    bytes = std::string();
    // ICU keeps the byte order mark of UTF-16 as U+FEFF.
    if (std::string_view(text).starts_with(utf8ByteOrderMark))
        text.erase(0, utf8ByteOrderMark.size());
    return text;
}

} // namespace aec::model
