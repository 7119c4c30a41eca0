#pragma once

#include "aec/ProjectExplorer.h"

#include <memory>

namespace project_explorer
{

// Owns an explorer and forwards the whole explorer interface to it, so that a decorator adds
// behaviour by listening to the wrapped explorer while callers cannot tell it from a plain one.
class CProjectExplorerBaseDecorator : public aec::IProjectExplorer
{
public:
    // `explorer` must not be null.
    explicit CProjectExplorerBaseDecorator(std::unique_ptr<aec::IProjectExplorer> explorer);
    ~CProjectExplorerBaseDecorator() override;

    aec::GroupRange getGroups() override;
    aec::ConstGroupRange getGroups() const override;
    aec::IProjectExplorerEntitySelection& getEntitySelection() override;
    const aec::IProjectExplorerEntitySelection& getEntitySelection() const override;

protected:
    aec::IProjectExplorer& getExplorer() const;

private:
    std::unique_ptr<aec::IProjectExplorer> explorer_;
};

} // namespace project_explorer
