#pragma once

#include "aec/ProjectExplorerSubgroup.h"
#include "aec/SubgroupDescriptor.h"

#include <string>

namespace project_explorer
{

// A named set of entities inside a group. Its group keeps it across rebuilds as long as the name
// survives, so its fold state and the connections to its signals survive too.
class CProjectExplorerSubgroup final : public aec::IProjectExplorerSubgroup
{
public:
    explicit CProjectExplorerSubgroup(aec::SubgroupDescriptor descriptor);
    ~CProjectExplorerSubgroup() override;

    const std::wstring& getName() const override;
    aec::EntityIdRange getEntities() const override;
    bool contains(const aec::EntityId& entity) const override;
    bool isExpanded() const override;
    void setExpanded(bool expanded) override;
    aec::EntitiesChangedSignal& entitiesChangedSignal() const override;
    aec::VoidSignal& expandedChangedSignal() const override;

    // Replaces the entities; emits entitiesChanged with exactly the added and removed ones, and
    // nothing when the set stays the same.
    void setEntities(aec::EntityIdSet entities);

private:
    std::wstring name_;
    aec::EntityIdSet entities_;
    bool expanded_ = false;
    mutable aec::EntitiesChangedSignal entitiesChanged_;
    mutable aec::VoidSignal expandedChanged_;
};

} // namespace project_explorer
