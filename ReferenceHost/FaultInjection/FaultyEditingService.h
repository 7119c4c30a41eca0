#pragma once

#include "aec/EditingService.h"

namespace aec::fault_injection
{

class CFaultPlan;

// The project's editing service, failing where the plan says; its commands fail alike. An end of
// an edit that fails has still ended the edit, without success, as the host's does when its
// commit fails.
class CFaultyEditingService final : public IEditingService
{
public:
    CFaultyEditingService(CFaultPlan& plan, IEditingService& inner) : plan_(plan), inner_(inner) {}

    void beginEdit() override;
    std::unique_ptr<IEditCommand> createCommand(const EntityId& entity) override;
    void submit(IEditCommand& command) override;
    void endEdit(bool success) override;

private:
    CFaultPlan& plan_;
    IEditingService& inner_;
};

} // namespace aec::fault_injection
