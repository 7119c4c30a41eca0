#pragma once

#include "aec/ClipboardListener.h"

#include <string>
#include <vector>

namespace aec::host
{

// The clipboard's listener registry as the explorer library meets it, with every call written to
// a log ("addListener", "removeListener") before it goes on to the registry it decorates.
class CLoggingClipboardListenerRegistry final : public IClipboardListenerRegistry
{
public:
    // Both must outlive the decorator.
    CLoggingClipboardListenerRegistry(IClipboardListenerRegistry& inner, std::vector<std::string>& log)
        : inner_(inner), log_(log)
    {
    }

    void addListener(IClipboardListener& listener) override;
    void removeListener(IClipboardListener& listener) override;

private:
    IClipboardListenerRegistry& inner_;
    std::vector<std::string>& log_;
};

} // namespace aec::host
