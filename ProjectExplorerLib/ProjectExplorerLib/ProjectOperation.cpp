#include "ProjectExplorerLib/ProjectOperation.h"

#include "aec/OperationGuard.h"
#include "aec/OperationGuardSource.h"
#include "aec/Project.h"
#include "aec/Transaction.h"
#include "aec/TransactionHost.h"

#include "Common/Check.h"

namespace project_explorer
{

CProjectOperation::CProjectOperation(aec::IProject& project, const aec::IOperationGuardSource& guardSource,
                                     const std::string& name)
    : guard_(guardSource.createGuard(project.getOperationHost())),
      transaction_(project.getTransactionHost().openTransaction(name))
{
}

// The members go in reverse order: an uncommitted transaction rolls back while the guard still holds.
CProjectOperation::~CProjectOperation() = default;

void CProjectOperation::commit()
{
    COMMON_PRECONDITION(transaction_ != nullptr);
    transaction_->commit();
    transaction_.reset();
    guard_.reset();
}

} // namespace project_explorer
