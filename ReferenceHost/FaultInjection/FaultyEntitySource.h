#pragma once

#include "aec/EntitySource.h"

namespace aec::fault_injection
{

class CFaultPlan;

// The source of the entities that a copy carries, failing where the plan says.
class CFaultyEntitySource final : public IEntitySource
{
public:
    CFaultyEntitySource(CFaultPlan& plan, const IEntitySource& inner) : plan_(plan), inner_(inner) {}

    EntityIdSet getEntities(const EntityIdList& requested) const override;

private:
    CFaultPlan& plan_;
    const IEntitySource& inner_;
};

} // namespace aec::fault_injection
