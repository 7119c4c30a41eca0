#pragma once

#include "aec/EntityClassifier.h"

namespace aec::fault_injection
{

class CFaultPlan;

// The classifier of copied entities, failing where the plan says.
class CFaultyEntityClassifier final : public IEntityClassifier
{
public:
    CFaultyEntityClassifier(CFaultPlan& plan, const IEntityClassifier& inner) : plan_(plan), inner_(inner) {}

    std::optional<CopyCollection> classifyAsDocument(const EntityId& entity) const override;
    std::optional<CopyCollection> classifyAsStyle(const EntityId& entity) const override;
    std::optional<CopyCollection> classifyAsResource(const EntityId& entity) const override;

private:
    CFaultPlan& plan_;
    const IEntityClassifier& inner_;
};

} // namespace aec::fault_injection
