#pragma once

#include "AecModel/AecModelApi.h"
#include "AecModel/Project.h"

#include "aec/ProjectSessionManager.h"

namespace aec::model
{

// Knows which project the user works on. The project is not owned.
class AECMODEL_API CSessionManager final : public IProjectSessionManager
{
public:
    CSessionManager() = default;
    ~CSessionManager() override;

    // Null closes the session; the project must outlive its time as the current one.
    void setCurrentProject(CProject* project) noexcept;
    // Throws common::EException("No project is open") when there is none.
    CProject& getCurrentProject() const override;
    bool hasCurrentProject() const noexcept { return project_ != nullptr; }

private:
    CProject* project_ = nullptr;
};

} // namespace aec::model
