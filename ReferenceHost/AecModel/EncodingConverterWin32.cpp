#include "AecModel/EncodingConverter.h"
#include "Common/Exception.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <climits>
#include <fmt/format.h>
#include <optional>
#include <windows.h>

namespace aec::model
{

// Windows has no lookup from encoding names to its code pages outside COM, so the names that
// encoding detection gives and users commonly type are listed here, in the spelling the names are
// compared in: lower case, without dashes, underscores and spaces.

namespace
{

struct CodePageName
{
    std::string_view name;
    UINT codePage;
};

constexpr UINT utf16LittleEndian = 1200;
constexpr UINT utf16BigEndian = 1201;

constexpr std::array codePages{
    CodePageName{"utf16le", utf16LittleEndian},
    CodePageName{"utf16be", utf16BigEndian},
    CodePageName{"windows1250", 1250},
    CodePageName{"windows1251", 1251},
    CodePageName{"windows1252", 1252},
    CodePageName{"windows1253", 1253},
    CodePageName{"windows1254", 1254},
    CodePageName{"windows1255", 1255},
    CodePageName{"windows1256", 1256},
    CodePageName{"windows1257", 1257},
    CodePageName{"windows1258", 1258},
    CodePageName{"cp1252", 1252},
    CodePageName{"iso88591", 28591},
    CodePageName{"latin1", 28591},
    CodePageName{"iso88592", 28592},
    CodePageName{"iso88595", 28595},
    CodePageName{"iso88597", 28597},
    CodePageName{"iso88599", 28599},
    CodePageName{"iso885915", 28605},
    CodePageName{"usascii", 20127},
    CodePageName{"ascii", 20127},
    CodePageName{"ibm437", 437},
    CodePageName{"ibm850", 850},
    CodePageName{"macintosh", 10000},
    CodePageName{"shiftjis", 932},
    CodePageName{"eucjp", 20932},
    CodePageName{"gbk", 936},
    CodePageName{"gb18030", 54936},
    CodePageName{"big5", 950},
    CodePageName{"euckr", 51949},
    CodePageName{"koi8r", 20866},
    CodePageName{"koi8u", 21866},
};

std::string normalizedName(const std::string& encoding)
{
    std::string name;
    for (const char c : encoding)
        if (c != '-' && c != '_' && c != ' ')
            name += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return name;
}

std::optional<UINT> codePageOf(const std::string& encoding)
{
    const std::string name = normalizedName(encoding);
    const auto found = std::ranges::find(codePages, name, &CodePageName::name);
    if (found == codePages.end())
        return std::nullopt;
    return found->codePage;
}

// MultiByteToWideChar does not take the UTF-16 code pages: their code units are copied as they are.
std::wstring utf16Units(std::string_view bytes, bool bigEndian)
{
    std::wstring units(bytes.size() / 2, L'\0');
    for (std::size_t i = 0; i < units.size(); ++i)
    {
        const auto first = static_cast<unsigned char>(bytes[2 * i]);
        const auto second = static_cast<unsigned char>(bytes[2 * i + 1]);
        units[i] = static_cast<wchar_t>(bigEndian ? (first << 8) | second : (second << 8) | first);
    }
    // A last odd byte is half a character: it reads as the replacement character.
    if (bytes.size() % 2 != 0)
        units += L'\xFFFD';
    return units;
}

std::wstring toWide(std::string_view bytes, UINT codePage, const std::string& encoding)
{
    if (codePage == utf16LittleEndian || codePage == utf16BigEndian)
        return utf16Units(bytes, codePage == utf16BigEndian);
    if (bytes.empty())
        return {};
    const int size = static_cast<int>(bytes.size());
    const int length = MultiByteToWideChar(codePage, 0, bytes.data(), size, nullptr, 0);
    if (length <= 0)
        throw common::EException(fmt::format("the text cannot be read as {}", encoding));
    std::wstring wide(static_cast<std::size_t>(length), L'\0');
    MultiByteToWideChar(codePage, 0, bytes.data(), size, wide.data(), length);
    return wide;
}

std::string wideToUtf8(const std::wstring& wide, const std::string& encoding)
{
    if (wide.empty())
        return {};
    const int size = static_cast<int>(wide.size());
    const int length = WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, nullptr, 0, nullptr, nullptr);
    if (length <= 0)
        throw common::EException(fmt::format("the text cannot be read as {}", encoding));
    std::string text(static_cast<std::size_t>(length), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, text.data(), length, nullptr, nullptr);
    return text;
}

} // namespace

bool isUtf8EncodingName(const std::string& encoding)
{
    return normalizedName(encoding) == "utf8";
}

std::string convertToUtf8(std::string_view bytes, const std::string& encoding)
{
    std::optional<UINT> codePage = codePageOf(encoding);
    // Unmarked UTF-16 is big-endian unless its byte order mark says otherwise.
    if (normalizedName(encoding) == "utf16")
        codePage = bytes.starts_with("\xFF\xFE") ? utf16LittleEndian : utf16BigEndian;
    if (!codePage)
        throw common::EException(fmt::format("the encoding \"{}\" is not known", encoding));
    // The Windows conversion functions count in int; UTF-8 takes up to three bytes per UTF-16 unit.
    if (bytes.size() > static_cast<std::size_t>(INT_MAX / 3))
        throw common::EException("the file is too large to read as " + encoding);
    return wideToUtf8(toWide(bytes, *codePage, encoding), encoding);
}

} // namespace aec::model
