#pragma once

#include "aec/ChangeNotificationBatch.h"

namespace aec::fault_injection
{

class CFaultPlan;

// The project's change-notification batch, failing where the plan says. A close that fails has
// still ended its level of the batch, as the host's does when one of its observers fails.
class CFaultyChangeNotificationBatch final : public IChangeNotificationBatch
{
public:
    CFaultyChangeNotificationBatch(CFaultPlan& plan, IChangeNotificationBatch& inner)
        : plan_(plan), inner_(inner)
    {
    }

    void open() override;
    void close() override;

private:
    CFaultPlan& plan_;
    IChangeNotificationBatch& inner_;
};

} // namespace aec::fault_injection
