#include "Translation.h"

#include "aec/TextIds.h"

#include <boost/algorithm/string/replace.hpp>

#include <map>

namespace minimal_host
{

std::wstring CTranslation::getText(int textId) const
{
    namespace id = aec::text_ids;
    static const std::map<int, std::wstring> english{
        {id::rename, L"Rename"},
        {id::deleteTitle, L"Delete entities"},
        {id::deleteOneQuestion, L"Do you want to delete \"{}\"?"},
        {id::deleteManyQuestion, L"Do you want to delete the {} selected entities?"},
        {id::cut, L"Cut"},
        {id::copy, L"Copy"},
        {id::paste, L"Paste"},
        {id::selectAll, L"Select all"},
        {id::deleteItem, L"Delete"},
        {id::editProperties, L"Properties"},
        {id::changeTopic, L"Move to topic"},
        {id::open, L"Open"},
        {id::noGrouping, L"No grouping"},
    };
    const auto found = english.find(textId);
    // A missing text shows its number, which tells a translator what to add.
    return found != english.end() ? found->second : L"[text " + std::to_wstring(textId) + L"]";
}

std::wstring CTranslation::fillIn(const std::wstring& text, const std::wstring& argument) const
{
    return boost::algorithm::replace_first_copy(text, L"{}", argument);
}

} // namespace minimal_host
