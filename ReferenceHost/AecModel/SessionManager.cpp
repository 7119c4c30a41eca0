#include "AecModel/SessionManager.h"

#include "AecModel/Project.h"

#include "Common/Exception.h"

namespace aec::model
{

CSessionManager::~CSessionManager() = default;

void CSessionManager::setCurrentProject(CProject* project) noexcept
{
    project_ = project;
}

CProject& CSessionManager::getCurrentProject() const
{
    if (project_ == nullptr)
        throw common::EException("No project is open");
    return *project_;
}

} // namespace aec::model
