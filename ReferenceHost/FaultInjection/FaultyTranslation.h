#pragma once

#include "aec/Translation.h"

namespace aec::fault_injection
{

class CFaultPlan;

// The host's translation tables, failing where the plan says.
class CFaultyTranslation final : public ITranslation
{
public:
    CFaultyTranslation(CFaultPlan& plan, const ITranslation& inner) : plan_(plan), inner_(inner) {}

    std::wstring getText(int textId) const override;
    std::wstring fillIn(const std::wstring& text, const std::wstring& argument) const override;

private:
    CFaultPlan& plan_;
    const ITranslation& inner_;
};

} // namespace aec::fault_injection
