#pragma once

#include "aec/GeneralPurposeDialogService.h"

namespace aec::fault_injection
{

class CFaultPlan;

// The service that asks the user questions, failing where the plan says.
class CFaultyDialogService final : public IGeneralPurposeDialogService
{
public:
    CFaultyDialogService(CFaultPlan& plan, const IGeneralPurposeDialogService& inner)
        : plan_(plan), inner_(inner)
    {
    }

    DialogAnswer ask(const std::wstring& title, const std::wstring& question, int buttonSet) const override;

private:
    CFaultPlan& plan_;
    const IGeneralPurposeDialogService& inner_;
};

} // namespace aec::fault_injection
