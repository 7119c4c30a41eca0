#pragma once

#include "HostFrame/ServiceDecorator.h"

#include <memory>

namespace aec::fault_injection
{

class CFaultPlan;

// Hands the explorer library the host's services decorated so that every call they take, and every
// call of what they hand out (the project, its entities, transactions, batch, editing service and
// document, the documents' user interfaces, the edit commands), reaches a fault point of the plan.
// Whatever the library gives back to the host's services is undecorated first, so the host works
// on its own objects. The plan must outlive the decorator, and the decorator the session.
class CFaultInjectingServiceDecorator final : public host::IServiceDecorator
{
public:
    explicit CFaultInjectingServiceDecorator(CFaultPlan& plan);
    ~CFaultInjectingServiceDecorator() override;
    CFaultInjectingServiceDecorator(const CFaultInjectingServiceDecorator&) = delete;
    CFaultInjectingServiceDecorator& operator=(const CFaultInjectingServiceDecorator&) = delete;

    host::ApplicationServiceSet
    decorateApplicationServices(const host::ApplicationServiceSet& services) override;
    host::ProjectServiceSet decorateProjectServices(const host::ProjectServiceSet& services) override;

private:
    class CApplicationDecorations;
    class CProjectDecorations;

    CFaultPlan& plan_;
    std::unique_ptr<CApplicationDecorations> application_;
    std::unique_ptr<CProjectDecorations> project_;
};

} // namespace aec::fault_injection
