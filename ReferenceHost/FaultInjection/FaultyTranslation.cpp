#include "FaultInjection/FaultyTranslation.h"

#include "FaultInjection/FaultPlan.h"

namespace aec::fault_injection
{

std::wstring CFaultyTranslation::getText(int textId) const
{
    plan_.reach("ITranslation::getText");
    return inner_.getText(textId);
}

std::wstring CFaultyTranslation::fillIn(const std::wstring& text, const std::wstring& argument) const
{
    plan_.reach("ITranslation::fillIn");
    return inner_.fillIn(text, argument);
}

} // namespace aec::fault_injection
