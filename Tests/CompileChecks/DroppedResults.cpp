// Results that roll back or release when they are dropped, each dropped by mistake in one case
// (DROPPED=1 to 6): the compiler must refuse every case under the project's warnings. Without
// DROPPED every result is kept, and the file must compile, so that a refusal is known to come from
// the dropped result alone.
#include "AecModel/TransactionHost.h"
#include "ProjectExplorerLib/ChangeNotificationBatchScope.h"
#include "ProjectExplorerLib/FollowingChangesPause.h"
#include "ProjectExplorerLib/ProjectOperation.h"
#include "aec/OperationGuard.h"
#include "aec/OperationGuardSource.h"
#include "aec/Transaction.h"
#include "aec/TransactionHost.h"

namespace
{

[[maybe_unused]] void useResults(aec::ITransactionHost& transactions,
                                 aec::model::CTransactionHost& hostTransactions,
                                 const aec::IOperationGuardSource& guards, aec::IOperationHost& operations,
                                 aec::IProject& project, aec::IChangeNotificationBatch& batch,
                                 aec::IDocumentGui* gui)
{
    // Each case uses only some of the objects.
    (void)transactions, (void)hostTransactions, (void)guards, (void)operations, (void)project, (void)batch,
        (void)gui;
#if DROPPED == 1
    transactions.openTransaction("Dropped");
#elif DROPPED == 2
    hostTransactions.openTransaction("Dropped");
#elif DROPPED == 3
    guards.createGuard(operations);
#elif DROPPED == 4
    project_explorer::CProjectOperation(project, guards, "Dropped");
#elif DROPPED == 5
    project_explorer::CChangeNotificationBatchScope{batch};
#elif DROPPED == 6
    project_explorer::CFollowingChangesPause{gui};
#else
    const auto transaction = transactions.openTransaction("Kept");
    const auto hostTransaction = hostTransactions.openTransaction("Kept");
    const auto guard = guards.createGuard(operations);
    const project_explorer::CProjectOperation operation(project, guards, "Kept");
    const project_explorer::CChangeNotificationBatchScope scope(batch);
    const project_explorer::CFollowingChangesPause pause(gui);
#endif
}

} // namespace
