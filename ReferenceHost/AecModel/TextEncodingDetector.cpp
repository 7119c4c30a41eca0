#include "AecModel/TextEncodingDetector.h"

#include "AecModel/Utf8Validation.h"

#include <optional>

#ifndef _WIN32
#include <memory>
#include <unicode/ucsdet.h>
#endif

namespace aec::model
{

namespace
{

#ifdef _WIN32
// The Windows build has no ICU to weigh the text's statistics: text that is neither marked nor valid
// UTF-8 is taken for Windows-1252, which is what spreadsheet programs on Windows mostly write.
std::string detectUnmarked(std::string_view)
{
    return "windows-1252";
}
#else
// ICU's detector weighs statistics of the text; a few tens of kilobytes are as telling as the whole.
constexpr std::size_t detectionSample = 64 * 1024;

std::string detectUnmarked(std::string_view bytes)
{
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<UCharsetDetector, decltype(&ucsdet_close)> detector(ucsdet_open(&status),
                                                                              &ucsdet_close);
    const std::string_view sample = bytes.substr(0, detectionSample);
    ucsdet_setText(detector.get(), sample.data(), static_cast<std::int32_t>(sample.size()), &status);
    const UCharsetMatch* const match = ucsdet_detect(detector.get(), &status);
    const char* const name = U_SUCCESS(status) && match != nullptr ? ucsdet_getName(match, &status) : nullptr;
    if (U_FAILURE(status) || name == nullptr)
        return "windows-1252";
    const std::string_view detected = name;
    // Windows-1252 is Latin-1 with printable characters where Latin-1 has control codes; spreadsheet
    // programs on Windows write it, and it reads every Latin-1 text the same, as web browsers do too.
    // UTF-8 cannot be right: the bytes are not valid UTF-8.
    if (detected == "ISO-8859-1" || detected == "UTF-8")
        return "windows-1252";
    return std::string(detected);
}
#endif

// UTF-16 without a byte order mark. The code units of a table's text are mostly digits, Latin
// letters, delimiters and line breaks, whose high byte is zero: one byte in two of the sample is a
// zero, always on the same side, which no 8-bit text has (a zero byte there is binary data). Such
// bytes are valid UTF-8, so the UTF-8 check and ICU's detector never see them; hence this rule.
constexpr std::size_t utf16Sample = 1024;

std::optional<std::string> detectUnmarkedUtf16(std::string_view bytes)
{
    const std::string_view sample = bytes.substr(0, utf16Sample);
    std::size_t zerosAtEven = 0;
    std::size_t zerosAtOdd = 0;
    for (std::size_t at = 0; at < sample.size(); ++at)
        if (sample[at] == '\0')
            ++(at % 2 == 0 ? zerosAtEven : zerosAtOdd);
    // At least a quarter of the code units with a zero high byte, and a zero low byte (U+0100,
    // U+4E00...) at most once for every eight of them.
    const std::size_t units = sample.size() / 2;
    const auto highByteZeros = [units](std::size_t high, std::size_t low)
    {
        return high > 0 && high * 4 >= units && low * 8 <= high;
    };
    if (highByteZeros(zerosAtOdd, zerosAtEven))
        return "UTF-16LE";
    if (highByteZeros(zerosAtEven, zerosAtOdd))
        return "UTF-16BE";
    return std::nullopt;
}

} // namespace

std::string CTextEncodingDetector::detect(std::string_view bytes)
{
    if (bytes.starts_with("\xEF\xBB\xBF"))
        return "UTF-8";
    if (bytes.starts_with("\xFF\xFE"))
        return "UTF-16LE";
    if (bytes.starts_with("\xFE\xFF"))
        return "UTF-16BE";
    if (std::optional<std::string> utf16 = detectUnmarkedUtf16(bytes))
        return *utf16;
    if (!firstInvalidUtf8Line(bytes))
        return "UTF-8";
    return detectUnmarked(bytes);
}

} // namespace aec::model
