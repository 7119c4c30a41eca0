#pragma once

#include "AecModel/ModelChange.h"

#include "aec/TransactionHost.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace aec::model
{

class CChangeApplier;
class CChangeNotifier;
class CUndoHistory;

// Keeps the journal of the open transactions.
//
// A transaction opened while another is open joins it: it is a save point inside the outer one.
// Its commit keeps its changes as part of the outer transaction, and destroying it uncommitted
// rolls back exactly its own changes. Only the outermost commit makes an undo step, named after the
// outermost transaction; a transaction that changed nothing leaves no step. Transactions end in the
// reverse order of opening; rolling back an outer one also rolls back the inner ones still open,
// whose objects then have nothing left to do.
//
// The outermost commit tells the project's observers of the change (unless a change-notification
// batch holds the news). An observer that fails makes the commit fail as a whole: the change and
// its undo step are taken back, and the observers hear of that too.
//
// @code
//   const std::unique_ptr<ITransaction> rename = host.openTransaction("Rename sheet");
//   project.renameEntity(sheet, L"Sheet 2");
//   {
//       const std::unique_ptr<ITransaction> attempt = host.openTransaction("Remove sheet");
//       project.removeEntity(sheet);   // dropped uncommitted: only the removal is undone
//   }
//   rename->commit();                  // one undo step "Rename sheet"; observers told once
// @endcode
class CTransactionHost final : public ITransactionHost
{
public:
    CTransactionHost(CChangeApplier& applier, CChangeNotifier& notifier, CUndoHistory& history);
    ~CTransactionHost() override;

    [[nodiscard]] std::unique_ptr<ITransaction> openTransaction(const std::string& name) override;

    bool isOpen() const noexcept { return !levels_.empty(); }

    // Journals a change of the open transaction and returns the journaled copy.
    const ModelChange& record(ModelChange change);
    // Forgets the last journaled change, which could not be carried out.
    void discardLast();

    // For the transaction objects: the transaction must be the innermost open one.
    void commit(std::uint64_t serial);
    // Undoes the transaction's changes and those of the transactions opened inside it, if it is
    // still open.
    void rollBack(std::uint64_t serial);

private:
    struct Level
    {
        std::string name;
        std::size_t journalStart;
        std::uint64_t serial;
    };

    CChangeApplier& applier_;
    CChangeNotifier& notifier_;
    CUndoHistory& history_;
    std::vector<ModelChange> journal_;
    std::vector<Level> levels_;
    std::uint64_t nextSerial_ = 1;
};

} // namespace aec::model
