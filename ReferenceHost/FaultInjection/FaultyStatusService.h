#pragma once

#include "aec/StatusService.h"

namespace aec::fault_injection
{

class CFaultPlan;

// The host's status line, failing where the plan says.
class CFaultyStatusService final : public IStatusService
{
public:
    CFaultyStatusService(CFaultPlan& plan, IStatusService& inner) : plan_(plan), inner_(inner) {}

    void showStatus(const std::wstring& message) override;

private:
    CFaultPlan& plan_;
    IStatusService& inner_;
};

} // namespace aec::fault_injection
