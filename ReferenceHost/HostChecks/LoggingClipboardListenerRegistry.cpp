#include "HostChecks/LoggingClipboardListenerRegistry.h"

namespace aec::host
{

void CLoggingClipboardListenerRegistry::addListener(IClipboardListener& listener)
{
    log_.emplace_back("addListener");
    inner_.addListener(listener);
}

void CLoggingClipboardListenerRegistry::removeListener(IClipboardListener& listener)
{
    log_.emplace_back("removeListener");
    inner_.removeListener(listener);
}

} // namespace aec::host
