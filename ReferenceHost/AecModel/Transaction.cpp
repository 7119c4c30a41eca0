#include "AecModel/Transaction.h"

#include "AecModel/TransactionHost.h"

#include "Common/Check.h"

namespace aec::model
{

CTransaction::CTransaction(CTransactionHost& host, std::uint64_t serial) : host_(host), serial_(serial) {}

CTransaction::~CTransaction()
{
    if (!committed_)
        host_.rollBack(serial_);
}

void CTransaction::commit()
{
    COMMON_PRECONDITION(!committed_);
    host_.commit(serial_);
    committed_ = true;
}

} // namespace aec::model
