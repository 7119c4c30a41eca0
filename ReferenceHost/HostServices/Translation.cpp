#include "HostServices/Translation.h"

#include "aec/TextIds.h"

#include <boost/algorithm/string/replace.hpp>

#include <map>

namespace aec::host
{

namespace
{

const std::map<int, std::wstring>& englishTexts()
{
    namespace ids = text_ids;
    static const std::map<int, std::wstring> texts{
        {ids::rename, L"Rename"},
        {ids::deleteTitle, L"Delete"},
        {ids::deleteOneQuestion, L"Delete \"{}\"?"},
        {ids::deleteManyQuestion, L"Delete {} entities?"},
        {ids::cut, L"Cut"},
        {ids::copy, L"Copy"},
        {ids::paste, L"Paste"},
        {ids::selectAll, L"Select all"},
        {ids::deleteItem, L"Delete"},
        {ids::editProperties, L"Properties..."},
        {ids::changeTopic, L"Change topic"},
        {ids::open, L"Open"},
        {ids::noGrouping, L"No grouping"},
    };
    return texts;
}

} // namespace

CTranslation::~CTranslation() = default;

std::wstring CTranslation::getText(int textId) const
{
    const auto found = englishTexts().find(textId);
    if (found == englishTexts().end())
        return L"#" + std::to_wstring(textId);
    return found->second;
}

std::wstring CTranslation::fillIn(const std::wstring& text, const std::wstring& argument) const
{
    return boost::algorithm::replace_all_copy(text, L"{}", argument);
}

} // namespace aec::host
