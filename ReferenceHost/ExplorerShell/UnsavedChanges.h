#pragma once

#include <string_view>

namespace aec::host
{
class CExplorerSession;
} // namespace aec::host

namespace aec::shell
{

// The question that comes before anything that would drop changes no file holds (quit, the end of
// the input, load): at a terminal the user answers y or N; in scripts and pipes the next `answer`,
// else --answer, else no. Discarding needs a yes; anything else keeps the changes, and the user
// saves them with save FILE.
class CUnsavedChanges
{
public:
    explicit CUnsavedChanges(host::CExplorerSession& session);

    // Returns when there is nothing unsaved or the user discards it; otherwise throws
    // common::EException saying that the changes were kept and how to save them. `action` says
    // what would lose the changes ("quitting"), `command` what to type again afterwards.
    void confirmDiscard(std::string_view action, std::string_view command) const;

private:
    host::CExplorerSession& session_;
};

} // namespace aec::shell
