#include "FaultInjection/FaultyTransactionHost.h"

#include "FaultInjection/FaultPlan.h"
#include "FaultInjection/FaultyTransaction.h"

namespace aec::fault_injection
{

std::unique_ptr<ITransaction> CFaultyTransactionHost::openTransaction(const std::string& name)
{
    plan_.reach("ITransactionHost::openTransaction");
    return std::make_unique<CFaultyTransaction>(plan_, inner_.openTransaction(name));
}

} // namespace aec::fault_injection
