#include "ProjectExplorerLib/ProjectExplorer.h"

#include "Common/Check.h"

#include <boost/range/adaptor/indirected.hpp>

namespace project_explorer
{

CProjectExplorer::CProjectExplorer(std::vector<std::unique_ptr<aec::IProjectExplorerGroup>> groups,
                                   std::unique_ptr<aec::IProjectExplorerEntitySelection> selection)
    : groups_(std::move(groups)), selection_(std::move(selection))
{
    COMMON_PRECONDITION(selection_ != nullptr);
}

CProjectExplorer::~CProjectExplorer() = default;

aec::GroupRange CProjectExplorer::getGroups()
{
    return groups_ | boost::adaptors::indirected;
}

aec::ConstGroupRange CProjectExplorer::getGroups() const
{
    return groups_ | boost::adaptors::indirected;
}

aec::IProjectExplorerEntitySelection& CProjectExplorer::getEntitySelection()
{
    return *selection_;
}

const aec::IProjectExplorerEntitySelection& CProjectExplorer::getEntitySelection() const
{
    return *selection_;
}

} // namespace project_explorer
