#pragma once

#include "aec/ClipboardListener.h"

namespace aec::fault_injection
{

class CFaultPlan;

// Where the library registers its clipboard listeners, failing where the plan says. The listeners
// register with the host's registry themselves, so the host tells them of its own clipboard.
class CFaultyClipboardListenerRegistry final : public IClipboardListenerRegistry
{
public:
    CFaultyClipboardListenerRegistry(CFaultPlan& plan, IClipboardListenerRegistry& inner)
        : plan_(plan), inner_(inner)
    {
    }

    void addListener(IClipboardListener& listener) override;
    void removeListener(IClipboardListener& listener) override;

private:
    CFaultPlan& plan_;
    IClipboardListenerRegistry& inner_;
};

} // namespace aec::fault_injection
