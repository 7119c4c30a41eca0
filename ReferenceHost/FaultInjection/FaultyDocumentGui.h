#pragma once

#include "aec/DocumentGui.h"

namespace aec::fault_injection
{

class CFaultPlan;

// The user interface of one document, failing where the plan says.
class CFaultyDocumentGui final : public IDocumentGui
{
public:
    CFaultyDocumentGui(CFaultPlan& plan, IDocumentGui& inner) : plan_(plan), inner_(inner) {}

    void handleEntity(const EntityId& entity) override;
    void openEntities(const EntityIdList& entities) override;
    bool isFollowingChanges() const override;
    void setFollowingChanges(bool following) override;

private:
    CFaultPlan& plan_;
    IDocumentGui& inner_;
};

} // namespace aec::fault_injection
