#include "FaultInjection/FaultyDialogService.h"

#include "FaultInjection/FaultPlan.h"

namespace aec::fault_injection
{

DialogAnswer CFaultyDialogService::ask(const std::wstring& title, const std::wstring& question,
                                       int buttonSet) const
{
    plan_.reach("IGeneralPurposeDialogService::ask");
    return inner_.ask(title, question, buttonSet);
}

} // namespace aec::fault_injection
