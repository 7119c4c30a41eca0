#include "FaultInjection/FaultyTransaction.h"

#include "Common/Check.h"
#include "FaultInjection/FaultPlan.h"

namespace aec::fault_injection
{

CFaultyTransaction::CFaultyTransaction(CFaultPlan& plan, std::unique_ptr<ITransaction> inner)
    : plan_(plan), inner_(std::move(inner))
{
    COMMON_PRECONDITION(inner_ != nullptr);
}

CFaultyTransaction::~CFaultyTransaction() = default;

void CFaultyTransaction::commit()
{
    plan_.reach("ITransaction::commit");
    inner_->commit();
}

} // namespace aec::fault_injection
