#pragma once

#include "aec/EditCommand.h"

#include <memory>

namespace aec::fault_injection
{

class CFaultPlan;

// One direct change of an entity, failing where the plan says.
class CFaultyEditCommand final : public IEditCommand
{
public:
    CFaultyEditCommand(CFaultPlan& plan, std::unique_ptr<IEditCommand> inner);
    ~CFaultyEditCommand() override;
    CFaultyEditCommand(const CFaultyEditCommand&) = delete;
    CFaultyEditCommand& operator=(const CFaultyEditCommand&) = delete;

    // The host's own command behind a decoration, or the command itself when it is none.
    static IEditCommand& innerOf(IEditCommand& command);

    void setName(const std::wstring& name) override;

private:
    CFaultPlan& plan_;
    std::unique_ptr<IEditCommand> inner_;
};

} // namespace aec::fault_injection
