#include "FaultInjection/FaultyChangeNotificationBatch.h"

#include "FaultInjection/FaultPlan.h"

namespace aec::fault_injection
{

void CFaultyChangeNotificationBatch::open()
{
    plan_.reach("IChangeNotificationBatch::open");
    inner_.open();
}

void CFaultyChangeNotificationBatch::close()
{
    try
    {
        plan_.reach("IChangeNotificationBatch::close");
    }
    catch (...)
    {
        inner_.close();
        throw;
    }
    inner_.close();
}

} // namespace aec::fault_injection
