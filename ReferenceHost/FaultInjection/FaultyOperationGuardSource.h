#pragma once

#include "aec/OperationGuardSource.h"

namespace aec::fault_injection
{

class CFaultPlan;

// The source of operation guards, failing where the plan says.
class CFaultyOperationGuardSource final : public IOperationGuardSource
{
public:
    CFaultyOperationGuardSource(CFaultPlan& plan, const IOperationGuardSource& inner)
        : plan_(plan), inner_(inner)
    {
    }

    [[nodiscard]] std::unique_ptr<IOperationGuard> createGuard(IOperationHost& host) const override;

private:
    CFaultPlan& plan_;
    const IOperationGuardSource& inner_;
};

} // namespace aec::fault_injection
