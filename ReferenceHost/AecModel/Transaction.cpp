#include "AecModel/Transaction.h"

#include "AecModel/TransactionHost.h"

#include "Common/Check.h"

namespace aec::model
{

CTransaction::CTransaction(CTransactionHost& host, std::uint64_t serial) : host_(host), serial_(serial) {}

CTransaction::~CTransaction()
{
    if (committed_)
        return;
    // Reached while the failure that stopped the transaction is on its way, or when the transaction
    // is dropped on purpose. The changes are taken back before the observers hear of it; an
    // observer that fails to follow cannot report from a destructor, so the rollback completes.
    try
    {
        host_.rollBack(serial_);
    }
    catch (...)
    {
    }
}

void CTransaction::commit()
{
    COMMON_PRECONDITION(!committed_);
    host_.commit(serial_);
    committed_ = true;
}

} // namespace aec::model
