#include "ProjectExplorerLib/FollowingChangesPause.h"

#include "aec/DocumentGui.h"

namespace project_explorer
{

CFollowingChangesPause::CFollowingChangesPause(aec::IDocumentGui* gui)
    : gui_(gui), wasFollowing_(gui != nullptr && gui->isFollowingChanges())
{
    if (gui_ != nullptr)
        gui_->setFollowingChanges(false);
}

CFollowingChangesPause::~CFollowingChangesPause()
{
    // Only does something while the paste's own exception is on its way, or when end() failed and
    // its exception is; a failure to give the flag back cannot travel beside it, and the first
    // failure says what went wrong.
    try
    {
        end();
    }
    catch (...)
    {
    }
}

void CFollowingChangesPause::end()
{
    if (gui_ == nullptr)
        return;
    // Forgotten only once given back, so that the destructor tries again after a failure.
    gui_->setFollowingChanges(wasFollowing_);
    gui_ = nullptr;
}

} // namespace project_explorer
