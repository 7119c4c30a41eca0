#include "AecModel/TextDecoder.h"

#include "AecModel/EncodingConverter.h"
#include "AecModel/Utf8Validation.h"
#include "Common/Exception.h"

#include <fmt/format.h>

namespace aec::model
{

namespace
{

constexpr std::string_view utf8ByteOrderMark = "\xEF\xBB\xBF";

} // namespace

std::string CTextDecoder::toUtf8(std::string bytes, const std::string& encoding)
{
    if (isUtf8EncodingName(encoding))
    {
        if (std::string_view(bytes).starts_with(utf8ByteOrderMark))
            bytes.erase(0, utf8ByteOrderMark.size());
        if (const std::optional<std::size_t> line = firstInvalidUtf8Line(bytes))
            throw common::EException(fmt::format(
                "line {}: the text is not valid UTF-8; choose the file's encoding or save it as UTF-8",
                *line));
        return bytes;
    }

    std::string text = convertToUtf8(bytes, encoding);
    bytes = std::string();
    // The converters keep the byte order mark of UTF-16 as U+FEFF.
    if (std::string_view(text).starts_with(utf8ByteOrderMark))
        text.erase(0, utf8ByteOrderMark.size());
    return text;
}

} // namespace aec::model
