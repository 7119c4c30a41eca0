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
    // Only does something while the paste's own exception is on its way; a failure to give the
    // flag back cannot travel beside it, and the paste's failure says what went wrong.
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
    aec::IDocumentGui* const gui = gui_;
    gui_ = nullptr;
    gui->setFollowingChanges(wasFollowing_);
}

} // namespace project_explorer
