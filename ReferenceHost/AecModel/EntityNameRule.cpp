#include "AecModel/EntityNameRule.h"

#include "AecModel/EntityCollectionInfo.h"
#include "AecModel/Project.h"
#include "AecModel/UniqueNameGenerator.h"
#include "AecModel/WideText.h"

#include "Common/Exception.h"

#include <boost/algorithm/string/classification.hpp>
#include <boost/algorithm/string/predicate.hpp>
#include <fmt/format.h>

#include <array>
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
bool takesAn(std::string_view noun)
{
    return std::string_view("aeiou").find(noun.front()) != std::string_view::npos;
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

void requireAcceptableName(const CProject& project, const CEntity& entity, const std::wstring& newName)
{
    const std::string noun = lowerCaseNoun(entity.getCollection());
    if (boost::algorithm::all(newName, boost::algorithm::is_space()))
        throw common::EException(fmt::format("{} {} needs a name; type at least one letter or digit.",
                                             takesAn(noun) ? "An" : "A", noun));
    if (entity.getName() != newName && CUniqueNameGenerator(project, entity.getCollection()).isTaken(newName))
        throw common::EException(fmt::format("There is already {} {} named \"{}\"; choose another name.",
                                             takesAn(noun) ? "an" : "a", noun, toUtf8(newName)));
}

} // namespace aec::model
