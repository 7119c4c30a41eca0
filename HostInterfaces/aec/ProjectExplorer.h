#pragma once

#include "aec/AecApi.h"
#include "aec/Ranges.h"

namespace aec
{

class IProjectExplorerEntitySelection;

// The explorer tree: a fixed, ordered list of top-level groups and the entity selection.
class AEC_INTERFACE IProjectExplorer
{
public:
    virtual ~IProjectExplorer() = default;

    // The groups in tree order.
    virtual GroupRange getGroups() = 0;
    // The groups in tree order, read-only.
    virtual ConstGroupRange getGroups() const = 0;
    // The explorer's own entity selection.
    virtual IProjectExplorerEntitySelection& getEntitySelection() = 0;
    // The explorer's own entity selection, read-only.
    virtual const IProjectExplorerEntitySelection& getEntitySelection() const = 0;
};

} // namespace aec
