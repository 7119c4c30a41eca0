#pragma once

#include "aec/ProjectExplorerEntitySelection.h"

namespace project_explorer
{

// Which entities are selected in the explorer. Changes only on a real difference and then tells
// its listeners exactly what was added and what was removed.
class CProjectExplorerEntitySelection final : public aec::IProjectExplorerEntitySelection
{
public:
    CProjectExplorerEntitySelection();
    ~CProjectExplorerEntitySelection() override;

    const aec::EntityIdSet& getSelection() const override;
    void setSelection(const aec::EntityIdSet& selection) override;
    void changeSelection(const aec::EntityIdSet& toAdd, const aec::EntityIdSet& toRemove) override;
    aec::SelectionChangedSignal& selectionChangedSignal() const override;

private:
    aec::EntityIdSet selection_;
    mutable aec::SelectionChangedSignal selectionChanged_;
};

} // namespace project_explorer
