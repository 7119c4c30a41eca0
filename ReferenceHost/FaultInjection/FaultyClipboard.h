#pragma once

#include "aec/Clipboard.h"

namespace aec::fault_injection
{

class CFaultPlan;

// The host's clipboard, failing where the plan says.
class CFaultyClipboard final : public IClipboard
{
public:
    CFaultyClipboard(CFaultPlan& plan, IClipboard& inner) : plan_(plan), inner_(inner) {}

    void setData(std::uint32_t format, const std::wstring& data) override;
    std::optional<std::wstring> getData(std::uint32_t format) const override;
    bool hasData(std::uint32_t format) const override;

private:
    CFaultPlan& plan_;
    IClipboard& inner_;
};

} // namespace aec::fault_injection
