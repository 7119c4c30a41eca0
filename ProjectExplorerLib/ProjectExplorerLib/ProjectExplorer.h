#pragma once

#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerEntitySelection.h"
#include "aec/ProjectExplorerGroup.h"

#include <memory>
#include <vector>

namespace project_explorer
{

// The explorer tree itself: the fixed list of groups and the entity selection, both owned.
class CProjectExplorer final : public aec::IProjectExplorer
{
public:
    // `selection` must not be null.
    CProjectExplorer(std::vector<std::unique_ptr<aec::IProjectExplorerGroup>> groups,
                     std::unique_ptr<aec::IProjectExplorerEntitySelection> selection);
    ~CProjectExplorer() override;

    aec::GroupRange getGroups() override;
    aec::ConstGroupRange getGroups() const override;
    aec::IProjectExplorerEntitySelection& getEntitySelection() override;
    const aec::IProjectExplorerEntitySelection& getEntitySelection() const override;

private:
    std::vector<std::unique_ptr<aec::IProjectExplorerGroup>> groups_;
    std::unique_ptr<aec::IProjectExplorerEntitySelection> selection_;
};

} // namespace project_explorer
