#pragma once

#include "aec/AecApi.h"
#include "aec/EntityId.h"
#include "aec/Ranges.h"
#include "aec/Signals.h"

#include <string>

namespace aec
{

// A named set of entity identifiers inside a group.
class AEC_INTERFACE IProjectExplorerSubgroup
{
public:
    virtual ~IProjectExplorerSubgroup() = default;

    // The name, by which a rebuild recognises the subgroup.
    virtual const std::wstring& getName() const = 0;
    // The entities in identifier order; invalid after the next rebuild.
    virtual EntityIdRange getEntities() const = 0;
    // Whether the entity belongs to the subgroup.
    virtual bool contains(const EntityId& entity) const = 0;
    // Whether the subgroup is unfolded.
    virtual bool isExpanded() const = 0;
    // Folds or unfolds the subgroup; signals only a real change.
    virtual void setExpanded(bool expanded) = 0;
    // Emitted with the added and removed entities when a rebuild changed the set.
    virtual EntitiesChangedSignal& entitiesChangedSignal() const = 0;
    // Emitted when the unfolded flag changes.
    virtual VoidSignal& expandedChangedSignal() const = 0;
};

} // namespace aec
