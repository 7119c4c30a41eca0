#pragma once

#include "HostChecks/LoggingClipboardListenerRegistry.h"
#include "HostChecks/LoggingGui.h"
#include "HostFrame/ServiceDecorator.h"

#include <optional>
#include <string>
#include <vector>

namespace aec::host
{

// Records, in order, the calls the explorer library makes on the host's main GUI and on the
// clipboard's listener registry, so that tests can hold the library to the order in which it binds
// and releases them. The other services pass through undecorated. Must outlive the session.
class CHostCallLog final : public IServiceDecorator
{
public:
    ApplicationServiceSet decorateApplicationServices(const ApplicationServiceSet& services) override;
    ProjectServiceSet decorateProjectServices(const ProjectServiceSet& services) override;

    // The calls since the session started or the last clear, one line each.
    const std::vector<std::string>& getCalls() const noexcept { return calls_; }
    void clear() noexcept { calls_.clear(); }

private:
    std::vector<std::string> calls_;
    std::optional<CLoggingGui> gui_;
    std::optional<CLoggingClipboardListenerRegistry> registry_;
};

} // namespace aec::host
