#include "ConsoleDialogs.h"

#include "Text.h"

#include "Common/Exception.h"

#include <fmt/format.h>

namespace minimal_host
{

aec::DialogAnswer CConsoleDialogs::ask(const std::wstring& title, const std::wstring& question,
                                       int /*buttonSet*/) const
{
    fmt::print("Dialog \"{}\": {} -> Yes\n", toUtf8(title), toUtf8(question));
    return aec::DialogAnswer::Yes;
}

std::wstring CConsoleDialogs::askForFile() const
{
    return {};
}

// The explorer opens the editor only in a document that has a property context, which this
// host's document has not.
void CConsoleDialogs::edit(aec::IPropertyContextOwner& /*owner*/, const aec::EntityIdSet& /*entities*/)
{
    throw common::EException("This host has no property editor.");
}

// The explorer imports only the file that askForFile chose, and this host's user chooses none.
aec::EntityId CConsoleDialogs::importTable(aec::IProject& /*project*/,
                                           const std::filesystem::path& /*file*/) const
{
    throw common::EException("This host does not import tables.");
}

} // namespace minimal_host
