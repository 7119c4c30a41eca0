#include "AecModel/EntityNameRule.h"

#include "AecModel/EntityCollectionInfo.h"
#include "AecModel/Project.h"
#include "AecModel/UniqueNameGenerator.h"
#include "AecModel/WideText.h"
#include "Common/Exception.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <fmt/format.h>
#include <string_view>

namespace aec::model
{

namespace
{

std::string lowerCaseNoun(EntityCollection collection)
{
    std::string noun = toUtf8(entityNoun(collection));
    noun.front() = static_cast<char>(noun.front() - 'A' + 'a');
    return noun;
}

// "a sheet", "an assembly": every noun here sounds as it is spelled, so its first letter decides.
std::string withArticle(EntityCollection collection)
{
    const std::string noun = lowerCaseNoun(collection);
    return (std::string_view("aeiou").find(noun.front()) != std::string_view::npos ? "an " : "a ") + noun;
}

// Unicode's white space (the White_Space property). A short fixed list, written out because the
// C library's iswspace depends on the locale and knows only part of it.
bool isBlank(wchar_t character)
{
    static constexpr std::array<wchar_t, 25> blanks{
        L'\t',     L'\n',     L'\v',     L'\f',     L'\r',     L' ',      L'\u0085', L'\u00A0', L'\u1680',
        L'\u2000', L'\u2001', L'\u2002', L'\u2003', L'\u2004', L'\u2005', L'\u2006', L'\u2007', L'\u2008',
        L'\u2009', L'\u200A', L'\u2028', L'\u2029', L'\u202F', L'\u205F', L'\u3000'};
    return std::ranges::find(blanks, character) != blanks.end();
}

// The C0 and C1 controls. Compared as an unsigned code: wchar_t is signed on Linux and unsigned on
// Windows.
bool isControl(wchar_t character)
{
    const auto code = static_cast<std::uint32_t>(character);
    return code < 0x20 || (code >= 0x7F && code < 0xA0);
}

// Characters that take no room and show nothing: zero-width spaces and joiners, directional marks,
// the soft hyphen, the byte order mark. A name of only these looks empty.
bool isInvisible(wchar_t character)
{
    return isBlank(character) || isControl(character) || character == L'\u00AD' || character == L'\u034F' ||
           (character >= L'\u200B' && character <= L'\u200F') ||
           (character >= L'\u202A' && character <= L'\u202E') ||
           (character >= L'\u2060' && character <= L'\u2064') || character == L'\uFEFF';
}

} // namespace

std::wstring_view entityNoun(EntityCollection collection)
{
    static constexpr std::array<std::wstring_view, entityCollectionCount> nouns{
        L"Sheet",
        L"Table",
        L"Assembly",
        L"Material",
        L"Door style",
        L"Window style",
        L"Reinforcement style",
        L"Topic",
        L"Linked model",
        L"Image",
    };
    return nouns[collectionIndex(collection)];
}

std::wstring trimmedName(std::wstring_view name)
{
    const auto first = std::ranges::find_if_not(name, isBlank);
    const auto last = std::find_if_not(name.rbegin(), name.rend(), isBlank).base();
    return first < last ? std::wstring(first, last) : std::wstring();
}

std::string nameDefect(EntityCollection collection, std::wstring_view trimmed)
{
    if (std::ranges::all_of(trimmed, isInvisible))
    {
        std::string article = withArticle(collection);
        article.front() = static_cast<char>(article.front() - 'a' + 'A');
        return fmt::format("{} needs a name with at least one visible character.", article);
    }
    if (std::ranges::any_of(trimmed, isControl))
        return "A name cannot hold a line break, a tab or another control character.";
    return {};
}

std::wstring acceptableName(const CProject& project, const CEntity& entity, std::wstring_view newName)
{
    std::wstring name = trimmedName(newName);
    if (const std::string defect = nameDefect(entity.getCollection(), name); !defect.empty())
        throw common::EException(defect);
    const CUniqueNameGenerator names(project, entity.getCollection());
    if (const std::wstring* const holder = names.findTaken(name);
        holder != nullptr && *holder != entity.getName())
        throw common::EException(fmt::format("There is already {} named \"{}\"; choose another name.",
                                             withArticle(entity.getCollection()), toUtf8(*holder)));
    return name;
}

std::wstring repairedName(EntityCollection collection, std::wstring_view name)
{
    std::wstring repaired = trimmedName(name);
    std::erase_if(repaired, isControl);
    repaired = trimmedName(repaired);
    if (!nameDefect(collection, repaired).empty())
        return std::wstring(entityNoun(collection));
    return repaired;
}

} // namespace aec::model
