#include "DocumentWindow.h"

#include "Text.h"

#include "aec/Entity.h"
#include "aec/Project.h"
#include "aec/ProjectSessionManager.h"

#include <fmt/format.h>

namespace minimal_host
{

CDocumentWindow::CDocumentWindow(const aec::IProjectSessionManager& sessionManager)
    : panel_(std::make_unique<CConsolePanel>(sessionManager))
{
}

aec::IProjectExplorerPanel* CDocumentWindow::getPanel(aec::IPanelOwner& /*owner*/,
                                                      aec::IHostContext& /*context*/) const
{
    return panel_.get();
}

std::uint32_t CDocumentWindow::getKey() const
{
    return key;
}

aec::IPropertyContext* CDocumentWindow::getPropertyContext() const
{
    return nullptr;
}

// The explorer's "Rename" lands here; the panel renames in place.
void CDocumentWindow::handleEntity(const aec::EntityId& entity)
{
    panel_->startRename(entity);
}

void CDocumentWindow::openEntities(const aec::EntityIdList& entities)
{
    fmt::print("Window: open {} entities\n", entities.size());
}

bool CDocumentWindow::isFollowingChanges() const
{
    return followingChanges_;
}

void CDocumentWindow::setFollowingChanges(bool following)
{
    followingChanges_ = following;
}

} // namespace minimal_host
