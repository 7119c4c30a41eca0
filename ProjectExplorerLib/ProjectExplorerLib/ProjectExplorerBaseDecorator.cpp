#include "ProjectExplorerLib/ProjectExplorerBaseDecorator.h"

#include "aec/ProjectExplorerEntitySelection.h"
#include "aec/ProjectExplorerGroup.h"

#include "Common/Check.h"

namespace project_explorer
{

CProjectExplorerBaseDecorator::CProjectExplorerBaseDecorator(std::unique_ptr<aec::IProjectExplorer> explorer)
    : explorer_(std::move(explorer))
{
    COMMON_PRECONDITION(explorer_ != nullptr);
}

CProjectExplorerBaseDecorator::~CProjectExplorerBaseDecorator() = default;

aec::GroupRange CProjectExplorerBaseDecorator::getGroups()
{
    return explorer_->getGroups();
}

// The const accessors go through the wrapped explorer's non-const ones, which yield the very same
// objects, so a decorator never hands out a second view of its groups or selection.
aec::ConstGroupRange CProjectExplorerBaseDecorator::getGroups() const
{
    return explorer_->getGroups();
}

aec::IProjectExplorerEntitySelection& CProjectExplorerBaseDecorator::getEntitySelection()
{
    return explorer_->getEntitySelection();
}

const aec::IProjectExplorerEntitySelection& CProjectExplorerBaseDecorator::getEntitySelection() const
{
    return explorer_->getEntitySelection();
}

aec::IProjectExplorer& CProjectExplorerBaseDecorator::getExplorer() const
{
    return *explorer_;
}

} // namespace project_explorer
