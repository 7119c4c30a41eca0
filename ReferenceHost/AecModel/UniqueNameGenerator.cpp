#include "AecModel/UniqueNameGenerator.h"

#include "AecModel/Project.h"

#include <algorithm>

namespace aec::model
{

namespace
{

// The name without a trailing " (<digits>)", or the name itself when it has none.
std::wstring_view numberedCopyStem(std::wstring_view name)
{
    if (!name.ends_with(L')'))
        return name;
    const std::size_t open = name.rfind(L" (");
    if (open == std::wstring_view::npos)
        return name;
    const std::wstring_view digits = name.substr(open + 2, name.size() - open - 3);
    const bool numbered =
        !digits.empty() &&
        std::ranges::all_of(digits, [](wchar_t character) { return character >= L'0' && character <= L'9'; });
    return numbered ? name.substr(0, open) : name;
}

} // namespace

CUniqueNameGenerator::CUniqueNameGenerator(const CProject& project, EntityCollection collection)
{
    for (const EntityId& id : project.getEntities(collection))
        taken_.insert(project.findEntity(id)->getName());
}

bool CUniqueNameGenerator::isTaken(std::wstring_view name) const
{
    return taken_.contains(name);
}

const std::wstring* CUniqueNameGenerator::findTaken(std::wstring_view name) const
{
    const auto found = taken_.find(name);
    return found == taken_.end() ? nullptr : &*found;
}

std::wstring CUniqueNameGenerator::takeNumbered(std::wstring_view base)
{
    // Among n + 1 numbers at most n are taken, so the search ends by then.
    for (std::size_t number = 1;; ++number)
    {
        std::wstring candidate = std::wstring(base) + L' ' + std::to_wstring(number);
        if (!isTaken(candidate))
            return take(std::move(candidate));
    }
}

std::wstring CUniqueNameGenerator::takeUnique(const std::wstring& wanted)
{
    if (!isTaken(wanted))
        return take(wanted);
    const std::wstring stem(numberedCopyStem(wanted));
    for (std::size_t number = 2;; ++number)
    {
        std::wstring candidate = stem + L" (" + std::to_wstring(number) + L')';
        if (!isTaken(candidate))
            return take(std::move(candidate));
    }
}

std::wstring CUniqueNameGenerator::take(std::wstring name)
{
    taken_.insert(name);
    return name;
}

} // namespace aec::model
