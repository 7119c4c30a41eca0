#pragma once

#include "aec/EntityTypeHandler.h"

namespace aec::fault_injection
{

class CFaultPlan;

// The handler of one entity type, failing where the plan says, also once it has done its work.
class CFaultyEntityTypeHandler final : public IEntityTypeHandler
{
public:
    CFaultyEntityTypeHandler(CFaultPlan& plan, IEntityTypeHandler& inner) : plan_(plan), inner_(inner) {}

    void create(const EntityId& id) override;
    EntityTypeId getEntityType() const override;
    void remove(const EntityId& id) override;
    void rename(const EntityId& id, const std::wstring& newName) override;

private:
    CFaultPlan& plan_;
    IEntityTypeHandler& inner_;
};

} // namespace aec::fault_injection
